#include "sheets/SheetText.h"

#include <algorithm>

#include "core/InputFile.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "sheets/SheetKeys.h"
#include "sheets/SheetSections.h"

namespace tessarin {
namespace {

constexpr std::string_view kContent = "content:";
constexpr std::size_t kLongestSheet = 64U << 20;  // more than any session could fill
constexpr std::string_view kDownloadPage = "https://tessarin.example/download";

// The text in front of the files of a package, and where those begin; without such a place, which
// leaves `content` as it is, all is text. Gives why there is no such text.
std::string ReadText(InputFile& in, std::string& text, int64_t& content) {
    constexpr uint64_t kChunk = 1 << 16;
    std::size_t searched = 0;
    while (text.size() < in.Size()) {
        const std::string chunk = in.Read(text.size(), kChunk);
        if (chunk.empty()) {
            break;
        }
        text += chunk;
        for (auto at = text.find(kContent, searched); at != std::string::npos;
             at = text.find(kContent, at + 1)) {
            if (at == 0 || text[at - 1] == '\n' || text[at - 1] == '\r') {
                content = static_cast<int64_t>(at + kContent.size());
                text.resize(at);
                return "";
            }
        }
        if (text.size() > kLongestSheet) {
            return "its text is too long";
        }
        searched = text.size() < kContent.size() ? 0 : text.size() - kContent.size() + 1;
    }
    return text.empty() ? "it is empty" : "";
}

std::string ReadFile(const std::string& path, std::string& text, int64_t& content) {
    InputFile in(path);
    try {
        return in.IsOpen() ? ReadText(in, text, content) : in.Refusal();
    } catch (const std::ios_base::failure& failure) {
        return ReadFailure(failure);
    }
}

// A "#" anywhere makes a comment, but in the path of a file, where it is a letter like others.
bool IsComment(std::string_view line) {
    return !line.starts_with("file.") && line.find('#') != std::string_view::npos;
}

std::vector<std::string> DataLines(const std::string& text) {
    const std::string plain = KorvaaTeksti(KorvaaTeksti(text, "\r\n", "\n"), "\r", "\n");
    std::vector<std::string> lines;
    for (const std::string_view line : Split(plain, '\n')) {
        if (line.find(':') != std::string_view::npos && !IsComment(line)) {
            lines.push_back(DecodeText(line));
        }
    }
    return lines;
}

bool IsSheetLine(const std::string& line) {
    static constexpr const char* kWords[] = {"general", "population", "definition", "file",
                                             "window"};
    const SheetLine parts(line);
    const bool known =
        std::find(std::begin(kWords), std::end(kWords), parts.Field(1)) != std::end(kWords);
    return known || OnkoOsa(parts.Field(1));
}

bool IsNewer(const std::vector<std::string>& lines) {
    const auto found = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find("general.version") != std::string::npos;
    });
    if (found == lines.end()) {
        return false;
    }
    const auto numbers = Split(SheetLine(*found).value, '.');
    const int first = ParseWholeNumber(numbers[0]).value_or(0);
    const int second = numbers.size() > 1 ? ParseWholeNumber(numbers[1]).value_or(0) : 0;
    return first > ProgramVersion[0] || (first == ProgramVersion[0] && second > ProgramVersion[1]);
}

}  // namespace

SheetFile LueNakymatiedosto(const std::string& path) {
    SheetFile sheet;
    sheet.path = path;
    std::string text;
    const std::string why = ReadFile(path, text, sheet.content);
    if (why.empty()) {
        sheet.lines = DataLines(text);
    }
    if (std::none_of(sheet.lines.begin(), sheet.lines.end(), IsSheetLine)) {
        sheet.refusal = "The file '" + path + "' could not be read as an analysis sheet" +
                        (why.empty() ? "." : ": " + why);
        sheet.title = "Load error";
    } else if (IsNewer(sheet.lines)) {
        sheet.refusal =
            "The analysis sheet you trying to open has been created with newer version of Tessarin "
            "than you have.\nPlease, download the newest version from the address " +
            std::string(kDownloadPage);
        sheet.title = "Wrong version";
    }
    sheet.package = std::find(sheet.lines.begin(), sheet.lines.end(), "general.style:package") !=
                    sheet.lines.end();
    return sheet;
}

}  // namespace tessarin
