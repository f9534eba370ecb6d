// The session: every table, option and flag that the whole program shares.
//
// `Muuttujat` means variables. There is no document object; windows and commands read and write
// these tables directly, and nothing else owns session state.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Ikkuna.h"
#include "core/Populaatio.h"
#include "core/Taulu.h"
#include "core/Tiedosto.h"

namespace tessarin {

// Limits. The tables never grow.
inline constexpr int16_t MaxFiles = 20;
inline constexpr int16_t MaxWindows = 50;
inline constexpr int16_t MaxPopulations = 16;
inline constexpr int16_t MaxDefinitions = 16;
inline constexpr int kPopulationSlots = MaxPopulations + MaxDefinitions;

// Constants of the log scale for channels of range 262144.
inline constexpr int16_t LogShift = 40;
inline constexpr int32_t LogFloor = 20;

/// Stands in front of the title of a selected window.
inline constexpr std::string_view SelectedPrefix = "[S] ";

inline constexpr std::array<int16_t, 3> ProgramVersion = {1, 2, 1};
inline constexpr std::string_view ProgramVersionText = "1.2.1";
inline constexpr std::string_view kReleaseDate = "22 November 2026";

inline constexpr int32_t kDefaultMaxLoadedEvents = 1000000;
inline constexpr int32_t kDefaultFastDrawLimit = 50000;

// The tables.
extern Taulu<Tiedosto> Tiedostot;      // loaded files, MaxFiles slots
extern Taulu<Ikkuna> Ikkunat;          // analysis windows, MaxWindows slots
extern Taulu<Ikkuna> IkkunatStat;      // slot n: the statistics window of window n
extern Taulu<Populaatio> Populaatiot;  // populations, then definitions, kPopulationSlots slots

// Options of the Edit menu. They start from their defaults at each start.
extern int32_t MaxLoadedEvents;  // most events that a file brings into memory, above 0
extern int32_t FastDrawLimit;    // event count above which plots draw thinned, above 0
extern bool KaytaNegAbsJuttua;   // the neg value bumper

// Session pointers and flags.
extern int16_t CurrentFile;     // file slot that a new window shows
extern int16_t ActiveWindow;    // id of the window activated last, 0 at start
extern int16_t PopupIkkuna;     // id of the window whose pop-up menu is open
extern int16_t ClipSource;      // id of the window copied to the clipboard last
extern bool Loading;            // a sheet is being loaded
extern bool Closing;            // the exit routine runs
extern bool LykkaaPiirto;       // redraws put their pictures off, see AnalysisWindow::PiirraLykatty
extern bool ShiftPainettu;      // the Shift key is held over an analysis window
extern bool PanelCollapsed;     // state of the side panel
extern bool PanelFrozen;        // "Freeze the panel" is checked
extern int16_t KokoaMuutetaan;  // id of a resized window that waits for a full redraw, 0 for none

/// Outer size in twips of the last window of a kind; 0 and 0 when none is remembered.
struct RememberedSize {
    int32_t Leveys = 0;   ///< width
    int32_t Korkeus = 0;  ///< height
};
/// `OletusKoko` means default size: that of the kinds of windows that share `group`, the type of
/// one of them. What is given stays in its place.
RememberedSize& OletusKoko(std::string_view group);

/// Puts every table, option and flag back to the state at program start.
void PalautaAlkutila();

/// `VapautaTiedosto` means free a file: empties the slot and gives its memory back.
/// REQUIRES: 1 <= slot <= MaxFiles.
void VapautaTiedosto(int16_t slot);

/// Frees every file that no window shows.
void VapautaKayttamattomat();

}  // namespace tessarin
