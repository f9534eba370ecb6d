#include "tools/ToolUser.h"

namespace tessarin {

std::string DialogToolUser::Input(const std::string& /*name*/, const std::string& prompt) {
    return dialogs_.Input(prompt, "", "");
}

std::string DialogToolUser::File(const std::string& /*name*/, FileQuestionKind kind,
                                 const std::string& text) {
    if (kind == FileQuestionKind::kFolder) {
        return dialogs_.ChooseFolder("Select folder", text.empty() ? folder_ : text);
    }
    const FileQuestion question{.title = text, .filter = "(*.*)|*.*", .folder = folder_};
    return kind == FileQuestionKind::kOpen ? dialogs_.OpenFile(question)
                                           : dialogs_.SaveFile(question);
}

bool DialogToolUser::Continue(const std::string& /*name*/, const std::string& text) {
    return dialogs_.Ask(text, "", QuestionButtons::kOkCancel);
}

void DialogToolUser::Message(const std::string& text) {
    dialogs_.Message(text, "Message");
}

void DialogToolUser::Abort(const std::string& text, const std::string& title) {
    dialogs_.Message(text, title);
}

}  // namespace tessarin
