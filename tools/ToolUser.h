// Whom a tool asks and tells: the user at the screen, or the answers of a command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Services.h"

namespace tessarin {

/// A file or folder that a question asks for.
enum class FileQuestionKind { kOpen, kSave, kFolder };

class ToolUser {
  public:
    virtual ~ToolUser() = default;

    /// The answer to the question for that variable; empty for Cancel and for an empty answer.
    virtual std::string Input(const std::string& name, const std::string& prompt) = 0;
    /// `text` is the title, or for a folder where to start.
    virtual std::string File(const std::string& name, FileQuestionKind kind,
                             const std::string& text) = 0;
    /// False for Cancel.
    virtual bool Continue(const std::string& name, const std::string& text) = 0;
    /// What the command `message` says; no fault of the run.
    virtual void Message(const std::string& text) = 0;
    /// Why the run stops.
    virtual void Abort(const std::string& text, const std::string& title) = 0;
};

/// The user at the screen.
class DialogToolUser : public ToolUser {
  public:
    /// File dialogs start in `folder` where a question does not say where; empty for that of the
    /// last answer.
    explicit DialogToolUser(Dialogs& dialogs, std::string folder = "")
        : dialogs_(dialogs), folder_(std::move(folder)) {}

    std::string Input(const std::string& name, const std::string& prompt) override;
    std::string File(const std::string& name, FileQuestionKind kind,
                     const std::string& text) override;
    bool Continue(const std::string& name, const std::string& text) override;
    void Message(const std::string& text) override;
    void Abort(const std::string& text, const std::string& title) override;

  private:
    Dialogs& dialogs_;
    std::string folder_;
};

}  // namespace tessarin
