// The commands of the side panel: what its buttons, colour boxes and labels do.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Dialogs.h"
#include "platform/MainForm.h"
#include "populations/PopulationPanel.h"

namespace tessarin {

/// What the commands ask of the floor above: to show the session anew.
class SessionView {
  public:
    virtual ~SessionView() = default;
    /// Redraws every window, refreshes the panel, autosaves.
    virtual void PiirraKaikki() = 0;
    /// One line for the status bar; empty clears it.
    virtual void Huomauta(const std::string& remark) = 0;
    /// A region was armed, or is no longer: tells what to do now.
    virtual void PiirtoMuuttui() = 0;
};

class PopulationCommands {
  public:
    PopulationCommands(Dialogs& dialogs, PopulationPanel& panel, SessionView& view)
        : dialogs_(dialogs), panel_(panel), view_(view) {}

    /// A button of the panel was pressed.
    void Paina(PanelButton button);
    /// Lets the user choose another colour for a slot. A population wants two clicks, a
    /// definition one.
    void VaihdaVari(int slot, bool twice);
    /// Turns a slot transparent, or back.
    void VaihdaLapinakyvyys(int slot);

  private:
    void LuoUusiRegion();
    void MuutaRegioninNimi();
    void PoistaRegion();
    void LuoUusiMaaritelma();
    void PoistaMaaritelma();
    /// Panel and windows follow a change of the table.
    void ShowChange();
    /// Checks all definitions, and tells of those that no longer mean anything.
    void CheckDefinitions();

    Dialogs& dialogs_;
    PopulationPanel& panel_;
    SessionView& view_;
};

}  // namespace tessarin
