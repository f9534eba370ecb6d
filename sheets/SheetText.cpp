#include "sheets/SheetText.h"

#include <algorithm>
#include <fstream>
#include <sstream>

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

// The text in front of the files of a package, and where those begin; a missing one is all text.
bool ReadText(const std::string& path, std::string& text, int64_t& content) {
    std::ifstream in(path, std::ios::binary);
    std::string chunk(1 << 16, '\0');
    std::size_t searched = 0;
    while (in && text.size() < kLongestSheet) {
        in.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        text.append(chunk.data(), static_cast<std::size_t>(in.gcount()));
        for (auto at = text.find(kContent, searched); at != std::string::npos;
             at = text.find(kContent, at + 1)) {
            if (at == 0 || text[at - 1] == '\n' || text[at - 1] == '\r') {
                content = static_cast<int64_t>(at + kContent.size());
                text.resize(at);
                return true;
            }
        }
        searched = text.size() < kContent.size() ? 0 : text.size() - kContent.size() + 1;
    }
    return in.eof() && !text.empty();
}

// A "#" anywhere makes a comment, but in the path of a file, where it is a letter like others.
bool IsComment(std::string_view line) {
    return !line.starts_with("file.") && line.find('#') != std::string_view::npos;
}

std::vector<std::string> DataLines(const std::string& text) {
    const std::string plain = KorvaaTeksti(KorvaaTeksti(text, "\r\n", "\n"), "\r", "\n");
    std::vector<std::string> lines;
    for (const std::string_view line : Split(plain, '\n')) {
        if (!line.empty() && !IsComment(line)) {
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
    return line.find(':') != std::string::npos && (known || OnkoOsa(parts.Field(1)));
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
    if (ReadText(path, text, sheet.content)) {
        sheet.lines = DataLines(text);
    }
    if (std::none_of(sheet.lines.begin(), sheet.lines.end(), IsSheetLine)) {
        sheet.refusal = "The file '" + path + "' could not be read as an analysis sheet.";
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
