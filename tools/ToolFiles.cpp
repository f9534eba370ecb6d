#include "tools/ToolFiles.h"

#include "core/SafeFile.h"
#include "core/Text.h"
#include "mainwindow/SaveQuestion.h"
#include "tools/ToolPack.h"

namespace tessarin {
namespace {

constexpr const char* kFilter = "Tools (*.tsrscript)|*.tsrscript";
constexpr const char* kEnding = ".tsrscript";

}  // namespace

std::string TyokaluKansio(const Platform& services) {
    return services.programFolder + "scripts/";
}

std::optional<AvattuTyokalu> AvaaTyokalu(Dialogs& dialogs, const std::string& folder) {
    constexpr const char* kTitle = "Open tool";
    const std::string path = dialogs.OpenFile({kTitle, kFilter, folder});
    if (path.empty()) {
        return std::nullopt;
    }
    if (OnkoPakattu(path)) {
        dialogs.Message("'" + path + "' is packed, and not meant to be read.", kTitle);
        return std::nullopt;
    }
    const Tyokalu read = LueTyokalu(path);
    if (!read.Valid) {
        dialogs.Message("The tool '" + path + "' could not be read.", kTitle);
        return std::nullopt;
    }
    return AvattuTyokalu{path, KorvaaTeksti(read.text, "\r\n", "\n")};
}

std::string TalletaTyokalu(Dialogs& dialogs, const std::string& start, const std::string& text) {
    constexpr const char* kTitle = "Save tool";
    std::string path = dialogs.SaveFile({kTitle, kFilter, start, kEnding});
    if (!path.empty() && (!OnkoTyokalu(path) || OnkoPakattu(path))) {
        path += kEnding;  // else the menu would not list it
    }
    if (path.empty() || !SaakoKorvata(dialogs, path)) {
        return "";
    }
    const bool ended = text.empty() || text.ends_with('\n');
    SafeFile file(path);
    file.Write(KorvaaTeksti(text + (ended ? "" : "\n"), "\n", "\r\n"));
    const WriteResult result = file.Commit();
    if (result == WriteResult::kDone) {
        return path;
    }
    const char* why = result == WriteResult::kDenied ? ": permission denied." : ".";
    dialogs.Message("The tool '" + path + "' could not be written" + why, kTitle);
    return "";
}

}  // namespace tessarin
