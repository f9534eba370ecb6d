#include "mainwindow/Popups.h"

#include <vector>

#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

// With a tick at the gate of that window.
PopupEntry ShowPopulationEntry(const PaaIkkuna& main, int16_t id) {
    const auto window = IkkunaPaikassa(id);
    const GateOwner* gate = window == nullptr ? nullptr : window->Gate();
    PopupEntry entry{"Show populations"};
    for (const std::string& caption : main.Paneeli().ShowPopulation()) {
        const int16_t slot =
            main.Paneeli().NaytaValikonPopulaatio(static_cast<int>(entry.children.size()));
        entry.children.push_back({caption, true, gate != nullptr && gate->Portti() == slot});
    }
    return entry;
}

void ShowPopulationClick(PaaIkkuna& main, int item) {
    const int16_t population = main.Paneeli().NaytaValikonPopulaatio(item);
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        const auto window = IkkunaPaikassa(id);
        if (window != nullptr && window->Gate() != nullptr && Ikkunat(id).Selected) {
            window->Gate()->NaytaPopulaatio(population);
        }
    }
    main.TalletaNakyma("Autosave");
}

void MenuClick(PaaIkkuna& main, int item) {
    if (const auto window = IkkunaPaikassa(PopupIkkuna)) {
        window->MenuValintaReaktio(item);
        main.TalletaNakyma("Autosave");
    }
}

}  // namespace

void NaytaNappiMenu(PaaIkkuna& main, int16_t id, const std::vector<WindowMenuItem>& items) {
    PopupIkkuna = id;
    std::vector<PopupEntry> entries = {ShowPopulationEntry(main, id)};
    for (const WindowMenuItem& item : items) {
        entries.push_back({item.caption, item.enabled});
    }
    const PopupChoice choice = main.Services().popups.Show(entries);
    if (choice.item == 0 && choice.child >= 0) {
        ShowPopulationClick(main, choice.child);
    } else if (choice.item > 0) {
        MenuClick(main, choice.item);
    }
}

int NaytaStatMenu(PaaIkkuna& main, int16_t id, const std::vector<PopupEntry>& items) {
    PopupIkkuna = id;
    std::vector<PopupEntry> entries = {{"Copy to clipboard"}};
    entries.insert(entries.end(), items.begin(), items.end());
    return main.Services().popups.Show(entries).item;
}

int16_t NaytaKanavaLista(PaaIkkuna& main, const Tiedosto& file, int16_t current) {
    std::vector<PopupEntry> entries;
    for (const Kanava& channel : file.Channels) {
        const auto number = static_cast<int16_t>(entries.size() + 1);
        entries.push_back({channel.Name, true, number == current});
    }
    const PopupChoice choice = main.Services().popups.Show(entries);
    if (choice.item < 0) {
        return 0;
    }
    ValittuKanava = static_cast<int16_t>(choice.item);
    return static_cast<int16_t>(choice.item + 1);
}

}  // namespace tessarin
