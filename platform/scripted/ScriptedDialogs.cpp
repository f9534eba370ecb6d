#include "platform/scripted/ScriptedDialogs.h"

#include <utility>

namespace tessarin {

ExtraButton ScriptedDialogs::SetExtraButton(ExtraButton button) {
    return std::exchange(extra_, std::move(button));
}

bool ScriptedDialogs::PressExtra() const {
    if (!pressExtra || extra_.caption.empty()) {
        return false;
    }
    extra_.onPress();
    return true;
}

void ScriptedDialogs::Message(std::string_view text, std::string_view title) {
    messages.push_back({std::string(text), std::string(title), extra_.caption});
    if (log_ != nullptr) {
        *log_ << title << ": " << text << std::endl;
    }
    PressExtra();
}

bool ScriptedDialogs::Ask(std::string_view text, std::string_view title,
                          QuestionButtons /*buttons*/, SafeAnswer safe) {
    lastSafe = safe;
    questions.push_back({std::string(text), std::string(title), extra_.caption});
    if (PressExtra()) {
        return false;
    }
    if (answers.empty()) {
        return true;
    }
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string ScriptedDialogs::NextText(std::string_view text, std::string_view title,
                                      std::string_view preset) {
    questions.push_back({std::string(text), std::string(title), ""});
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
    std::string text = NextText(prompt, title, preset);
    questions.back().extra = extra_.caption;
    return PressExtra() ? "" : text;
}

std::string ScriptedDialogs::OpenFile(const FileQuestion& question) {
    lastFolder = question.folder;
    return NextText(question.filter, question.title, question.presetName);
}

std::string ScriptedDialogs::SaveFile(const FileQuestion& question) {
    lastFolder = question.folder;
    return NextText(question.filter, question.title, question.presetName);
}

std::string ScriptedDialogs::ChooseFolder(std::string_view title, std::string_view start) {
    lastFolder = start;
    return NextText("", title, "");
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
