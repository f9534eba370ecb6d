#include "platform/scripted/ScriptedDialogs.h"

namespace tessarin {

void ScriptedDialogs::Message(std::string_view text, std::string_view title) {
    messages.push_back({std::string(text), std::string(title)});
    if (log_ != nullptr) {
        *log_ << title << ": " << text << std::endl;
    }
}

bool ScriptedDialogs::Ask(std::string_view text, std::string_view title,
                          QuestionButtons /*buttons*/) {
    questions.push_back({std::string(text), std::string(title)});
    if (answers.empty()) {
        return true;
    }
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string ScriptedDialogs::NextText(std::string_view text, std::string_view title,
                                      std::string_view preset) {
    questions.push_back({std::string(text), std::string(title)});
    lastPreset = preset;
    if (texts.empty()) {
        return "";
    }
    std::string answer = texts.front();
    texts.pop_front();
    return answer;
}

std::string ScriptedDialogs::Input(std::string_view prompt, std::string_view title,
                                   std::string_view preset) {
    return NextText(prompt, title, preset);
}

std::string ScriptedDialogs::OpenFile(const FileQuestion& question) {
    return NextText(question.filter, question.title, question.presetName);
}

std::string ScriptedDialogs::SaveFile(const FileQuestion& question) {
    return NextText(question.filter, question.title, question.presetName);
}

std::optional<Rgb> ScriptedDialogs::ChooseColor(Rgb /*current*/) {
    if (colors.empty()) {
        return std::nullopt;
    }
    const Rgb color = colors.front();
    colors.pop_front();
    return color;
}

}  // namespace tessarin
