#include "core/FcsText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/FcsKeywords.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"

namespace tessarin {
namespace {

constexpr char kWrittenDelimiter = '\\';
constexpr std::string_view kOpening =
    R"(\$BEGINANALYSIS\0\$ENDANALYSIS\0\$BEGINTEXT\0\$ENDTEXT\0\$NEXTDATA\0\$BEGINDATA\)";
constexpr std::string_view kCytometer = "Tessarin ver ";

constexpr uint64_t kTextBegin = 256;
constexpr uint64_t kUsualDataBegin = 3000;
constexpr uint64_t kMostInHeader = 99999999;  // eight digits

// True for "...$P12N" with the ending "N", and so on.
bool EndsLikeChannelKeyword(std::string_view value, std::string_view ending, bool dollar) {
    if (!value.ends_with(ending)) {
        return false;
    }
    value.remove_suffix(ending.size());
    const std::string_view start = value.substr(0, value.find_last_not_of("0123456789") + 1);
    return start.size() < value.size() && start.ends_with(dollar ? "$P" : "P");
}

// True when a search of the reader would take the end of the value for a keyword that is written
// behind it. The keywords written before any free text are found first.
bool EndsLikeKeyword(std::string_view value) {
    constexpr std::array<std::string_view, 5> kWords = {"$BTIM", "$ETIM", "$COM", "$COMP",
                                                        "AMPLE ID"};
    const auto ends = [value](std::string_view word) { return value.ends_with(word); };
    return std::any_of(kWords.begin(), kWords.end(), ends) ||
           EndsLikeChannelKeyword(value, "N", true) || EndsLikeChannelKeyword(value, "R", true) ||
           EndsLikeChannelKeyword(value, "B", true) || EndsLikeChannelKeyword(value, "E", false) ||
           EndsLikeChannelKeyword(value, "DISPLAY", false);
}

// Free text as a value of TEXT.
std::string Written(std::string_view value) {
    std::string out;
    if (value.starts_with(kDelimiter)) {
        return out;
    }
    char last = 0;
    for (const char c : value) {
        if (c == kWrittenDelimiter) {
            out.append(2, c);
        } else if (c == kDelimiter) {
            out += ' ';
        } else if (c != '\n') {
            out += c;
        } else if (last != '\r') {
            out += '\r';
        }
        last = c;
    }
    return EndsLikeKeyword(out) ? out + ' ' : out;
}

// A factor in percent, with the other sign, cut to four decimals.
void AppendPercent(std::string& text, float factor) {
    constexpr double kCuts = 10000;
    // More of the number than this is not known in single precision. Without it every saving would
    // cut a little off numbers that have no more than four decimals.
    constexpr double kKnown = 0x1p-22;
    const float percent = factor * 100.0F * -1.0F;
    const double scaled = std::isfinite(percent) ? double{percent} * kCuts : 0;
    const double near = Rounded(scaled);
    const double cut = std::fabs(scaled - near) <= std::fabs(scaled) * kKnown ? near : Int(scaled);
    std::array<char, 64> buffer;
    auto* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                              cut / kCuts + 0.0,  // no minus before a zero
                              std::chars_format::fixed, 4)
                    .ptr;
    while (*(end - 1) == '0') {
        --end;
    }
    text.append(buffer.data(), *(end - 1) == '.' ? end - 1 : end);
}

std::string CompensationList(const Tiedosto& file) {
    std::string list = std::to_string(file.ChannelCount);
    // What is too long for TEXT anyway need not be made whole.
    for (int from = 1; from <= file.ChannelCount && list.size() <= kMostInHeader; ++from) {
        for (int into = 1; into <= file.ChannelCount; ++into) {
            list += ',';
            AppendPercent(list, file.Compensation(from, into));
        }
    }
    return list;
}

class Keywords {
  public:
    void Add(std::string_view keyword, std::string_view value) {
        text_ += kWrittenDelimiter;
        text_ += keyword;
        text_ += kWrittenDelimiter;
        text_ += value;
    }
    void AddUnlessEmpty(std::string_view keyword, const std::string& value) {
        if (!value.empty()) {
            Add(keyword, value);
        }
    }
    std::string Closed() { return std::move(text_) + kWrittenDelimiter; }

