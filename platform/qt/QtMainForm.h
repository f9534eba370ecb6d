// The main window on the screen.
#pragma once

#include <memory>

#include "platform/MainForm.h"
#include "platform/qt/ActiveChild.h"
#include "platform/qt/ChildInput.h"
#include "platform/qt/MainFormRelay.h"
#include "platform/qt/MainWindow.h"
#include "platform/qt/MenuBar.h"

namespace tessarin {

class QtMainForm : public MainForm {
  public:
    /// Headless it has a size that does not depend on any screen, and shows no box that waits.
    /// `unseen`: nothing is painted but what is asked for as a picture.
    QtMainForm(const QtEventLoop& loop, bool headless, bool unseen);

    void SetEvents(MainFormEvents* events) override { relay_.SetTarget(events); }
    void SetTitle(std::string_view title) override;
    void Show() override;
    void BuildMenus(std::span<const Menu> menus) override;
    void SetItemEnabled(std::string_view command, bool enabled) override;
    void SetItemChecked(std::string_view command, bool checked) override;
    void SetStatus(std::span<const std::string> lines, StatusKind kind) override;
    void SetPanelWidth(Twips width) override;
    void BuildPanel(int populations, int definitions) override;
    void SetPanelRow(int slot, const PanelRow& row) override;
    void SelectPanelRow(int slot) override;
    void SetPanelButtonEnabled(PanelButton button, bool enabled) override;
    void SetPanelButtonDown(PanelButton button, bool down) override;
    std::unique_ptr<Form> MakeChild(FormEvents& events) override;
    std::unique_ptr<Kuva> MakeSurface() override;
    void ShowAbout(std::span<const std::string> lines) override;
    Bitmap Snapshot() override;

    /// For dialogs, which stand in front of it.
    MainWindow& Window() { return *window_; }

  private:
    // In this order: what is lower uses what is higher and goes first.
    MainFormRelay relay_;
    bool headless_;
    bool unseen_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<MenuBar> menus_;
    std::unique_ptr<ActiveChild> active_;
    std::unique_ptr<ChildInput> input_;
};

}  // namespace tessarin
