// The window of tools for tests: it keeps what the program did to it.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/ToolForm.h"

namespace tessarin {

class ScriptedToolForm : public ToolForm {
  public:
    /// `gone` is called when the form is destroyed.
    ScriptedToolForm(ToolFormEvents& newEvents, std::function<void()> gone)
        : events(newEvents), gone_(std::move(gone)) {}
    ~ScriptedToolForm() override { gone_(); }

    void ShowSmall() override { state = "small"; }
    void ShowFull() override {
        state = "full";
        events.Form_Activate();
    }
    void Hide() override { state = "hidden"; }
    void SetText(std::string_view newText) override { text = newText; }
    std::string Text() const override { return text; }
    std::string SelectedText() const override { return selected; }
    void SetVariables(std::string_view list) override { variables = list; }
    void SetExecuteCaption(std::string_view newCaption) override { caption = newCaption; }
    void SetCursorPlace(std::string_view place) override { cursorPlace = place; }

    ToolFormEvents& events;
    std::string state = "hidden";  ///< or "small" or "full"
    std::string text;
    std::string selected;
    std::string variables;
    std::string caption = "Execute";
    std::string cursorPlace;

  private:
    std::function<void()> gone_;
};

}  // namespace tessarin
