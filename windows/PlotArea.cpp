#include "windows/PlotArea.h"

#include <algorithm>
#include <cmath>

namespace tessarin {

PlotArea::PlotArea(int width, int height, AreaFrame frame)
    : w_(std::max(1, width)), h_(std::max(1, height)), frame_(frame) {}

PixelPoint PlotArea::ToPixel(GridPoint place) const {
    return {Left() + XLength() * place.x / kGrid, Top() + YLength() * place.y / kGrid};
}

GridPoint PlotArea::ToGrid(PixelPoint place) const {
    return {XLength() == 0 ? 0 : (place.x - Left()) / XLength() * kGrid,
            YLength() == 0 ? 0 : (place.y - Top()) / YLength() * kGrid};
}

void PiirraKahva(Kuva& surface, PixelPoint at, Rgb color) {
    surface.Line(at.x - KahvanKoko, at.y - KahvanKoko, at.x + KahvanKoko, at.y + KahvanKoko, color,
                 LineForm::kFilledBox);
}

bool OsuuKahvaan(PixelPoint handle, PixelPoint mouse) {
    return std::fabs(mouse.x - handle.x) < KahvanKoko && std::fabs(mouse.y - handle.y) < KahvanKoko;
}

}  // namespace tessarin
