#include "mainwindow/WindowList.h"

#include <string>

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowRegistry.h"

namespace tessarin {
namespace {

void AsetaValinta(int16_t id, bool selected) {
    Ikkuna& row = Ikkunat(id);
    if (row.Used && row.Selectable) {
        row.Selected = selected;
        PaivitaKehysOtsikko(id);
    }
}

}  // namespace

std::shared_ptr<AnalysisWindow> IkkunaPaikassa(int16_t id) {
    if (!Ikkunat.Holds(id) || !Ikkunat(id).Used) {
        return nullptr;
    }
    return std::static_pointer_cast<AnalysisWindow>(Ikkunat(id).Window);
}

int16_t VapaaIkkunaPaikka() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (!Ikkunat(id).Used) {
            return id;
        }
    }
    return 0;
}

void LuoIkkunaPaikkaan(PaaIkkuna& main, std::string_view type, int16_t id) {
    const std::shared_ptr<AnalysisWindow> window = EtsiLaji(type)->make(main);
    Ikkuna& row = Ikkunat(id);
    row = Ikkuna();
    row.Used = true;
    row.Type = type;
    row.Window = window;
    window->Lomake().Show();
    PoistaValinnat();
    window->Alusta(id);
    ActiveWindow = id;
    main.AsetaKopioitava(window.get());
    main.PaivitaKomennot();
}

int16_t LuoIkkuna(PaaIkkuna& main, std::string_view type) {
    const int16_t id = VapaaIkkunaPaikka();
    if (id == 0) {
        main.Services().dialogs.Message(
            "You can create only " + std::to_string(MaxWindows) + " windows at a time.",
            "Max number of windows");
        return 0;
    }
    LuoIkkunaPaikkaan(main, type, id);
    if (EtsiLaji(type)->autosaves) {
        main.TalletaNakyma("Autosave");
    }
    return id;
}

void PoistaValinnat() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        AsetaValinta(id, false);
    }
}

void ValitseKaikki() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        AsetaValinta(id, true);
    }
}

void PiirraLykatyt() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (const auto window = IkkunaPaikassa(id)) {
            window->PiirraLykatty();
        }
    }
}

void AktivoiIkkuna(PaaIkkuna& main, int16_t id) {
    if (Loading || IkkunaPaikassa(id) == nullptr) {
        return;
    }
    if (!ShiftPainettu) {
        PoistaValinnat();
    }
    AsetaValinta(id, true);
    ActiveWindow = id;
    main.AsetaKopioitava(IkkunaPaikassa(id).get());
    main.MuistutaTiedostosta(Ikkunat(id).FileIndex);
    main.KerroIkkunasta(id);
    main.PaivitaKomennot();
}

void PaivitaKehysOtsikko(int16_t id) {
    const auto window = IkkunaPaikassa(id);
    if (window == nullptr) {
        return;
    }
    const std::string prefix(Ikkunat(id).Selected ? SelectedPrefix : "");
    window->Lomake().SetCaption(prefix + window->AnnaOtsikko());
}

void VapautaIkkuna(int16_t id) {
    Ikkuna& row = Ikkunat(id);
    const auto window = std::move(row.Window);
    row = Ikkuna();
    if (KokoaMuutetaan == id) {
        KokoaMuutetaan = 0;
    }
    VapautaKayttamattomat();
}

}  // namespace tessarin
