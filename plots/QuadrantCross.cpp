#include "plots/QuadrantCross.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {
namespace {

PixelPoint Centre(const Kvadrantti& cross, const PlotArea& area) {
    return area.ToPixel(
        {static_cast<double>(cross.KvadranttiX), static_cast<double>(cross.KvadranttiY)});
}

// The nearest place in the plot area.
PixelPoint Inside(const PlotArea& area, PixelPoint place) {
    return {std::max(area.Left(), std::min(area.Right(), place.x)),
            std::max(area.Top(), std::min(area.Bottom(), place.y))};
}

void DrawCross(Kuva& surface, const PlotArea& area, PixelPoint at, Rgb color) {
    PiirraKahva(surface, at, color);
    surface.Line(at.x, area.Bottom(), at.x, area.Top(), color, LineForm::kFilledBox);
    surface.Line(area.Left(), at.y, area.Right(), at.y, color, LineForm::kFilledBox);
}

}  // namespace

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

bool Kvadrantti::Osuu(const PlotArea& area, PixelPoint mouse) const {
    return KvadranttiKaytossa && OsuuKahvaan(Centre(*this, area), mouse);
}

void Kvadrantti::PiirraLiikkuva(Kuva& surface, const PlotArea& area, PixelPoint mouse, Rgb color) {
    surface.Cls();
    DrawCross(surface, area, Inside(area, mouse), color);
}

void Kvadrantti::Pudota(const PlotArea& area, PixelPoint mouse) {
    const PixelPoint place = Inside(area, mouse);
    // Multiplied first, so that the middle between two grid places is met exactly.
    const auto toGrid = [](double distance, double length) {
        return length == 0 ? 0 : ToInt32(Rounded(kGrid * distance / length));
    };
    KvadranttiX = toGrid(place.x - area.Left(), area.XLength());
    KvadranttiY = toGrid(place.y - area.Top(), area.YLength());
    ViimeKvadranttiX = KvadranttiX;
    ViimeKvadranttiY = KvadranttiY;
    KvadranttiLiikkuu = false;
}

void Kvadrantti::Piirra(Kuva& surface, const PlotArea& area, Rgb color) const {
    DrawCross(surface, area, Centre(*this, area), color);
}

}  // namespace tessarin
