// A child window for tests: it keeps what the program did to it, and a test plays the user.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/scripted/RecordingKuva.h"
#include "platform/scripted/ScriptedControls.h"

namespace tessarin {

class ScriptedForm : public Form {
  public:
    /// `gone` is called when the form is destroyed.
    ScriptedForm(FormEvents& newEvents, std::function<void(ScriptedForm*)> gone);
    ~ScriptedForm() override;

    void SetCaption(std::string_view newCaption) override { caption = newCaption; }
    void SetOuterSize(Twips newWidth, Twips newHeight) override;
    Twips OuterWidth() const override { return width; }
    Twips OuterHeight() const override { return height; }
    bool HasOwnSize() const override { return hasOwnSize; }
    void SetResizable(bool newResizable) override { resizable = newResizable; }
    Twips Left() const override { return left; }
    Twips Top() const override { return top; }
    void SetPlace(Twips newLeft, Twips newTop) override {
        left = newLeft;
        top = newTop;
    }
    int AreaWidth() const override { return 1000; }
    int AreaHeight() const override { return 700; }
    std::vector<PixelBox> Neighbours() const override;
    int ScaleWidth() const override;
    int ScaleHeight() const override;
    void Show() override;
    void ShowBeside() override { shown = true; }
    void Hide() override { shown = false; }
    Kuva& Surface() override { return surface; }
    ControlMaker& Controls() override { return controls; }

    // The user's part.
    void Activate();
    void Resize(Twips newWidth, Twips newHeight, bool byUser = true);
    void Press(double x, double y, MouseButton button = MouseButton::kLeft);
    void DoubleClick(double x, double y);
    void Move(double x, double y);
    void Release(double x, double y, MouseButton button = MouseButton::kLeft);
    /// The mouse is taken away while a button is down.
    void Lose() { events.Kuva_MouseLost(); }
    void KeyDown(int code, bool ctrl = false) { events.Form_KeyDown({code, false, ctrl}); }
    void KeyUp(int code) { events.Form_KeyUp({code}); }
    /// The form is gone, or hidden, when this returns.
    void Close() { events.Form_QueryUnload(); }

    FormEvents& events;
    std::string caption;
    bool shown = false;
    bool hasOwnSize = true;
    bool resizable = true;
    Twips width;
    Twips height;
    Twips left;
    Twips top;
    const std::vector<ScriptedForm*>* all = nullptr;  ///< forms of the area, this one among them
    RecordingKuva surface;
    ScriptedControlMaker controls;

    // Frame and title around the client area, in pixels.
    static constexpr int kFrameWidth = 8;
    static constexpr int kFrameHeight = 30;

  private:
    std::function<void(ScriptedForm*)> gone_;
};

}  // namespace tessarin
