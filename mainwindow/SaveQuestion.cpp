#include "mainwindow/SaveQuestion.h"

#include <filesystem>

namespace tessarin {

std::string KysyTallennuspaikka(Dialogs& dialogs, const FileQuestion& question) {
    std::string path = dialogs.SaveFile(question);
    if (!path.empty() && std::filesystem::path(path).extension().empty()) {
        path += question.ending;
    }
    return !path.empty() && SaakoKorvata(dialogs, path) ? path : "";
}

bool SaakoKorvata(Dialogs& dialogs, const std::string& path) {
    std::error_code error;
    return !std::filesystem::exists(path, error) ||
           dialogs.Ask("File already exists. Do you want to overwrite it?", "File already exists",
                       QuestionButtons::kOkCancel, SafeAnswer::kNo);
}

}  // namespace tessarin
