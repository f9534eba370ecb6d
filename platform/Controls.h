// Controls beside a picture, or instead of one: what the logic holds of each.
//
// A form makes them; the toolkit's own widgets show them, with its keyboard and its words for
// screen readers. Each event is a function that is set by whoever made the control and may be
// empty. What the program sets sends no event. Destroying a control takes it off its form.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/Bitmap.h"
#include "platform/Table.h"

namespace tessarin {

/// A place in the client area of a form, in pixels.
struct PixelBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// What a control is made from.
struct ControlSpec {
    std::string name;     ///< as the code, scripts and tests call it
    std::string caption;  ///< what stands on it; what screen readers call one without letters
    PixelBox place{};
    bool readOnly = false;  ///< a text that only the program changes
};

class Control {
  public:
    virtual ~Control() = default;
    virtual void SetPlace(const PixelBox& place) = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void SetEnabled(bool enabled) = 0;
};

class Button : public Control {
  public:
    virtual void SetCaption(std::string_view caption) = 0;
    std::function<void()> onClick;
};

class Label : public Control {
  public:
    virtual void SetText(std::string_view text) = 0;
};

/// One line of text.
class TextField : public Control {
  public:
    virtual void SetText(std::string_view text) = 0;
    virtual std::string Text() const = 0;
    /// The user typed something.
    std::function<void()> onEdit;
};

/// Many lines of text in letters of equal width. Lines end in LF.
class TextBox : public Control {
  public:
    /// What the user had typed can be taken back by him. A read-only box keeps the place to which
    /// it was scrolled.
    virtual void SetText(std::string_view text) = 0;
    virtual std::string Text() const = 0;
    /// The part that the user marked; empty when there is none.
    virtual std::string SelectedText() const = 0;
    virtual void SetFocus() = 0;
    /// Puts the cursor on that line, counted from 1, and marks the line until the cursor leaves it
    /// or the text changes. Lines that are not there are taken for the nearest.
    virtual void GoToRow(int row) = 0;
    /// The user changed the text.
    std::function<void()> onEdit;
    /// The cursor stands on another line now, counted from 1.
    std::function<void(int row)> onRow;
};

/// A grid of cells that are read. Its user can give columns other widths, which stay when another
/// table with those columns is shown.
class Table : public Control {
  public:
    /// Shows another table; the old one is gone.
    virtual void SetTable(const GridTable& table) = 0;
    /// What the whole table needs, in pixels, the lines around it included; 0 without cells.
    virtual int NeededWidth() const = 0;
    virtual int NeededHeight() const = 0;
    /// The whole table as a picture, also what its place is too small to show.
    virtual Bitmap Picture() const = 0;
    /// The right button was pressed over it.
    std::function<void()> onRightPress;
    /// The user has given a column another width.
    std::function<void()> onColumnWidth;
};

/// Makes the controls of one form. Tab goes through them in the order of their making.
class ControlMaker {
  public:
    virtual ~ControlMaker() = default;
    virtual std::unique_ptr<Button> MakeButton(const ControlSpec& spec) = 0;
    virtual std::unique_ptr<Label> MakeLabel(const ControlSpec& spec) = 0;
    virtual std::unique_ptr<TextField> MakeTextField(const ControlSpec& spec) = 0;
    virtual std::unique_ptr<TextBox> MakeTextBox(const ControlSpec& spec) = 0;
    virtual std::unique_ptr<Table> MakeTable(const ControlSpec& spec) = 0;
};

}  // namespace tessarin
