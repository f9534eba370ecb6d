#include "core/FCSReader.h"

#include <algorithm>
#include <cmath>
#include <ios>
#include <limits>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "core/BusyPointer.h"
#include "core/FcsCompensation.h"
#include "core/FcsData.h"
#include "core/FcsHeader.h"
#include "core/FcsKeywords.h"
#include "core/FcsOddities.h"
#include "core/FcsText.h"
#include "core/InputFile.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/TableSize.h"
#include "core/Text.h"

namespace tessarin {
namespace {

using Kind = ChannelKeywords::Kind;

constexpr int32_t kOldScaleRange = 10000;  // 10 to the power 1024/256
constexpr double kOldScaleDivider = 256;   // channel numbers a decade

// The TEXT segment with its delimiter, the first byte, replaced by the one used from here on.
std::string NormalisedText(std::string bytes) {
    if (bytes.empty()) {
        return bytes;
    }
    // What a doubled delimiter means is known only in the program's own files.
    if (IsOwnText(bytes)) {
        return DecodeText(TakeOwnText(bytes));
    }
    std::replace(bytes.begin(), bytes.end(), char{bytes[0]}, kDelimiter);
    return DecodeText(bytes);
}

bool HasOldScale(const Tiedosto& file) {
    const std::string& cytometer = file.Otsikko.Cytometer;
    return cytometer == "FACScan" || cytometer == "FACSCalibur" ||
           (cytometer == "LSRII" && file.FcsMajor == 2);
}

// A record of a file that is not taken, and why.
Tiedosto Refused(std::string why) {
    Tiedosto refused;
    refused.Refusal = std::move(why);
    return refused;
}

int32_t Fingerprint(InputFile& source) {
    constexpr uint64_t kMostBytes = 80000;
    const std::string bytes = source.Read(0, kMostBytes);
    float sum = 0;
    for (std::size_t i = 1; i < bytes.size(); i += 2) {
        const double code = static_cast<unsigned char>(bytes[i]);
        sum = static_cast<float>(static_cast<double>(sum) + code / 100);
    }
    return static_cast<int32_t>(sum);
}

// One reading of one file; its steps stand in the order in which they run.
class FcsReading {
  public:
    FcsReading(InputFile& source, std::string path, int32_t fingerprint)
        : source_(source), path_(std::move(path)), fingerprint_(fingerprint) {}

    Tiedosto Read() {
        if (!ReadHeader() || !ReadCounts()) {
            return Refused(refusal_);
        }
        ReadTexts();
        const ChannelKeywords keywords(file_.Otsikko.Text, file_.ChannelCount);
        if (!ReadChannels(keywords) || !SizeTables() || !ReadCompensation()) {
            return Refused(refusal_);
        }
        NoteFormat(file_, keywords, oddities_);
        NoteScales(file_, keywords, oddities_);
        ReadData();
        NoteBytesLeft(file_, promised_, source_.Size(), oddities_);
        NoteValuesAboveRange(file_, keywords, oddities_);
        ConvertLogChannels();
        NoteValuesNotFinite(file_, oddities_);
        ReadDisplay(keywords);
        NoteRanges(file_, keywords, oddities_);
        file_.RawData = file_.Data;
        file_.Fingerprint = fingerprint_ != 0 ? fingerprint_ : Fingerprint(source_);
        file_.Oddities = oddities_.Line();
        file_.Valid = true;
        return std::move(file_);
    }

  private:
    bool Refuse(std::string why) {
        refusal_ = std::move(why);
        return false;
    }

    bool ReadHeader() {
        const std::string bytes = source_.Read(0, kHeaderLength);
        const auto header = TakeHeader(bytes);
        if (!header) {
            return Refuse(WhyNoHeader(bytes));
        }
        header_ = *header;
        FcsOtsikko& kept = file_.Otsikko;
        kept.Version = header_.version;
        kept.TextBegin = header_.textBegin;
        kept.TextEnd = header_.textEnd;
        kept.DataBegin = header_.dataBegin.value_or(0);
        kept.DataEnd = header_.dataEnd;
        file_.FcsMajor = header_.version == "FCS3.0" ? 3 : 2;
        const auto begin = static_cast<uint64_t>(header_.textBegin);
        const auto end = static_cast<uint64_t>(header_.textEnd);
        if (end >= source_.Size()) {
            oddities_.Add("the header's end of TEXT lies beyond the file");
        }
        kept.Text = NormalisedText(source_.Read(begin, end - begin + 1));
        return true;
    }

    std::string_view Keyword(std::string_view pattern) const {
        return HaeAvainsana(pattern, file_.Otsikko.Text);
    }

