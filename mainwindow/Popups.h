// The pop-up menus that analysis windows borrow from the main window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/Tiedosto.h"
#include "platform/Menus.h"

namespace tessarin {

class PaaIkkuna;

/// One item of a window's own menu, worked out when the menu opens; the caption "-" is a separator.
struct WindowMenuItem {
    std::string caption;
    std::function<void()> choose = {};
    bool enabled = true;
};

/// `NappiMenu` means button menu: the pop-up of an analysis window. Shows "Show populations" and
/// behind it the window's items; a choice goes to `MenuValintaReaktio` with its number from 1, or
/// gates all selected windows, and is followed by an autosave.
void NaytaNappiMenu(PaaIkkuna& main, int16_t id, const std::vector<WindowMenuItem>& items);

/// The pop-up of a statistics window: "Copy to clipboard" and behind it its own items. Gives the
/// number of the item chosen, 0 for the first, or -1.
int NaytaStatMenu(PaaIkkuna& main, int16_t id, const std::vector<PopupEntry>& items);

/// `KanavaLista` means channel list: lets the user choose a channel of the file, of which `current`
/// has a tick. Gives it, counted from 1, and leaves it in `ValittuKanava`, counted from 0; gives 0
/// when the list was dismissed.
int16_t NaytaKanavaLista(PaaIkkuna& main, const Tiedosto& file, int16_t current);

}  // namespace tessarin
