// Words for what is odd about an FCS file that opens all the same.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/FcsData.h"
#include "core/FcsKeywords.h"
#include "core/Tiedosto.h"

namespace tessarin {

/// Collects phrases while a file is read. Wrong numbers without a word are the worst that can
/// happen to a scientist, so each step of the reader says here what it could not take as it is.
class FcsOddities {
  public:
    void Add(std::string phrase) { phrases_.push_back(std::move(phrase)); }

    /// All phrases in one line, "; " between them; empty when there are none.
    std::string Line() const;

  private:
    std::vector<std::string> phrases_;
};

/// Value formats, widths and modes that are not read, or read otherwise than they say.
void NoteFormat(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities);

/// Scales that $PnE names and the program does not have.
void NoteScales(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities);

/// Ranges that give no scale, or are larger than is kept. REQUIRES: it is decided which channels
/// are log.
void NoteRanges(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities);

/// A DATA segment that holds more than `events` ($TOT) events, by the places in the header.
void NoteBytesLeft(const Tiedosto& file, double events, uint64_t fileSize, FcsOddities& oddities);

/// Data that end early or were cut. REQUIRES: the report is that of reading `file`.
void NoteData(const Tiedosto& file, const DataReport& report, FcsOddities& oddities);

/// Integers above the range that $PnR names. REQUIRES: log channels are not converted yet.
void NoteValuesAboveRange(const Tiedosto& file, const ChannelKeywords& keywords,
                          FcsOddities& oddities);

/// Values that are infinite or no numbers.
void NoteValuesNotFinite(const Tiedosto& file, FcsOddities& oddities);

}  // namespace tessarin
