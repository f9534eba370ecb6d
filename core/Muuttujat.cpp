#include "core/Muuttujat.h"

#include <algorithm>
#include <map>

#include "core/RegionMuuttujat.h"

namespace tessarin {

Taulu<Tiedosto> Tiedostot(MaxFiles);
Taulu<Ikkuna> Ikkunat(MaxWindows);
Taulu<Ikkuna> IkkunatStat(MaxWindows);
Taulu<Populaatio> Populaatiot(kPopulationSlots);

int32_t MaxLoadedEvents = kDefaultMaxLoadedEvents;
int32_t FastDrawLimit = kDefaultFastDrawLimit;
bool KaytaNegAbsJuttua = false;

int16_t CurrentFile = 0;
int16_t ActiveWindow = 0;
int16_t PopupIkkuna = 0;
int16_t ClipSource = 0;
bool Loading = false;
bool Closing = false;
bool LykkaaPiirto = false;
bool ShiftPainettu = false;
bool PanelCollapsed = true;
bool PanelFrozen = false;
int16_t KokoaMuutetaan = 0;

namespace {

std::map<std::string, RememberedSize, std::less<>>& Sizes() {
    static std::map<std::string, RememberedSize, std::less<>> sizes;
    return sizes;
}

constexpr std::array<Rgb, kPopulationSlots> kDefaultColors = {{
    {255, 50, 0},    {255, 255, 0},   {0, 0, 255},     {255, 0, 255},  {120, 120, 120},
    {100, 200, 255}, {255, 200, 100}, {0, 150, 255},   {50, 200, 50},  {255, 255, 150},
    {123, 70, 123},  {0, 90, 170},    {60, 90, 60},    {60, 180, 60},  {120, 255, 120},
    {120, 180, 255}, {255, 0, 255},   {190, 190, 190}, {200, 0, 0},    {200, 180, 100},
    {200, 0, 100},   {0, 255, 200},   {255, 255, 150}, {255, 120, 70}, {190, 190, 190},
    {120, 120, 120}, {0, 0, 255},     {120, 130, 190}, {255, 80, 0},   {250, 220, 210},
    {100, 100, 255}, {60, 80, 120},
}};

void EmptyTables() {
    Tiedostot = Taulu<Tiedosto>(MaxFiles);
    Ikkunat = Taulu<Ikkuna>(MaxWindows);
    IkkunatStat = Taulu<Ikkuna>(MaxWindows);
    std::fill(Populaatiot.begin(), Populaatiot.end(), Populaatio());  // whose places do not change
    for (int slot = 1; slot <= kPopulationSlots; ++slot) {
        const Rgb color = kDefaultColors[static_cast<std::size_t>(slot) - 1];
        Populaatiot(slot).Red = color.red;
        Populaatiot(slot).Green = color.green;
        Populaatiot(slot).Blue = color.blue;
    }
}

}  // namespace

void PalautaAlkutila() {
    EmptyTables();
    MaxLoadedEvents = kDefaultMaxLoadedEvents;
    FastDrawLimit = kDefaultFastDrawLimit;
    KaytaNegAbsJuttua = false;
    CurrentFile = 0;
    ActiveWindow = 0;
    PopupIkkuna = 0;
    ClipSource = 0;
    Loading = false;
    Closing = false;
    LykkaaPiirto = false;
    ShiftPainettu = false;
    PanelCollapsed = true;
    PanelFrozen = false;
    KokoaMuutetaan = 0;
    for (auto& [group, size] : Sizes()) {
        size = {};
    }
    PalautaEleet();
}

RememberedSize& OletusKoko(std::string_view group) {
    return Sizes().try_emplace(std::string(group)).first->second;
}

void VapautaTiedosto(int16_t slot) {
    Tiedostot(slot) = Tiedosto();
}

void VapautaKayttamattomat() {
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        const bool shown = std::any_of(Ikkunat.begin(), Ikkunat.end(),
                                       [slot](const Ikkuna& row) { return row.FileIndex == slot; });
        if (!shown) {
            VapautaTiedosto(slot);
        }
    }
}

}  // namespace tessarin