    bool ReadCounts() {
        const auto events = ParseNumber(Keyword("\\$TOT"));
        const auto channels = ParseWholeNumber(Keyword("\\$PAR"));
        if (!events || Rounded(*events) < 0) {
            return Refuse("$TOT is missing or no number of events");
        }
        if (!channels || *channels < 1 || *channels > std::numeric_limits<int16_t>::max()) {
            return Refuse("$PAR is missing or no number of channels");
        }
        promised_ = Rounded(*events);
        file_.EventCount = std::min(ToInt32(promised_), MaxLoadedEvents);
        file_.Otsikko.LoadedEvents = file_.EventCount;
        file_.ChannelCount = static_cast<int16_t>(*channels);
        return true;
    }

    void ReadTexts() {
        PathParts path = SplitPath(path_);
        file_.FileName = std::move(path.name);
        file_.Folder = std::move(path.folder);
        FcsOtsikko& kept = file_.Otsikko;
        kept.DataType = Keyword("\\$DATATYPE");
        kept.ByteOrder = Keyword("\\$BYTEORD");
        kept.Comment = Keyword("\\$COM");
        kept.SampleId = Keyword("\\SAMPLE ID");
        kept.BeginTime = Keyword("\\$BTIM");
        kept.EndTime = Keyword("\\$ETIM");
        kept.Cytometer = Keyword("\\$CYT");
    }

    bool ReadChannels(const ChannelKeywords& keywords) {
        file_.Channels.Mitoita(file_.ChannelCount);
        const bool oldScale = HasOldScale(file_);
        for (int channel = 1; channel <= file_.ChannelCount; ++channel) {
            Kanava& kanava = file_.Channels(channel);
            const auto range = ParseNumber(keywords.Value(Kind::kRange, channel));
            if (!range) {
                return Refuse("$P" + std::to_string(channel) + "R is missing or no number");
            }
            kanava.Name = keywords.Value(Kind::kName, channel);
            kanava.Range = ToInt32(Rounded(*range));
            const auto bits = ParseNumber(keywords.Value(Kind::kBits, channel)).value_or(0);
            file_.Otsikko.Bits = static_cast<int16_t>(std::clamp(bits, 0.0, 32767.0));
            kanava.IsLog = keywords.Value(Kind::kLog, channel).find('4') != std::string_view::npos;
            if (kanava.IsLog && oldScale) {
                kanava.Range = kOldScaleRange;
            }
        }
        return true;
    }

    // False when no such tables should be had; throws when they cannot be had.
    bool SizeTables() {
        DropEmptyPromises();
        if (!OvatkoTaulutJarkevat(file_.EventCount, file_.ChannelCount, source_.Size())) {
            return Refuse("its tables would be many times larger than the file");
        }
        file_.Compensation.Mitoita(file_.ChannelCount, file_.ChannelCount);
        file_.Data.Mitoita(file_.EventCount, file_.ChannelCount);
        file_.Membership.Mitoita(file_.EventCount, kPopulationSlots);
        return true;
    }

    // Where the tables would be large for the file, only the events that are there count.
    void DropEmptyPromises() {
        if (!VoikoOllaLupaus(file_.EventCount, file_.ChannelCount, source_.Size())) {
            return;
        }
        const uint64_t there = EventsThere();
        if (there < static_cast<uint64_t>(file_.EventCount)) {
            const auto events = static_cast<int32_t>(there);
            oddities_.Add("the file promises " + NumberText(promised_) + " events and holds " +
                          std::to_string(events) + ", which are the ones loaded");
            file_.EventCount = file_.Otsikko.LoadedEvents = events;
            file_.WholeEvents = events;
        }
    }

    // The whole events between the place of DATA and the end of the file.
    uint64_t EventsThere() const {
        const auto place = static_cast<uint64_t>(DataPlace().value_or(0));
        if (place == 0 || place >= source_.Size()) {
            return 0;
        }
        // Of a value that is not read no more is known than that it takes a byte.
        const auto valueBytes = std::max(1, FormatOf(file_.Otsikko).bytes);
        return (source_.Size() - place) / static_cast<uint64_t>(file_.ChannelCount * valueBytes);
    }

    bool ReadCompensation() {
        return LueKompensaatio(file_.Otsikko.Text, file_, oddities_) ||
               Refuse("$COMP is for more channels than the file has");
    }

    // Where DATA begins: the header tells, and where it says nothing, $BEGINDATA.
    std::optional<int32_t> DataPlace() const {
        if (header_.dataBegin) {
            return header_.dataBegin;
        }
        const auto place = ParseWholeNumber(Keyword("\\$BEGINDATA"));
        return place && *place > 0 ? place : std::nullopt;
    }

    void ReadData() {
        const DataReport report = ReadEvents();
        if (report.wholeEvents < file_.EventCount) {
            file_.WholeEvents = report.wholeEvents;
        }
    }

