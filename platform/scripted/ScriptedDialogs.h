// Dialogs that nobody sees: answers come from a list, and what was shown is kept.
//
// Tests script them; a headless run lets them write each message to standard error.
#pragma once

#include <deque>
#include <ostream>
#include <string>
#include <vector>

#include "platform/Dialogs.h"

namespace tessarin {

class ScriptedDialogs : public Dialogs {
  public:
    struct Shown {
        std::string text;
        std::string title;
        std::string extra{};  ///< the caption of the extra button, if there was one
    };

    /// With a stream each message is also written there, as "TITLE: TEXT".
    explicit ScriptedDialogs(std::ostream* log = nullptr) : log_(log) {}

    ExtraButton SetExtraButton(ExtraButton button) override;
    void Message(std::string_view text, std::string_view title) override;
    using Dialogs::Ask;
    /// Takes the next of `answers`; OK or Yes when there is none.
    bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons,
             SafeAnswer safe) override;
    /// These take the next of `texts`; empty, as for Cancel, when there is none.
    std::string Input(std::string_view prompt, std::string_view title,
                      std::string_view preset) override;
    std::string OpenFile(const FileQuestion& question) override;
    std::string SaveFile(const FileQuestion& question) override;
    std::string ChooseFolder(std::string_view title, std::string_view start) override;
    /// Takes the next of `colors`; Cancel when there is none.
    std::optional<Rgb> ChooseColor(Rgb current) override;

    bool pressExtra = false;  ///< each box that has an extra button has it pressed
    std::deque<bool> answers;
    std::deque<std::string> texts;
    std::deque<Rgb> colors;

    std::vector<Shown> messages;
    std::vector<Shown> questions;  ///< of any kind: text or filter, and title
    std::string lastPreset;        ///< what the last input box or file dialog started with
    std::string lastFolder;        ///< where the last file or folder dialog started
    SafeAnswer lastSafe = SafeAnswer::kYes;

  private:
    std::string NextText(std::string_view text, std::string_view title, std::string_view preset);
    /// True when the extra button was pressed.
    bool PressExtra() const;

    std::ostream* log_;
    ExtraButton extra_;
};

}  // namespace tessarin
