// The settings of a histogram as key lines of a sheet.
#include "plots/Histogram.h"

namespace tessarin {

std::vector<SheetKey> Histogram::Keys() {
    std::vector<SheetKey> keys;
    AddPlaceKeys(keys);
    keys.push_back(Lukuavain("axis.x", KanavaX));
    keys.push_back(ShowKey());
    LisaaVariavaimet(keys, "fill.", Tayttovari.red, Tayttovari.green, Tayttovari.blue);
    keys.push_back(Lippuavain("border.enabled", Reunus, [this] { SetOutlineCaption(); }));
    keys.push_back(Lukuavain("yscale", YSkaala, 0));
    keys.push_back(Lukuavain("smoothing", Tasoitus, 0));
    AddRegionKeys(keys);
    keys.push_back(FastDrawKey());
    keys.push_back(BackgroundKey());
    constexpr int kItems = 9;
    AddViewKeys(keys, kItems);
    return keys;
}

// Only the two shades that it writes itself choose the background.
void Histogram::TakeBackground(uint8_t shade) {
    tausta_.Harmaa = shade;
    if (shade == 0 || shade == 255) {
        tausta_.MustaTausta = shade != 0;
    }
}

}  // namespace tessarin