    DataReport ReadEvents() {
        const auto place = DataPlace();
        if (!place || static_cast<uint64_t>(*place) >= source_.Size()) {
            if (file_.EventCount > 0) {
                oddities_.Add("the place of the data lies outside the file, so no value is read");
            }
            return {};
        }
        source_.GoTo(static_cast<uint64_t>(*place));
        const DataReport report =
            LueTapahtumat(source_.Stream(), FormatOf(file_.Otsikko), file_.Data);
        NoteData(file_, report, oddities_);
        return report;
    }

    void ConvertLogChannels() {
        for (int channel = 1; channel <= file_.ChannelCount; ++channel) {
            const Kanava& kanava = file_.Channels(channel);
            if (!kanava.IsLog || (!HasOldScale(file_) && kanava.Range <= 1)) {
                continue;  // a range of 1 or less has no decades
            }
            const double divider = HasOldScale(file_)
                                       ? kOldScaleDivider
                                       : Rounded(kanava.Range / std::log10(kanava.Range));
            Convert(file_.Data.OmaSarake(channel), divider);
        }
    }

    static void Convert(std::span<float> values, double divider) {
        const auto linear = [divider](float v) {
            return static_cast<float>(std::pow(10.0, static_cast<double>(v) / divider));
        };
        // Channel numbers repeat: most files have 1024 different ones. What a table of them
        // costs is soon saved.
        constexpr std::size_t kTableSize = 1024;
        std::vector<float> table;
        if (values.size() > kTableSize) {
            for (std::size_t i = 0; i < kTableSize; ++i) {
                table.push_back(linear(static_cast<float>(i)));
            }
        }
        for (float& v : values) {
            const bool inTable = v >= 0 && v < static_cast<float>(table.size()) &&
                                 v == static_cast<float>(static_cast<int>(v));
            v = inTable ? table[static_cast<std::size_t>(v)] : linear(v);
        }
    }

    void ReadDisplay(const ChannelKeywords& keywords) {
        for (int channel = 1; channel <= file_.ChannelCount; ++channel) {
            const std::string_view display = keywords.Value(Kind::kDisplay, channel);
            if (display == "LOG") {
                file_.Channels(channel).IsLog = true;
            } else if (display == "LIN") {
                file_.Channels(channel).IsLog = false;
            }
        }
    }

    InputFile& source_;
    std::string path_;
    int32_t fingerprint_;
    FcsHeader header_;
    double promised_ = 0;  // what $TOT says
    Tiedosto file_;
    FcsOddities oddities_;
    std::string refusal_;
};

}  // namespace

bool OnkoFcs(const std::string& path) {
    InputFile source(path);
    try {
        return source.IsOpen() && IsReadableVersion(source.Read(0, kVersionLength));
    } catch (const std::ios_base::failure&) {
        return false;
    }
}

int32_t TiedostonSormenjalki(const std::string& path) {
    InputFile source(path);
    try {
        return source.IsOpen() ? Fingerprint(source) : 0;
    } catch (const std::ios_base::failure&) {
        return 0;
    }
}

Tiedosto LueFCS(const std::string& path, int32_t fingerprint) {
    InputFile source(path);
    return LueFCS(source, path, fingerprint);
}

Tiedosto LueFCS(InputFile& source, const std::string& path, int32_t fingerprint) {
    const BusyPointer busy;
    if (!source.IsOpen()) {
        return Refused(source.Refusal());
    }
    try {
        return FcsReading(source, path, fingerprint).Read();
    } catch (const std::ios_base::failure& failure) {
        return Refused(ReadFailure(failure));
    } catch (const std::bad_alloc&) {
        Tiedosto refused = Refused("there is not enough memory");
        refused.OutOfMemory = true;
        return refused;
    }
}

bool LisaaKanava(int16_t slot) {
    Tiedosto& file = Tiedostot(slot);
    if (file.ChannelCount == std::numeric_limits<int16_t>::max()) {
        return false;
    }
    const int channels = file.ChannelCount + 1;
    try {
        TapahtumaTaulu<float> compensation;
        compensation.Mitoita(channels, channels);
        for (int into = 1; into < channels; ++into) {
            std::ranges::copy(file.Compensation.Sarake(into), compensation.OmaSarake(into).begin());
        }
        TapahtumaTaulu<float> raw = file.RawData;
        raw.LisaaSarake();
        TapahtumaTaulu<float> data = file.Data;
        data.LisaaSarake();
        file.Channels.Mitoita(channels);
        file.RawData = std::move(raw);
        file.Data = std::move(data);
        file.Compensation = std::move(compensation);
    } catch (const std::bad_alloc&) {
        file.Channels.Mitoita(file.ChannelCount);
        return false;
    }
    file.ChannelCount = static_cast<int16_t>(channels);
    return true;
}

}  // namespace tessarin
