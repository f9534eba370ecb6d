// The main window: start-up, menu commands, and what analysis windows call on it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/Commands.h"
#include "mainwindow/Companions.h"
#include "mainwindow/CopySource.h"
#include "mainwindow/SlidingPanel.h"
#include "mainwindow/StatusRemarks.h"
#include "platform/Services.h"
#include "populations/PopulationCommands.h"
#include "populations/PopulationPanel.h"

namespace tessarin {

/// `PaaIkkuna` means main window. It owns no session state; that stands in the tables.
class PaaIkkuna : public MainFormEvents, public SessionView {
  public:
    explicit PaaIkkuna(const Platform& platform);
    ~PaaIkkuna() override;
    PaaIkkuna(const PaaIkkuna&) = delete;
    PaaIkkuna& operator=(const PaaIkkuna&) = delete;

    /// `Kaynnista` means start: puts the session to its defaults and shows the main window.
    /// REQUIRES: window kinds are registered.
    void Kaynnista();

    /// `RakennaValikot` means build the menus: anew, when the tools are others.
    void RakennaValikot();

    const Platform& Services() const { return platform_; }
    const Companions& Kumppanit() const { return companions_; }
    PopulationPanel& Paneeli() { return populations_; }
    const PopulationPanel& Paneeli() const { return populations_; }
    Companions& Kumppanit() { return companions_; }
    Komennot& Kasky() { return commands_; }

    /// `PiirraKaikki` means draw all: redraws every window in slot order, letting events run in
    /// between, then refreshes the panel and autosaves.
    void PiirraKaikki() override;
    /// Writes the session and brings it back, once something that can is there; see `ViewStore`.
    void TalletaNakyma(std::string_view mode);
    bool LataaNakyma(const std::string& path);
    /// "Open analysis view...": asks for a sheet.
    void OpenView();
    /// Opens a file by its ending: a sheet replaces the session, data come in a new dot plot.
    void AvaaTiedosto(const std::string& path);
    /// Opens several so, one after the other.
    void AvaaTiedostot(const std::vector<std::string>& paths);
    /// `Huomauta` means remark: one line for the status bar; empty clears it.
    void Huomauta(const std::string& remark) override;
    /// Remarks what is odd about the file that was just read.
    void HuomautaTiedostosta(int16_t slot);
    /// `Muistuta` means remind: the active window shows that file.
    void MuistutaTiedostosta(int16_t slot) { remarks_.FileActive(slot); }
    /// `Huomautukset` means remarks: what stands in the status bar.
    StatusRemarks& Huomautukset() { return remarks_; }
    /// `PiirtoMuuttui` means the drawing changed: while a region is armed, "Create" looks pressed
    /// and the status bar says what to do.
    void PiirtoMuuttui() override;
    /// `PeruPiirto` means call the drawing off: nothing is armed any more, and no region is made.
    void PeruPiirto();
    /// `PaivitaKomennot` means update the commands: items whose commands cannot be chosen now are
    /// disabled.
    void PaivitaKomennot();
    /// `AktiivinenKansio` means active folder: where the file of the active window lies; empty when
    /// there is none. File dialogs start there.
    std::string AktiivinenKansio() const;
    /// Tells whoever listens that a window became the active one or took another file.
    void KerroIkkunasta(int16_t window);
    /// The mouse is over an analysis window: the side panel closes.
    void HiiriMuualla() { panel_.Sulje(); }
    /// Whether the print preview page is shown.
    bool OnkoEsikatselu() const;

    /// The child window that "Copy to clipboard" copies: the one that became active last.
    void AsetaKopioitava(CopySource* source) { kopioitava_ = source; }
    /// It goes; call it from the destructor of what was given.
    void UnohdaKopioitava(const CopySource* source);

    /// "Copy to clipboard": the image or text of the child window that became active last.
    void CopyImages();
    /// "Use neg value bumper".
    void ToggleBumper();
    /// "Online Help" and "About Tessarin".
    void ShowHelp();
    void ShowAbout();

    /// Also told each remark, where nobody sees a status bar.
    std::function<void(const std::string&)> onRemark;

    // MainFormEvents.
    void Command(std::string_view command) override;
    void BackgroundMouseMove() override;
    void PanelMouseMove() override { panel_.Avaa(); }
    void FreezePanel(bool frozen) override;
    void PanelRowSelected(int slot) override { populations_.Valitse(slot); }
    void PanelButtonPressed(PanelButton button) override { panelCommands_.Paina(button); }
    void PanelColorClicked(int slot, bool twice) override {
        panelCommands_.VaihdaVari(slot, twice);
    }
    void PanelLabelDoubleClicked(int slot) override { panelCommands_.VaihdaLapinakyvyys(slot); }
    void CloseRequested() override;
    void FilesDropped(const std::vector<std::string>& paths) override;

  private:
    std::vector<std::string> ToolNames() const;
    void RunTool(std::string_view command);
    void TellRemark(const std::string& remark);

    Platform platform_;
    Companions companions_;
    Komennot commands_;
    SlidingPanel panel_;
    PopulationPanel populations_;
    PopulationCommands panelCommands_;
    CopySource* kopioitava_ = nullptr;
    bool tellsOfDrawing_ = false;  // the status bar tells how to draw a region
    StatusRemarks remarks_;
};

}  // namespace tessarin
