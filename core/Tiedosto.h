// A loaded data file: its header, its channels, its events and who belongs to which population.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "core/TapahtumaTaulu.h"
#include "core/Taulu.h"

namespace tessarin {

/// `Kanava` means channel: one measured parameter of a file.
struct Kanava {
    std::string Name;    ///< value of $PnN, or the column title of a text file
    bool IsLog = false;  ///< shown on a logarithmic scale
    int32_t Range = 0;   ///< upper end of the channel's scale
};

/// `FcsOtsikko` means FCS header: the header's offsets and the keywords that are kept.
struct FcsOtsikko {
    std::string Version;    ///< "FCS3.0" or "FCS2.0"
    int32_t TextBegin = 0;  ///< byte offsets from the start of the file, as the header gives
    int32_t TextEnd = 0;    ///< them; both ends included
    int32_t DataBegin = 0;
    int32_t DataEnd = 0;
    std::string Text;          ///< the TEXT segment, its delimiter replaced by character 12
    std::string DataType;      ///< $DATATYPE
    std::string ByteOrder;     ///< $BYTEORD
    int16_t Bits = 0;          ///< $PnB of the last channel
    std::string Comment;       ///< $COM
    std::string SampleId;      ///< SAMPLE ID
    int32_t LoadedEvents = 0;  ///< events held in memory; upper bound of EventCount
    std::string BeginTime;     ///< $BTIM
    std::string EndTime;       ///< $ETIM
    std::string Cytometer;     ///< $CYT
};

/// `Tiedosto` means file. A record with Fingerprint 0 is a free slot of `Tiedostot`.
struct Tiedosto {
    bool Valid = false;        ///< the reader could use the file
    bool OutOfMemory = false;  ///< it could not, because the tables cannot be had in memory
    std::string Refusal;       ///< why not, as one phrase for the user; empty when `Valid`
    FcsOtsikko Otsikko;
    int16_t FcsMajor = 0;  ///< 3 for "FCS3.0", 2 for "FCS2.0"
    std::string FileName;  ///< without folder
    std::string Folder;    ///< ends in the separator; Folder + FileName is the path
    int32_t EventCount = 0;
    /// Where the file holds fewer events than it promises: how many of them are there whole. Those
    /// behind were made up of its last bytes, or are 0. Nothing for a file that is all there.
    std::optional<int32_t> WholeEvents;
    int16_t ChannelCount = 0;
    Taulu<Kanava> Channels;
    TapahtumaTaulu<float> RawData;  ///< as loaded, log channels linear again, never compensated
    TapahtumaTaulu<float> Data;     ///< what every window reads: RawData with compensation
    bool Compensate = false;
    /// Spillover factors: row a, column b is the share of channel a seen in channel b.
    TapahtumaTaulu<float> Compensation;
    int32_t Fingerprint = 0;
    /// 1 where the event of the row lies in the population or definition of the column, else 0.
    TapahtumaTaulu<uint8_t> Membership;
    Taulu<std::string> RowNames;  ///< one for each event of a text file with a name column
    bool HasRowNames = false;
    /// What is odd about the file, in one line for the user; empty for an ordinary file.
    std::string Oddities;

    std::string Path() const { return Folder + FileName; }
    /// The events in use that the file really gave.
    int32_t EventsFromFile() const {
        return std::min(EventCount, WholeEvents.value_or(EventCount));
    }
};

}  // namespace tessarin
