#include "core/TXTReader.h"

#include <algorithm>
#include <limits>
#include <new>
#include <optional>
#include <string_view>

#include "core/BusyPointer.h"
#include "core/FCSReader.h"
#include "core/InputFile.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/TableSize.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr int32_t kTextRange = 1023;  // of every channel of a text table

constexpr uint64_t kLargestTable = uint64_t{2} << 30U;

TxtTulos Refused(std::string why) {
    TxtTulos refused;
    refused.file.Refusal = std::move(why);
    return refused;
}

// Gives the lines of a text one after the other, without their ends.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    std::string_view Next() {
        const std::size_t end = rest_.find('\n');
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return line;
    }

  private:
    std::string_view rest_;
};

// Gives the cells of a line one after the other.
class Cells {
  public:
    explicit Cells(std::string_view line) : rest_(line) {}

    bool AtEnd() const { return ended_; }

    // A quoted cell comes with its quotes and may hold tabs.
    std::string_view Next() {
        const std::size_t end = rest_.starts_with('"') ? QuotedEnd() : rest_.find('\t');
        const std::string_view cell = rest_.substr(0, end);
        ended_ = end == std::string_view::npos;
        rest_.remove_prefix(ended_ ? rest_.size() : end + 1);
        return cell;
    }

  private:
    // Where the cell ends that begins with a quote: behind the quote that closes it. A quote that
    // nothing closes, or that text follows, is an ordinary letter.
    std::size_t QuotedEnd() const {
        for (std::size_t at = rest_.find('"', 1); at != std::string_view::npos;
             at = rest_.find('"', at + 2)) {
            const std::string_view behind = rest_.substr(at + 1);
            if (behind.empty()) {
                return std::string_view::npos;
            }
            if (!behind.starts_with('"')) {
                return behind.starts_with('\t') ? at + 1 : rest_.find('\t');
            }
        }
        return rest_.find('\t');
    }

    std::string_view rest_;
    bool ended_ = false;
};

bool IsQuoted(std::string_view cell) {
    return cell.size() > 1 && cell.starts_with('"') && cell.ends_with('"');
}

std::string CellText(std::string_view cell) {
    if (!IsQuoted(cell)) {
        return DecodeText(cell);
    }
    return DecodeText(KorvaaTeksti(cell.substr(1, cell.size() - 2), "\"\"", "\""));
}

// `comma` becomes True when the number had a decimal comma.
std::optional<double> CellNumber(std::string_view cell, bool& comma) {
    comma = false;
    if (IsQuoted(cell)) {
        cell = cell.substr(1, cell.size() - 2);
    }
    const auto number = ParseNumber(cell);
    constexpr std::size_t kLongestNumber = 64;
    if (number || cell.size() > kLongestNumber || cell.find('.') != std::string_view::npos ||
        std::count(cell.begin(), cell.end(), ',') != 1) {
        return number;
    }
    std::string withPoint(cell);
    withPoint[withPoint.find(',')] = '.';
    const auto read = ParseNumber(withPoint);
    comma = read.has_value();
    return read;
}

// One reading of one table; its steps stand in the order in which they run.
class TxtReading {
  public:
    TxtReading(std::string path, std::string text)
        : path_(std::move(path)), text_(std::move(text)), lines_(WithoutMark(text_)) {}

    TxtTulos Read() {
        if (lines_.AtEnd()) {
            return Refused("it is empty");
        }
        if (!ReadTitles()) {
            return Refused("its first line names no channel, or more than 32767");
        }
        if (!SizeTables()) {
            return Refused("its tables would be many times larger than the file");
        }
        for (int32_t event = 1; event <= file_.EventCount; ++event) {
            ReadRow(event);
        }
        file_.Data = file_.RawData;
        PathParts path = SplitPath(path_);
        file_.FileName = std::move(path.name);
        file_.Folder = std::move(path.folder);
        // 0, which the sum of a small table can be, would mark the slot as free.
        file_.Fingerprint = std::max(1, TiedostonSormenjalki(path_));
        file_.Oddities = Oddities();
        file_.Valid = true;
        return {std::move(file_), badCells_};
    }

  private:
    static std::string_view WithoutMark(std::string_view text) {
        constexpr std::string_view kMark = "\xef\xbb\xbf";
        return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
    }