  private:
    std::string text_;
};

void AddChannels(const Tiedosto& file, Keywords& keywords) {
    for (int channel = 1; channel <= file.ChannelCount; ++channel) {
        const Kanava& kanava = file.Channels(channel);
        const std::string p = "P" + std::to_string(channel);
        keywords.Add("$" + p + "N", Written(kanava.Name));
        keywords.Add("$" + p + "R", std::to_string(kanava.Range));
        keywords.Add("$" + p + "B", "32");
        keywords.Add("$" + p + "E", "0,0");  // the values are linear, whatever the scale
        keywords.Add(p + "DISPLAY", kanava.IsLog ? "LOG" : "LIN");
    }
}

// TEXT up to the value of $ENDDATA.
std::string Opening(uint64_t dataBegin, uint64_t dataEnd) {
    return std::string(kOpening) + std::to_string(dataBegin) + R"(\$ENDDATA\)" +
           std::to_string(dataEnd);
}

std::string Header(uint64_t dataBegin, uint64_t dataEnd) {
    constexpr std::size_t kDigits = 8;
    const bool fits = dataEnd <= kMostInHeader;
    std::string header = "FCS3.0    ";
    for (const uint64_t place : {kTextBegin, dataBegin - 1, fits ? dataBegin : 0,
                                 fits ? dataEnd : 0, uint64_t{0}, uint64_t{0}}) {
        const std::string digits = std::to_string(place);
        header.append(kDigits - digits.size(), ' ').append(digits);
    }
    header.resize(kTextBegin, ' ');
    return header;
}

}  // namespace

std::string WrittenKeywords(const Tiedosto& file) {
    const FcsOtsikko& kept = file.Otsikko;
    Keywords keywords;
    keywords.Add("$CYT", std::string(kCytometer) + std::string(ProgramVersionText));
    keywords.Add("$BYTEORD", "4,3,2,1");
    keywords.Add("$DATATYPE", "F");
    keywords.Add("$TOT", std::to_string(file.EventsFromFile()));
    keywords.Add("$MODE", "L");
    keywords.Add("$PAR", std::to_string(file.ChannelCount));
    AddChannels(file, keywords);
    if (file.Compensate) {
        keywords.Add("$COMP", CompensationList(file));
    }
    keywords.Add("$BTIM", Written(kept.BeginTime));
    keywords.Add("$ETIM", Written(kept.EndTime));
    keywords.AddUnlessEmpty("$COM", Written(kept.Comment));
    keywords.AddUnlessEmpty("SAMPLE ID", Written(kept.SampleId));
    return keywords.Closed();
}

std::optional<std::string> BytesBeforeData(std::string_view keywords, uint64_t dataBytes) {
    uint64_t begin = 0;
    uint64_t needed = kUsualDataBegin;
    std::string opening;
    while (needed > begin) {  // a later place may have more digits, which take more room
        begin = needed;
        opening = Opening(begin, begin + dataBytes - 1);
        needed = kTextBegin + opening.size() + keywords.size();
    }
    if (begin - 1 > kMostInHeader) {
        return std::nullopt;
    }
    std::string bytes = Header(begin, begin + dataBytes - 1);
    bytes.append(opening).append(keywords).resize(begin, ' ');
    return bytes;
}

bool IsOwnText(std::string_view bytes) {
    return bytes.starts_with(kOpening) &&
           bytes.find(R"(\$CYT\)" + std::string(kCytometer)) != std::string_view::npos;
}

std::string TakeOwnText(std::string_view bytes) {
    std::string text(1, kDelimiter);
    std::size_t keyword = text.size();  // where the last keyword begins in `text`, and its value
    std::size_t value = 0;
    bool inValue = false;
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        if (bytes[i] != kWrittenDelimiter) {
            text += bytes[i];
        } else if (!inValue) {
            text += kDelimiter;
            value = text.size();
            inValue = true;
        } else if (i + 1 < bytes.size() && bytes[i + 1] == kWrittenDelimiter) {
            text += kWrittenDelimiter;
            ++i;
        } else {
            if (text.size() == value) {
                text.resize(keyword);
            } else {
                text += kDelimiter;
                keyword = text.size();
            }
            inValue = false;
        }
    }
    return text;
}

}  // namespace tessarin
