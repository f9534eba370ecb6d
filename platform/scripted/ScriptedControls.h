// Controls for tests and headless stand-ins: they keep what the program did to them, and a test
// plays the user.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

namespace tessarin {

/// What every scripted control keeps.
struct ScriptedState {
    ControlSpec spec;
    bool visible = true;
    bool enabled = true;
};

/// `Kind` is the interface that it stands in for.
template <class Kind>
class ScriptedControl : public Kind {
  public:
    explicit ScriptedControl(const ControlSpec& spec) { state.spec = spec; }
    void SetPlace(const PixelBox& place) override { state.spec.place = place; }
    void SetVisible(bool visible) override { state.visible = visible; }
    void SetEnabled(bool enabled) override { state.enabled = enabled; }

    ScriptedState state;
};

class ScriptedButton : public ScriptedControl<Button> {
  public:
    explicit ScriptedButton(const ControlSpec& spec)
        : ScriptedControl(spec), caption(spec.caption) {}
    void SetCaption(std::string_view newCaption) override { caption = newCaption; }
    void Click() const { onClick(); }

    std::string caption;
};

class ScriptedLabel : public ScriptedControl<Label> {
  public:
    explicit ScriptedLabel(const ControlSpec& spec) : ScriptedControl(spec), text(spec.caption) {}
    void SetText(std::string_view newText) override { text = newText; }

    std::string text;
};

class ScriptedTextField : public ScriptedControl<TextField> {
  public:
    using ScriptedControl::ScriptedControl;
    void SetText(std::string_view newText) override { text = newText; }
    std::string Text() const override { return text; }

    std::string text;
};

class ScriptedTextBox : public ScriptedControl<TextBox> {
  public:
    using ScriptedControl::ScriptedControl;
    void SetText(std::string_view newText) override { text = newText; }
    std::string Text() const override { return text; }
    std::string SelectedText() const override { return selected; }
    void SetFocus() override {}
    void GoToRow(int row) override { markedRow = row; }

    std::string text;
    std::string selected;
    int markedRow = 0;
};

class ScriptedTable : public ScriptedControl<Table> {
  public:
    using ScriptedControl::ScriptedControl;
    void SetTable(const GridTable& newTable) override { table = newTable; }
    int NeededWidth() const override;
    int NeededHeight() const override;
    /// As many pixels as the table has cells, so that a test can tell tables apart.
    Bitmap Picture() const override;

    /// The user draws columns wider by that many pixels in all.
    void Widen(int pixels);

    /// The row whose first cell reads so; the test fails when there is none.
    const std::vector<std::string>& Row(const std::string& head) const;

    GridTable table;
    int widened = 0;
};

/// The controls of one form, by name.
class ScriptedControlMaker : public ControlMaker {
  public:
    std::unique_ptr<Button> MakeButton(const ControlSpec& spec) override {
        return Keep<ScriptedButton>(spec);
    }
    std::unique_ptr<Label> MakeLabel(const ControlSpec& spec) override {
        return Keep<ScriptedLabel>(spec);
    }
    std::unique_ptr<TextField> MakeTextField(const ControlSpec& spec) override {
        return Keep<ScriptedTextField>(spec);
    }
    std::unique_ptr<TextBox> MakeTextBox(const ControlSpec& spec) override {
        return Keep<ScriptedTextBox>(spec);
    }
    std::unique_ptr<Table> MakeTable(const ControlSpec& spec) override {
        return Keep<ScriptedTable>(spec);
    }

    bool Has(const std::string& name) const {
        return std::any_of(controls_.begin(), controls_.end(),
                           [&name](const auto& made) { return made.first == name; });
    }
    /// The control of that name, which must be there still; the test fails when there is none of
    /// that kind.
    template <class Kind>
    Kind& Get(const std::string& name) const {
        for (const auto& [made, control] : controls_) {
            auto* kind = dynamic_cast<Kind*>(control);
            if (made == name && kind != nullptr) {
                return *kind;
            }
        }
        throw std::out_of_range("no control " + name);
    }

  private:
    template <class Kind>
    std::unique_ptr<Kind> Keep(const ControlSpec& spec) {
        auto control = std::make_unique<Kind>(spec);
        controls_.emplace_back(spec.name, control.get());
        return control;
    }

    std::vector<std::pair<std::string, Control*>> controls_;
};

}  // namespace tessarin
