// Everything that asks the user something and waits for the answer.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/Color.h"

namespace tessarin {

enum class QuestionButtons { kOkCancel, kYesNo };

/// The answer that Enter gives: the one after which nothing is lost. OK counts as yes.
enum class SafeAnswer { kYes, kNo };

/// A file dialog. The filter is written "Name (*.ext)|*.ext", pairs joined by "|".
struct FileQuestion {
    std::string title;
    std::string filter;
    std::string presetName{};
    std::string ending{};  ///< a name to save under that has no ending gets this one
    std::string folder{};  ///< where to start; empty for the folder of the last answer
};

/// A button that boxes carry beside their own, such as "Stop" while a tool runs.
struct ExtraButton {
    std::string caption{};  ///< empty for no button
    std::function<void()> onPress{};
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// Messages, questions and input boxes carry that button from now on; gives the one before.
    /// Pressing it closes the box as Cancel does.
    virtual ExtraButton SetExtraButton(ExtraButton button) = 0;

    // A box without a title of its own has the program's name there.

    /// Shows a message until the user presses OK. Lines of any text here end in CR, LF or both.
    virtual void Message(std::string_view text, std::string_view title) = 0;
    /// True for OK or Yes.
    virtual bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons,
                     SafeAnswer safe) = 0;
    /// A question after whose yes nothing is lost.
    bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons) {
        return Ask(text, title, buttons, SafeAnswer::kYes);
    }
    /// The text given, empty for Cancel and for an empty answer.
    virtual std::string Input(std::string_view prompt, std::string_view title,
                              std::string_view preset) = 0;
    /// The path chosen; empty for Cancel.
    virtual std::string OpenFile(const FileQuestion& question) = 0;
    virtual std::string SaveFile(const FileQuestion& question) = 0;
    /// The folder chosen, ending in "/"; empty for Cancel. It starts in the folder `start`, or in
    /// that of the last answer when there is no such folder.
    virtual std::string ChooseFolder(std::string_view title, std::string_view start) = 0;
    /// The colour chosen; nothing for Cancel.
    virtual std::optional<Rgb> ChooseColor(Rgb current) = 0;
};

}  // namespace tessarin
