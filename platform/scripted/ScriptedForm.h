// A child window for tests: it keeps what the program did to it, and a test plays the user.
#pragma once

#include <functional>
#include <string>

#include "platform/Form.h"
#include "platform/scripted/RecordingKuva.h"

namespace tessarin {

class ScriptedForm : public Form {
  public:
    /// `gone` is called when the form is destroyed.
    ScriptedForm(FormEvents& events, std::function<void(ScriptedForm*)> gone);
    ~ScriptedForm() override;

    void SetCaption(std::string_view newCaption) override { caption = newCaption; }
    void SetOuterSize(Twips width, Twips height) override;
    Twips OuterWidth() const override { return width_; }
    Twips OuterHeight() const override { return height_; }
    bool HasOwnSize() const override { return true; }
    Twips Left() const override { return left; }
    Twips Top() const override { return top; }
    void SetPlace(Twips newLeft, Twips newTop) override {
        left = newLeft;
        top = newTop;
    }
    int ScaleWidth() const override;
    int ScaleHeight() const override;
    void Show() override;
    void Hide() override { shown = false; }
    Kuva& Surface() override { return surface; }

    // The user's part.
    void Activate();
    void Press(double x, double y, MouseButton button = MouseButton::kLeft);
    void Move(double x, double y);
    void Release(double x, double y, MouseButton button = MouseButton::kLeft);
    /// The mouse is taken away while a button is down.
    void Lose() { events_.Kuva_MouseLost(); }
    void KeyDown(int keyCode) { events_.Form_KeyDown(keyCode); }
    void KeyUp(int keyCode) { events_.Form_KeyUp(keyCode); }
    /// The form is gone when this returns.
    void Close() { events_.Form_QueryUnload(); }

    std::string caption;
    bool shown = false;
    Twips left;
    Twips top;
    RecordingKuva surface;

    // Frame and title around the client area, in pixels.
    static constexpr int kFrameWidth = 8;
    static constexpr int kFrameHeight = 30;

  private:
    FormEvents& events_;
    std::function<void(ScriptedForm*)> gone_;
    Twips width_;
    Twips height_;
};

}  // namespace tessarin
