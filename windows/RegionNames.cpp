#include "windows/RegionNames.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {

double NimenPuolileveys(const Populaatio& region) {
    return static_cast<double>(Length(region.Name)) * kMerkinLeveys / 2;
}

PixelPoint NimenPaikka(const PlotArea& area, const Populaatio& region, NameBox box) {
    const PixelPoint middle =
        area.ToPixel({static_cast<double>(region.TitleBaseX) + region.TitleX,
                      static_cast<double>(region.TitleBaseY) + region.TitleY});
    return {middle.x - NimenPuolileveys(region), middle.y - box.above};
}

void PiirraNimi(Kuva& surface, const PlotArea& area, const Populaatio& region, NameBox box,
                Rgb ground) {
    constexpr int kLetters = 12;  // their height, what hangs below the line included
    const PixelPoint place = NimenPaikka(area, region, box);
    surface.Line(place.x - 1, place.y + 1, place.x + 2 * NimenPuolileveys(region),
                 place.y + kLetters, ground, LineForm::kFilledBox);
    surface.SetCurrent(place.x, place.y);
    surface.Print(region.Name);
}

bool OnkoNimenLahella(const PlotArea& area, const Populaatio& region, NameBox box,
                      PixelPoint mouse) {
    const PixelPoint corner = NimenPaikka(area, region, box);
    const double right = corner.x + 2 * NimenPuolileveys(region);
    const double bottom = corner.y + box.above + box.below;
    return mouse.x > corner.x - KahvanKoko && mouse.x < right + KahvanKoko &&
           mouse.y > corner.y - KahvanKoko && mouse.y < bottom + KahvanKoko;
}

void PudotaNimi(Populaatio& region, const PlotArea& area, NameBox box, PixelPoint mouse) {
    const GridPoint place = area.ToGrid({mouse.x + NimenPuolileveys(region), mouse.y + box.above});
    region.TitleX = ToInt32(Rounded(place.x) - region.TitleBaseX);
    region.TitleY = ToInt32(Rounded(place.y) - region.TitleBaseY);
}

}  // namespace tessarin
