// The table of windows: making, finding, selecting, activating and freeing them.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "mainwindow/AnalysisWindow.h"

namespace tessarin {

class PaaIkkuna;

/// The window in a slot; null when the slot is free. Keep the pointer for as long as you call it:
/// a window can be closed while it works.
std::shared_ptr<AnalysisWindow> IkkunaPaikassa(int16_t id);

/// The lowest free slot; 0 when all are used.
int16_t VapaaIkkunaPaikka();

/// Makes a window of that type in a free slot, as the only selected one, and sets it up.
/// REQUIRES: the type is registered and the slot is free.
void LuoIkkunaPaikkaan(PaaIkkuna& main, std::string_view type, int16_t id);

/// The create commands: makes a window of that type at the lowest free slot and returns its id.
/// With all slots used it shows the message and returns 0; nothing else changes.
int16_t LuoIkkuna(PaaIkkuna& main, std::string_view type);

/// `PoistaValinnat` means clear the selection: of all selectable windows.
void PoistaValinnat();

/// Selects every selectable window.
void ValitseKaikki();

/// `PiirraLykatyt` means draw those put off: every window's `PiirraLykatty`, so that all pictures
/// are full.
void PiirraLykatyt();

/// What each window does when it becomes the active one: it joins the selection, alone unless
/// Shift is held. Does nothing while a sheet is being loaded.
void AktivoiIkkuna(PaaIkkuna& main, int16_t id);

/// Writes a window's title into its frame, with the prefix when it is selected.
void PaivitaKehysOtsikko(int16_t id);

/// Frees a window's slot, and the files that no window shows then. The window's object goes once
/// nobody holds it.
void VapautaIkkuna(int16_t id);

}  // namespace tessarin
