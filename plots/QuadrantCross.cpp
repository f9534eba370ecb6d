#include "plots/QuadrantCross.h"

#include "core/RegionMuuttujat.h"

namespace tessarin {

bool Kvadrantti::NaytaTaiPiilota(std::string_view what) {
    const bool show = what == "open" || (what != "close" && !KvadranttiKaytossa);
    if (show == KvadranttiKaytossa) {
        return false;
    }
    KvadranttiKaytossa = show;
    if (show) {
        constexpr int32_t kMiddle = 5000;
        const bool dragged = ViimeKvadranttiX != 0 && ViimeKvadranttiY != 0;
        KvadranttiX = dragged ? ViimeKvadranttiX : kMiddle;
        KvadranttiY = dragged ? ViimeKvadranttiY : kMiddle;
    }
    return true;
}

void Kvadrantti::Piirra(Kuva& surface, const PlotArea& area, Rgb color) const {
    const PixelPoint at = area.ToPixel(
        {static_cast<double>(KvadranttiX), static_cast<double>(KvadranttiY)});
    PiirraKahva(surface, at, color);
    surface.Line(at.x, area.Bottom(), at.x, area.Top(), color, LineForm::kFilledBox);
    surface.Line(area.Left(), at.y, area.Right(), at.y, color, LineForm::kFilledBox);
}

}  // namespace tessarin
