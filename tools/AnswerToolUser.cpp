#include "tools/AnswerToolUser.h"

#include <filesystem>
#include <system_error>

namespace tessarin {

const std::string* AnswerToolUser::Find(const std::string& name) const {
    auto found = answers_.find(name);
    if (found == answers_.end() && name.starts_with('$')) {
        found = answers_.find(name.substr(1));
    }
    return found == answers_.end() ? nullptr : &found->second;
}

std::string AnswerToolUser::Input(const std::string& name, const std::string& prompt) {
    if (const std::string* answer = Find(name)) {
        return *answer;
    }
    return others_ != nullptr ? others_->Input(name, prompt) : "";
}

std::string AnswerToolUser::File(const std::string& name, FileQuestionKind kind,
                                 const std::string& text) {
    if (const std::string* answer = Find(name)) {
        // A folder named without its last stroke would be taken for a file in the folder above.
        std::error_code error;
        const bool bare = kind == FileQuestionKind::kFolder && !answer->ends_with('/') &&
                          std::filesystem::is_directory(*answer, error);
        return *answer + (bare ? "/" : "");
    }
    return others_ != nullptr ? others_->File(name, kind, text) : "";
}

bool AnswerToolUser::Continue(const std::string& name, const std::string& text) {
    if (const std::string* answer = Find(name)) {
        return *answer != "cancel";
    }
    return others_ == nullptr || others_->Continue(name, text);
}

void AnswerToolUser::Message(const std::string& text) {
    if (others_ != nullptr) {
        others_->Message(text);
    } else {
        log_ << "Message: " << text << std::endl;
    }
}

void AnswerToolUser::Abort(const std::string& text, const std::string& title) {
    dialogs_.Message(text, title);
}

}  // namespace tessarin
