// The window contract: all that the main window and the tools know of an analysis window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Ikkuna.h"
#include "mainwindow/CopySource.h"
#include "mainwindow/WindowRoles.h"
#include "platform/Form.h"

namespace tessarin {

/// One analysis window.
class AnalysisWindow : public WindowObject, public CopySource {
  public:
    // Every kind has these.

    /// Sets the window up in its slot; called once, right after it was made and shown.
    virtual void Alusta(int16_t id) = 0;
    /// Redraws the window. Draws nothing while it has no file or a sheet is being loaded.
    virtual void Piirra() = 0;
    /// `PiirraLykatty` means draw what was put off: the picture that the last `Piirra` left out
    /// because `LykkaaPiirto` was True then, or that it drew thinned while the user was resizing
    /// the window. Whatever is to leave the window calls it first. Until then the surface is that
    /// of an earlier redraw; numbers, tables and titles are of the last one. Whoever puts pictures
    /// off has them drawn before anything that they show changes.
    virtual void PiirraLykatty() {}
    /// Adapts the window to a file that was just put into it.
    virtual void LatauksenJalkeen() = 0;
    /// Item `item`, from 1, of the window's pop-up menu was chosen.
    virtual void MenuValintaReaktio(int item) = 0;
    /// Frees the slot and closes the window; the caller keeps the object alive until it returns.
    virtual void UnloadWindow() = 0;
    /// `Lomake` means form: the child window that shows this one.
    virtual Form& Lomake() = 0;
    /// Moves the form, or sizes it, along one axis, "x" or "y", for a tool or sheet. It stands
    /// within reach, whatever is asked for.
    virtual void AsetaPaikka(std::string_view axis, Twips place) = 0;
    virtual void AsetaKoko(std::string_view axis, Twips size) = 0;
    /// The title without `SelectedPrefix`.
    virtual std::string AnnaOtsikko() const = 0;
    /// The settings as key lines of a sheet, such as "axis.x:3"; which window they belong to is
    /// for the sheet to say.
    virtual std::vector<std::string> SaveInfo() = 0;
    /// Takes one whole line of a sheet, "window.5.axis.x:3"; one that says nothing here changes
    /// nothing.
    virtual void LoadInfo(std::string_view line) = 0;

    // Some kinds have these; null where a kind lacks the role.
    virtual GateOwner* Gate() { return nullptr; }
    virtual ChannelOwner* Channels() { return nullptr; }
    virtual StatisticsOwner* Stats() { return nullptr; }
    virtual StatisticsTableOwner* StatsTable() { return nullptr; }
    virtual QuadrantOwner* Quadrant() { return nullptr; }
    virtual BinOwner* Bins() { return nullptr; }
    virtual CurveOwner* Curves() { return nullptr; }
    virtual SpaceView* Space() { return nullptr; }
    virtual SourceOwner* Sources() { return nullptr; }
    virtual PageItem* Page() { return nullptr; }
};

}  // namespace tessarin
