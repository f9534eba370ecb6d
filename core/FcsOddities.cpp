#include "core/FcsOddities.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

std::string Quoted(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    std::string quoted(1, '\'');
    quoted.append(text.substr(0, kLongest));
    quoted.append(text.size() > kLongest ? "...'" : "'");
    return quoted;
}

// "P1" or "P1, P4, P6": the channels for which `odd` is true.
std::string Channels(const Tiedosto& file, const std::function<bool(int)>& odd) {
    constexpr int kMostNamed = 6;
    std::string list;
    int count = 0;
    for (int channel = 1; channel <= file.ChannelCount; ++channel) {
        if (!odd(channel)) {
            continue;
        }
        if (++count <= kMostNamed) {
            list += (list.empty() ? "P" : ", P") + std::to_string(channel);
        }
    }
    if (count > kMostNamed) {
        list += " and " + std::to_string(count - kMostNamed) + " more";
    }
    return list;
}

void AddForChannels(const Tiedosto& file, FcsOddities& oddities, std::string_view phrase,
                    const std::function<bool(int)>& odd) {
    const std::string list = Channels(file, odd);
    if (!list.empty()) {
        oddities.Add(std::string(phrase) + " (" + list + ")");
    }
}

// The number of decades that a $PnE value names; 0 for a linear channel.
double Decades(std::string_view value) {
    return ParseNumber(Split(value, ',')[0]).value_or(0);
}

void NoteByteOrder(const FcsOtsikko& header, FcsOddities& oddities) {
    if (header.DataType == "F" && header.ByteOrder != "1,2,3,4" && header.ByteOrder != "4,3,2,1") {
        oddities.Add("the byte order " + Quoted(header.ByteOrder) + " was read as 4,3,2,1");
    }
}

std::string WhyNotRead(const FcsOtsikko& header) {
    if (header.DataType != "I") {
        return "the data type " + Quoted(header.DataType) + " is not read";
    }
    if (header.Bits != 16 && header.Bits != 32) {
        return "integers of " + std::to_string(header.Bits) + " bits are not read";
    }
    return "the byte order " + Quoted(header.ByteOrder) + " is not read";
}

template <class Odd>
int64_t CountValues(const Tiedosto& file, int channel, Odd odd) {
    const auto values = file.Data.Sarake(channel);
    return std::count_if(values.begin(), values.end(), odd);
}

}  // namespace

std::string FcsOddities::Line() const {
    std::string line;
    for (const std::string& phrase : phrases_) {
        line += (line.empty() ? "" : "; ") + phrase;
    }
    return line;
}

void NoteFormat(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities) {
    const FcsOtsikko& header = file.Otsikko;
    const ValueFormat format = FormatOf(header);
    if (format.kind == ValueFormat::Kind::kNotRead) {
        oddities.Add(WhyNotRead(header) + ", so no value is read");
    }
    NoteByteOrder(header, oddities);
    using Kind = ChannelKeywords::Kind;
    if (format.kind != ValueFormat::Kind::kNotRead) {
        const int bits = format.bytes * 8;
        AddForChannels(file, oddities,
                       "values of another width were read as " + std::to_string(bits) + " bits",
                       [&](int channel) {
                           const auto own = ParseNumber(keywords.Value(Kind::kBits, channel));
                           return own && *own != bits;
                       });
    }
    const std::string_view mode = TrimBlanks(HaeAvainsana("\\$MODE", header.Text));
    if (!mode.empty() && mode != "L") {
        oddities.Add("the mode " + Quoted(mode) + " was read as list mode");
    }
    const auto next = ParseNumber(HaeAvainsana("\\$NEXTDATA", header.Text));
    if (next && *next > 0) {
        oddities.Add("only the first of the file's data sets is shown");
    }
}

void NoteScales(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities) {
    const auto decades = [&](int channel) {
        return Decades(keywords.Value(ChannelKeywords::Kind::kLog, channel));
    };
    const auto isLog = [&](int channel) {
        return keywords.Value(ChannelKeywords::Kind::kLog, channel).find('4') !=
               std::string_view::npos;
    };
    AddForChannels(file, oddities, "a log scale of other than 4 decades is shown linear",
                   [&](int channel) { return decades(channel) > 0 && !isLog(channel); });
    AddForChannels(file, oddities, "a scale that is not of 4 decades was read as if it were",
                   [&](int channel) { return isLog(channel) && decades(channel) != 4; });
    if (file.Otsikko.DataType == "F") {
        AddForChannels(file, oddities,
                       "floating-point values with a log $PnE were converted, and may have been "
                       "linear already",
                       isLog);
    }
}

void NoteRanges(const Tiedosto& file, const ChannelKeywords& keywords, FcsOddities& oddities) {
    constexpr int32_t kLargest = std::numeric_limits<int32_t>::max();
    AddForChannels(file, oddities, "a range above " + std::to_string(kLargest) + " was cut to it",
                   [&](int channel) {
                       const auto told =
                           ParseNumber(keywords.Value(ChannelKeywords::Kind::kRange, channel));
                       return told && Rounded(*told) > kLargest;
                   });
    AddForChannels(file, oddities, "a range that gives no scale", [&](int channel) {
        const Kanava& kanava = file.Channels(channel);
        return kanava.Range < 1 || (kanava.IsLog && kanava.Range < 2);
    });
}

void NoteBytesLeft(const Tiedosto& file, double events, uint64_t fileSize, FcsOddities& oddities) {
    const FcsOtsikko& header = file.Otsikko;
    const double eventBytes = FormatOf(header).bytes * file.ChannelCount;
    if (header.DataBegin <= 0 || header.DataEnd <= 0 || eventBytes == 0) {
        return;
    }
    const double end = std::min(header.DataEnd + 1.0, static_cast<double>(fileSize));
    const double bytes = end - header.DataBegin;
    if (bytes - events * eventBytes > eventBytes) {
        oddities.Add("the data take " + NumberText(bytes) + " bytes, of which $TOT and $PAR tell " +
                     NumberText(events * eventBytes) + "; the rest is not shown");
    }
}

void NoteData(const Tiedosto& file, const DataReport& report, FcsOddities& oddities) {
    if (FormatOf(file.Otsikko).kind == ValueFormat::Kind::kNotRead) {
        return;
    }
    if (report.wholeEvents < file.EventCount) {
        oddities.Add("the data end early: only " + std::to_string(report.wholeEvents) + " of " +
                     std::to_string(file.EventCount) +
                     " events are whole, and the others repeat the last bytes");
    }
    if (report.cutIntegers) {
        oddities.Add("integers of more than 24 bits were cut to their lower 24");
    }
}

void NoteValuesAboveRange(const Tiedosto& file, const ChannelKeywords& keywords,
                          FcsOddities& oddities) {
    if (FormatOf(file.Otsikko).kind != ValueFormat::Kind::kInteger) {
        return;
    }
    AddForChannels(file, oddities, "stored values above the channel's range", [&](int channel) {
        const auto range = static_cast<float>(
            ParseNumber(keywords.Value(ChannelKeywords::Kind::kRange, channel)).value_or(0));
        return CountValues(file, channel, [range](float v) { return v > range; }) > 0;
    });
}

void NoteValuesNotFinite(const Tiedosto& file, FcsOddities& oddities) {
    AddForChannels(file, oddities, "values that are infinite or no numbers", [&](int channel) {
        return CountValues(file, channel, [](float v) { return !std::isfinite(v); }) > 0;
    });
}

}  // namespace tessarin
