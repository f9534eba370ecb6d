#include "mainwindow/PaaIkkuna.h"

#include <array>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/Exit.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/MenuTree.h"
#include "mainwindow/WindowList.h"
#include "mainwindow/WindowRegistry.h"

namespace tessarin {

PaaIkkuna::PaaIkkuna(const Platform& platform)
    : platform_(platform),
      panel_(platform.mainForm),
      populations_(platform.mainForm),
      panelCommands_(platform.dialogs, populations_, *this),
      remarks_(platform.mainForm) {
    LisaaOmatKomennot(commands_);
    NaytaTiimalasi = [this](bool busy) {
        platform_.pointer.SetPointer(busy ? MousePointer::kHourglass : MousePointer::kNormal);
    };
    platform_.mainForm.SetEvents(this);
}

PaaIkkuna::~PaaIkkuna() {
    platform_.mainForm.SetEvents(nullptr);
    NaytaTiimalasi = nullptr;
}

void PaaIkkuna::Kaynnista() {
    PalautaAlkutila();
    MainForm& form = platform_.mainForm;
    form.SetTitle("Tessarin v. " + std::string(ProgramVersionText));
    RakennaValikot();
    form.Show();
    panel_.Alusta();
    populations_.Rakenna();
    populations_.PaivitaRegionLista();
    if (companions_.views != nullptr) {
        companions_.views->TarjoaPalautusta();
    }
}

void PaaIkkuna::RakennaValikot() {
    platform_.mainForm.BuildMenus(MenuTree(
        [this](std::string_view command) {
            return commands_.Etsi(command) != nullptr || EtsiLajiKomennolla(command) != nullptr;
        },
        ToolNames()));
    PaivitaKomennot();
}

std::vector<std::string> PaaIkkuna::ToolNames() const {
    return companions_.tools == nullptr ? std::vector<std::string>() : companions_.tools->Nimet();
}

void PaaIkkuna::PiirraKaikki() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (const auto window = IkkunaPaikassa(id)) {
            window->Piirra();
        }
        platform_.loop.Yield();
    }
    populations_.PaivitaRegionLista();
    if (tellsOfDrawing_ != UusiRegionPaalla) {
        PiirtoMuuttui();
    }
    PaivitaKomennot();
    TalletaNakyma("Autosave");
}

void PaaIkkuna::TalletaNakyma(std::string_view mode) {
    if (companions_.views != nullptr) {
        companions_.views->TalletaNakyma(mode);
    }
}

bool PaaIkkuna::LataaNakyma(const std::string& path) {
    return companions_.views != nullptr && companions_.views->LataaNakyma(path);
}

std::string PaaIkkuna::AktiivinenKansio() const {
    const int16_t slot = Ikkunat.Holds(ActiveWindow) ? Ikkunat(ActiveWindow).FileIndex : int16_t{0};
    return Tiedostot.Holds(slot) ? Tiedostot(slot).Folder : "";
}

void PaaIkkuna::OpenView() {
    const std::string path =
        platform_.dialogs.OpenFile({.title = "Open analysis file",
                                    .filter = "Tessarin files (*.Tessarin)|*.tessarin",
                                    .folder = AktiivinenKansio()});
    if (!path.empty()) {
        LataaNakyma(path);
    }
}

void PaaIkkuna::HuomautaTiedostosta(int16_t slot) {
    remarks_.FileRead(slot);
    TellRemark(FileOddity(slot));
}

void PaaIkkuna::Huomauta(const std::string& remark) {
    tellsOfDrawing_ = false;
    remarks_.Show(remark);
    TellRemark(remark);
}

void PaaIkkuna::TellRemark(const std::string& remark) {
    if (onRemark && !remark.empty()) {
        onRemark(remark);
    }
}

void PaaIkkuna::PiirtoMuuttui() {
    populations_.PaivitaNapit();
    if (UusiRegionPaalla) {
        remarks_.Show(
            "Click the corners; right click closes; Esc cancels. In a histogram drag a marker.");
    } else if (tellsOfDrawing_) {
        remarks_.Show("");
    }
    tellsOfDrawing_ = UusiRegionPaalla;
}

void PaaIkkuna::PeruPiirto() {
    PalautaPiirtoele();
    PiirraKaikki();
}

