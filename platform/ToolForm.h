// The child window in which a tool is written, run and stopped, as the logic sees it.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// What a tool form tells its window.
class ToolFormEvents {
  public:
    virtual ~ToolFormEvents() = default;

    /// The form became the active child; not sent again while it stays so.
    virtual void Form_Activate() = 0;
    /// The user closes the form. It is hidden when the call returns.
    virtual void Form_QueryUnload() = 0;
    /// `Toteuta` means execute: the button that starts a tool, and stops the one that runs.
    virtual void Toteuta_Click() = 0;
    /// `Tyhjenna` means clear.
    virtual void Tyhjenna_Click() = 0;
    /// `MuutaKokoa` means change the size.
    virtual void MuutaKokoa_Click() = 0;
    /// `Teksti`, the text box, has its cursor on another line now, counted from 1.
    virtual void Teksti_Row(int row) = 0;
    /// The mouse moved over the form or anything in it.
    virtual void Form_MouseMove() = 0;
};

/// The child window. It is made hidden; destroying it takes it off the screen and sends no event.
class ToolForm {
  public:
    virtual ~ToolForm() = default;

    /// Only the execute button is to be seen. Shows the form beside the active child, which stays
    /// the active one.
    virtual void ShowSmall() = 0;
    /// Everything is to be seen, at its first size. Shows the form as the active child.
    virtual void ShowFull() = 0;
    virtual void Hide() = 0;

    virtual void SetText(std::string_view text) = 0;
    /// Lines end in LF.
    virtual std::string Text() const = 0;
    /// The part of the text that the user marked; empty when there is none.
    virtual std::string SelectedText() const = 0;
    /// `Muuttujat` means variables: what their box shows.
    virtual void SetVariables(std::string_view text) = 0;
    virtual void SetExecuteCaption(std::string_view caption) = 0;
    /// `KursorinPaikka` means place of the cursor: what its box shows.
    virtual void SetCursorPlace(std::string_view text) = 0;
};

}  // namespace tessarin