    bool ReadTitles() {
        const std::string_view line = lines_.Next();
        Cells cells(line);
        const std::string first = CellText(Cells(line).Next());
        file_.HasRowNames = first == "NAME" || first == "Name" || first == "name";
        if (file_.HasRowNames) {
            cells.Next();
        }
        const auto tabs = std::count(line.begin(), line.end(), '\t');
        if (tabs >= std::numeric_limits<int16_t>::max() || cells.AtEnd()) {
            return false;
        }
        while (!cells.AtEnd()) {
            file_.Channels.Mitoita(file_.Channels.size() + 1);
            file_.Channels(file_.Channels.size()) = {CellText(cells.Next()), false, kTextRange};
        }
        file_.ChannelCount = static_cast<int16_t>(file_.Channels.size());
        return true;
    }

    bool SizeTables() {
        int64_t rows = 0;
        for (Lines rest = lines_; !rest.AtEnd(); rest.Next()) {
            ++rows;
        }
        rows_ = rows;
        rows = std::min<int64_t>(rows, MaxLoadedEvents);
        if (!OvatkoTaulutJarkevat(rows, file_.ChannelCount, text_.size())) {
            return false;
        }
        file_.EventCount = static_cast<int32_t>(rows);
        file_.RawData.Mitoita(file_.EventCount, file_.ChannelCount);
        file_.Compensation.Mitoita(file_.ChannelCount, file_.ChannelCount);
        file_.Membership.Mitoita(file_.EventCount, kPopulationSlots);
        file_.RowNames.Mitoita(file_.HasRowNames ? file_.EventCount : 0);
        return true;
    }

    void ReadRow(int32_t event) {
        Cells cells(lines_.Next());
        if (file_.HasRowNames) {
            file_.RowNames(event) = CellText(cells.Next());
        }
        for (int channel = 1; channel <= file_.ChannelCount; ++channel) {
            bool comma = false;
            const auto number =
                cells.AtEnd() ? std::optional<double>() : CellNumber(cells.Next(), comma);
            badCells_ += number ? 0 : 1;
            commaCells_ += comma ? 1 : 0;
            file_.RawData.Aseta(event, channel, static_cast<float>(number.value_or(0)));
        }
    }

    // What may have been meant otherwise than it was read.
    std::string Oddities() const {
        std::string text;
        if (rows_ > file_.EventCount) {
            text = "only the first " + std::to_string(file_.EventCount) + " of " +
                   std::to_string(rows_) + " rows are loaded";
        }
        if (commaCells_ > 0) {
            text += (text.empty() ? "" : "; ") + std::to_string(commaCells_) +
                    " cells had a comma, which was read as the decimal point";
        }
        return text;
    }

    std::string path_;
    std::string text_;
    Lines lines_;
    Tiedosto file_;
    int64_t rows_ = 0;
    int64_t badCells_ = 0;
    int64_t commaCells_ = 0;
};

}  // namespace

TxtTulos LueTXT(const std::string& path) {
    InputFile source(path);
    return LueTXT(source, path);
}

TxtTulos LueTXT(InputFile& source, const std::string& path) {
    const BusyPointer busy;
    try {
        WholeFile read = ReadWhole(source, kLargestTable);
        return read.refusal.empty() ? TxtReading(path, std::move(read.bytes)).Read()
                                    : Refused(std::move(read.refusal));
    } catch (const std::bad_alloc&) {
        TxtTulos refused = Refused("there is not enough memory");
        refused.file.OutOfMemory = true;
        return refused;
    }
}

std::string TaulukkoTekstina(const Tiedosto& file) {
    std::string text;
    if (file.HasRowNames) {
        text += "\t";
        for (const Kanava& channel : file.Channels) {
            text += channel.Name + "\t";
        }
        text += "\n";
    }
    for (int32_t event = 1; event <= file.EventCount; ++event) {
        if (file.HasRowNames) {
            text += file.RowNames(event) + "\t";
        }
        for (int channel = 1; channel <= file.ChannelCount; ++channel) {
            AppendNumber(text, file.Data(event, channel));
            text += '\t';
        }
        text += '\n';
    }
    return text;
}

}  // namespace tessarin