bool PaaIkkuna::OnkoEsikatselu() const {
    return companions_.preview != nullptr && companions_.preview->OnkoNakyvissa();
}

void PaaIkkuna::Command(std::string_view command) {
    if (Loading) {
        return;  // events run while a sheet is loaded; commands would find half a session
    }
    if (const Komento* known = commands_.Etsi(command)) {
        if (!known->enabled || known->enabled(*this)) {
            known->run(*this);
        }
    } else if (const WindowKind* kind = EtsiLajiKomennolla(command)) {
        LuoIkkuna(*this, kind->type);
    } else {
        RunTool(command);
    }
}

void PaaIkkuna::PaivitaKomennot() {
    commands_.KayEhdolliset([this](const Komento& command) {
        platform_.mainForm.SetItemEnabled(command.name, command.enabled(*this));
    });
}

void PaaIkkuna::KerroIkkunasta(int16_t window) {
    for (WindowListener* listener : companions_.listeners) {
        listener->AsetaLista(window);
    }
}

void PaaIkkuna::RunTool(std::string_view command) {
    const std::size_t count = ToolNames().size();
    for (std::size_t tool = 0; tool < count; ++tool) {
        if (command == ToolCommand(tool)) {
            companions_.tools->Aja(tool);
            return;
        }
    }
}

void PaaIkkuna::BackgroundMouseMove() {
    panel_.Sulje();
    if (KokoaMuutetaan == 0) {
        return;
    }
    if (const auto window = IkkunaPaikassa(KokoaMuutetaan)) {
        window->PiirraLykatty();
    }
    KokoaMuutetaan = 0;
}

void PaaIkkuna::FreezePanel(bool frozen) {
    PanelFrozen = frozen;
}

void PaaIkkuna::CloseRequested() {
    if (!Loading) {
        FileExit(*this);
    }
}

void PaaIkkuna::AvaaTiedosto(const std::string& path) {
    if (OnkoNakyma(path)) {
        LataaNakyma(path);
    } else {
        AvaaUuteenIkkunaan(*this, path, TavallinenLukuTapa(path));
    }
}

void PaaIkkuna::AvaaTiedostot(const std::vector<std::string>& paths) {
    const StatusRemarks::Opening opening(remarks_);
    for (const std::string& path : paths) {
        AvaaTiedosto(path);
    }
}

void PaaIkkuna::FilesDropped(const std::vector<std::string>& paths) {
    const StatusRemarks::Opening opening(remarks_);
    // The first goes where "Open FCS..." would put it; the others would only replace it there.
    bool first = true;
    for (const std::string& path : paths) {
        if (Loading) {
            return;
        }
        if (OnkoNakyma(path)) {
            LataaNakyma(path);
            continue;
        }
        const LukuTapa way = TavallinenLukuTapa(path);
        first ? AvaaValittuihin(*this, path, way) : AvaaUuteenIkkunaan(*this, path, way);
        first = false;
    }
}

void PaaIkkuna::CopyImages() {
    platform_.clipboard.Clear();
    if (kopioitava_ != nullptr && kopioitava_->AnnaID() != 0) {
        kopioitava_->CopyToClipboard();
        ClipSource = kopioitava_->AnnaID();
    }
}

void PaaIkkuna::UnohdaKopioitava(const CopySource* source) {
    if (kopioitava_ == source) {
        kopioitava_ = nullptr;
    }
}

void PaaIkkuna::ToggleBumper() {
    KaytaNegAbsJuttua = !KaytaNegAbsJuttua;
    platform_.mainForm.SetItemChecked("KaytaNegAbsJuttua", KaytaNegAbsJuttua);
    PiirraKaikki();
}

void PaaIkkuna::ShowHelp() {
    const std::string guide = "file://" + platform_.programFolder + "guide/index.html";
    if (!platform_.browser.Open(guide)) {
        Huomauta("The web browser could not be started. The user guide is " + guide);
    }
}

void PaaIkkuna::ShowAbout() {
    const std::array<std::string, 4> lines = {
        "Tessarin",
        "Version " + std::string(ProgramVersionText) + ", released " + std::string(kReleaseDate),
        "A workbench for flow cytometry",
        "Free software under the MIT licence",
    };
    platform_.mainForm.ShowAbout(lines);
}

}  // namespace tessarin
