// Everything that asks the user something and waits for the answer.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/Color.h"

namespace tessarin {

enum class QuestionButtons { kOkCancel, kYesNo };

/// A file dialog. The filter is written "Name (*.ext)|*.ext", pairs joined by "|".
struct FileQuestion {
    std::string title;
    std::string filter;
    std::string presetName{};
    std::string ending{};  ///< a name to save under that has no ending gets this one
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

    /// Shows a message until the user presses OK. Lines of any text here end in CR, LF or both.
    virtual void Message(std::string_view text, std::string_view title) = 0;
    /// True for OK or Yes.
    virtual bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons) = 0;
    /// The text given, empty for Cancel and for an empty answer.
    virtual std::string Input(std::string_view prompt, std::string_view title,
                              std::string_view preset) = 0;
    /// The path chosen; empty for Cancel.
    virtual std::string OpenFile(const FileQuestion& question) = 0;
    virtual std::string SaveFile(const FileQuestion& question) = 0;
    /// The colour chosen; nothing for Cancel.
    virtual std::optional<Rgb> ChooseColor(Rgb current) = 0;
};

}  // namespace tessarin
