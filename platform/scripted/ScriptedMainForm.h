// A main window for tests: it keeps what the program did to it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/MainForm.h"
#include "platform/scripted/ScriptedForm.h"

namespace tessarin {

class ScriptedMainForm : public MainForm {
  public:
    void SetEvents(MainFormEvents* newEvents) override { events = newEvents; }
    void SetTitle(std::string_view newTitle) override { title = newTitle; }
    void Show() override { shown = true; }
    void BuildMenus(std::span<const Menu> newMenus) override;
    void SetItemEnabled(std::string_view command, bool on) override;
    void SetItemChecked(std::string_view command, bool on) override;
    void SetStatus(std::span<const std::string> lines, StatusKind kind) override;
    void SetPanelWidth(Twips width) override { panelWidth = width; }
    void BuildPanel(int populations, int definitions) override;
    void SetPanelRow(int slot, const PanelRow& row) override;
    void SelectPanelRow(int slot) override { selectedRows.push_back(slot); }
    void SetPanelButtonEnabled(PanelButton button, bool on) override { buttons[button] = on; }
    void SetPanelButtonDown(PanelButton button, bool on) override { buttonsDown[button] = on; }
    std::unique_ptr<Form> MakeChild(FormEvents& formEvents) override;
    std::unique_ptr<Kuva> MakeSurface() override { return std::make_unique<RecordingKuva>(); }
    void ShowAbout(std::span<const std::string> lines) override;
    Bitmap Snapshot() override { return {}; }

    /// The item of that command; the test fails when there is none.
    const MenuItem& Item(const std::string& command) const;

    MainFormEvents* events = nullptr;
    std::string title;
    bool shown = false;
    std::vector<Menu> menus;
    std::map<std::string, bool> checked;
    std::string status;  ///< the line that can be seen
    std::vector<std::string> statusLines;
    StatusKind statusKind = StatusKind::kRemark;
    Twips panelWidth;
    std::vector<PanelRow> rows;  ///< slot n is rows[n - 1]
    std::vector<int> selectedRows;
    std::map<PanelButton, bool> buttons;
    std::map<PanelButton, bool> buttonsDown;
    std::vector<std::string> about;
    std::vector<ScriptedForm*> children;  ///< that exist now, in the order of their making

  private:
    MenuItem* Find(std::string_view command);
};

}  // namespace tessarin
