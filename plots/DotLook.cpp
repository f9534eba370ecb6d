#include "plots/DotLook.h"

namespace tessarin {

DotStyle DotLook::Style() const {
    return {PisteenKoko, MoniVari, window_.Background().Line()};
}

WindowMenuItem DotLook::SizeItem() {
    return {PisteenKoko == 1 ? "Large dots" : "Small dots", [this] {
                PisteenKoko = PisteenKoko == 1 ? 2 : 1;
                window_.Piirra();
            }};
}

WindowMenuItem DotLook::ColoursItem() {
    return window_.FlagItem(MoniVari, "Disable multicoloring", "Enable multicoloring");
}

void DotLook::AddSizeKey(SheetTable& keys) {
    keys.Add({"dot.size", [this] { return std::to_string(PisteenKoko); },
              [this](std::string_view value) {
                  if (value == "1" || value == "2") {
                      PisteenKoko = value == "1" ? 1 : 2;
                  }
              }});
}

void DotLook::AddColoursKey(SheetTable& keys) {
    keys.Add(Lippuavain("multicolor.enabled", MoniVari));
}

void DensityLook::Piirra(const PlotArea& area, const PlotData& data) {
    if (Tiheys) {
        picture_.Piirra(window_.Surface(), area, data, TiheysResoluutio);
    } else {
        PiirraPisteet(window_.Surface(), area, data, dots_.Style());
    }
}

WindowMenuItem DensityLook::Item() {
    return window_.FlagItem(Tiheys, "Dot plot", "Density plot");
}

void DensityLook::AddKeys(SheetTable& keys) {
    keys.Add(Lippuavain("density.enabled", Tiheys));
    // Written for whoever reads the sheet; the grid never changes.
    keys.Add({"density.resolution", [this] { return std::to_string(TiheysResoluutio); }, nullptr});
}

}  // namespace tessarin
