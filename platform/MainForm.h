// The main window, as the logic sees it.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Bitmap.h"
#include "core/Color.h"
#include "platform/Form.h"
#include "platform/Menus.h"
#include "platform/Twips.h"

namespace tessarin {

/// One row of the side panel: a slot of the table of populations. Rows stand in slot order.
struct PanelRow {
    std::string caption;  ///< name or "Not defined"
    std::string label;    ///< "C" or "T"
    Rgb color;
};

/// The five buttons of the side panel, by the names of their commands.
enum class PanelButton {
    kLuoUusiRegion,      ///< "Create"
    kPoistaRegion,       ///< "Delete", populations
    kMuutaRegioninNimi,  ///< "Rename"
    kLuoUusiMaaritelma,  ///< "Define"
    kPoistaMaaritelma,   ///< "Delete", definitions
};

/// What the lines in the status bar are.
enum class StatusKind {
    kRemark,
    kOddFiles,  ///< what is odd about files: numbers drawn from them may be wrong
};

/// What the main window tells the program.
class MainFormEvents {
  public:
    virtual ~MainFormEvents() = default;

    /// A menu item was chosen; `command` is its name. A checkable item is not checked by that.
    virtual void Command(std::string_view command) = 0;
    /// The mouse moved over the background behind the child windows.
    virtual void BackgroundMouseMove() = 0;
    /// The mouse moved over the side panel or anything on it.
    virtual void PanelMouseMove() = 0;
    virtual void FreezePanel(bool frozen) = 0;
    /// The option button of a slot was turned on.
    virtual void PanelRowSelected(int slot) = 0;
    virtual void PanelButtonPressed(PanelButton button) = 0;
    /// The colour box of a slot was clicked, once or twice.
    virtual void PanelColorClicked(int slot, bool twice) = 0;
    /// The label of a slot was double clicked.
    virtual void PanelLabelDoubleClicked(int slot) = 0;
    /// The close box was used. The main window stays open unless the program quits.
    virtual void CloseRequested() = 0;
    /// Files were dropped on the main window: their paths.
    virtual void FilesDropped(const std::vector<std::string>& paths) = 0;
};

class MainForm {
  public:
    virtual ~MainForm() = default;

    /// Names who gets the events; nullptr for nobody.
    virtual void SetEvents(MainFormEvents* events) = 0;

    virtual void SetTitle(std::string_view title) = 0;
    virtual void Show() = 0;

    /// Replaces all menus; an item of the same command stays checked.
    virtual void BuildMenus(std::span<const Menu> menus) = 0;
    /// By the item's command name; unknown names are ignored.
    virtual void SetItemEnabled(std::string_view command, bool enabled) = 0;
    virtual void SetItemChecked(std::string_view command, bool checked) = 0;

    /// What stands at the lower edge until the next: the last of the lines, and how many there are.
    /// The user can have all of them shown. No line clears it.
    virtual void SetStatus(std::span<const std::string> lines, StatusKind kind) = 0;

    virtual void SetPanelWidth(Twips width) = 0;
    /// The first `populations` rows stand in the frame "Populations", the others in "Definitions".
    virtual void BuildPanel(int populations, int definitions) = 0;
    /// REQUIRES: slot is 1..populations+definitions of BuildPanel.
    virtual void SetPanelRow(int slot, const PanelRow& row) = 0;
    /// Turns the slot's option button on, and the others of its frame off. No event is sent.
    virtual void SelectPanelRow(int slot) = 0;
    virtual void SetPanelButtonEnabled(PanelButton button, bool enabled) = 0;
    /// A button that looks pressed: what it began is under way.
    virtual void SetPanelButtonDown(PanelButton button, bool down) = 0;

    /// Makes a child window, not shown yet. `events` must outlive it.
    virtual std::unique_ptr<Form> MakeChild(FormEvents& events) = 0;

    /// A surface that nobody sees.
    virtual std::unique_ptr<Kuva> MakeSurface() = 0;

    /// Shows the About box in the middle of the main window, these lines one below the other,
    /// until its button hides it.
    virtual void ShowAbout(std::span<const std::string> lines) = 0;

    /// The main window with all that it shows, as a picture.
    virtual Bitmap Snapshot() = 0;
};

}  // namespace tessarin
