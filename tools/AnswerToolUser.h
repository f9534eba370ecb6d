// Answers to a tool's questions that are known before it runs.
#pragma once

#include <map>
#include <ostream>
#include <string>

#include "tools/ToolUser.h"

namespace tessarin {

class AnswerToolUser : public ToolUser {
  public:
    /// Answers by variable, with or without "$" in front; "cancel" is the answer to a question that
    /// goes on or stops.
    using Answers = std::map<std::string, std::string>;

    /// Questions without an answer go to `others`; nullptr when nobody is there. What tools say is
    /// then written to `log`.
    AnswerToolUser(Answers answers, Dialogs& dialogs, ToolUser* others, std::ostream& log)
        : answers_(std::move(answers)), dialogs_(dialogs), others_(others), log_(log) {}

    std::string Input(const std::string& name, const std::string& prompt) override;
    std::string File(const std::string& name, FileQuestionKind kind,
                     const std::string& text) override;
    bool Continue(const std::string& name, const std::string& text) override;
    void Message(const std::string& text) override;
    void Abort(const std::string& text, const std::string& title) override;

  private:
    const std::string* Find(const std::string& name) const;

    Answers answers_;
    Dialogs& dialogs_;
    ToolUser* others_;
    std::ostream& log_;
};

}  // namespace tessarin
