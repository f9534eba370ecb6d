// The settings of a dot plot as key lines of a sheet.
#include "plots/DotPlot.h"

namespace tessarin {

std::vector<SheetKey> DotPlot::Keys() {
    std::vector<SheetKey> keys;
    AddPlaceKeys(keys);
    keys.push_back(Lukuavain("axis.x", KanavaX));
    keys.push_back(Lukuavain("axis.y", KanavaY));
    keys.push_back(ShowKey());
    keys.push_back(Lippuavain("quadrant.enabled", kvadrantti_.KvadranttiKaytossa,
                              [this] { SetQuadrantCaption(); }));
    keys.push_back(Lukuavain("quadrant.x", kvadrantti_.KvadranttiX));
    keys.push_back(Lukuavain("quadrant.y", kvadrantti_.KvadranttiY));
    keys.push_back(Lippuavain("density.enabled", Tiheys, [this] { SetDensityCaption(); }));
    // Written for whoever reads the sheet; the grid never changes.
    keys.push_back(
        {"density.resolution", [this] { return std::to_string(TiheysResoluutio); }, nullptr});
    AddRegionKeys(keys);
    keys.push_back(FastDrawKey());
    keys.push_back(BackgroundKey());
    keys.push_back(Lippuavain("multicolor.enabled", MoniVari, [this] { SetColoursCaption(); }));
    keys.push_back({"dot.size", [this] { return std::to_string(PisteenKoko); },
                    [this](std::string_view value) {
                        if (value == "1" || value == "2") {
                            PisteenKoko = value == "1" ? 1 : 2;
                            SetDotSizeCaption();
                        }
                    }});
    constexpr int kItems = 10;
    AddViewKeys(keys, kItems);
    return keys;
}

void DotPlot::TakeBackground(uint8_t shade) {
    tausta_.Harmaa = shade;
    tausta_.MustaTausta = shade != 0;
}

}  // namespace tessarin
