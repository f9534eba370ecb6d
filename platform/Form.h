// A child window of the main window, as the logic sees it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "platform/Kuva.h"
#include "platform/Twips.h"

namespace tessarin {

enum class MouseButton : uint8_t { kNone = 0, kLeft = 1, kRight = 2 };

/// A mouse event over a surface, in pixels of that surface.
struct MouseEvent {
    MouseButton button = MouseButton::kNone;
    bool shift = false;
    double x = 0;
    double y = 0;
};

inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyShift = 16;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyDelete = 46;

/// A key went down or up. Letters and digits have the codes of their ASCII capitals, the keys
/// named above theirs, all others 0.
struct KeyEvent {
    int code = 0;
    bool shift = false;
    bool ctrl = false;
};

/// What a form tells its window; what a kind of window does not care for does nothing.
class FormEvents {
  public:
    virtual ~FormEvents() = default;

    /// The form became the active child; not sent again while it stays so.
    virtual void Form_Activate() = 0;
    /// The user closes the form. It is gone, or hidden, when the call returns; the receiver may
    /// destroy the form, and itself, during the call.
    virtual void Form_QueryUnload() = 0;
    /// The client area has another size now, by the user's hand or by what the program did.
    virtual void Form_Resize(bool /*byUser*/) {}
    /// Keys while the form is the active child.
    virtual void Form_KeyDown(const KeyEvent& /*key*/) {}
    virtual void Form_KeyUp(const KeyEvent& /*key*/) {}
    /// The mouse moved over the client area or a control in it, not over the surface.
    virtual void Form_MouseMove() {}
    virtual void Kuva_MouseDown(const MouseEvent& /*mouse*/) {}
    virtual void Kuva_MouseMove(const MouseEvent& /*mouse*/) {}
    virtual void Kuva_MouseUp(const MouseEvent& /*mouse*/) {}
    /// The press that was just told was the second of a double click.
    virtual void Kuva_DoubleClick(const MouseEvent& /*mouse*/) {}
    /// A press, drag or move was broken off: the mouse was taken away while a button was down.
    virtual void Kuva_MouseLost() {}
};

/// The child window. Destroying it takes it off the screen without asking and sends no event.
class Form {
  public:
    virtual ~Form() = default;

    virtual void SetCaption(std::string_view caption) = 0;

    /// Outer size, frame and title included. What was set is what is read again, whatever pixels
    /// came of it, until the user changes it; the same goes for the place. While the form is
    /// minimised or fills the main window size and place are those that it goes back to.
    virtual void SetOuterSize(Twips width, Twips height) = 0;
    virtual Twips OuterWidth() const = 0;
    virtual Twips OuterHeight() const = 0;
    /// False while the form is minimised or fills the main window: its size then is not one that
    /// the user gave it.
    virtual bool HasOwnSize() const = 0;
    /// Whether the user can give it another size; the program always can.
    virtual void SetResizable(bool resizable) = 0;

    /// Upper left corner of the frame in the main window's area.
    virtual Twips Left() const = 0;
    virtual Twips Top() const = 0;
    virtual void SetPlace(Twips left, Twips top) = 0;
    /// Size of that area in pixels.
    virtual int AreaWidth() const = 0;
    virtual int AreaHeight() const = 0;
    /// What else is to be seen in that area: the other child windows, and what the main window has
    /// standing over it.
    virtual std::vector<PixelBox> Neighbours() const = 0;

    /// Size of the client area in pixels; 0 when there is none to see.
    virtual int ScaleWidth() const = 0;
    virtual int ScaleHeight() const = 0;

    /// Shows it as the active child.
    virtual void Show() = 0;
    /// Shows it while another child stays the active one.
    virtual void ShowBeside() = 0;
    virtual void Hide() = 0;

    /// The surface in the client area.
    virtual Kuva& Surface() = 0;
    /// What makes the controls in the client area. They must not outlive the form.
    virtual ControlMaker& Controls() = 0;
};

}  // namespace tessarin
