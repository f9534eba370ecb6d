// Drawing, editing and moving polygon regions with the mouse, for every window that has them.
#pragma once

#include <cstdint>
#include <vector>

#include "windows/RegionGesture.h"

namespace tessarin {

/// `MonikulmioEle` means polygon gesture. A polygon is drawn by a click for each corner.
class MonikulmioEle : public RegionEle {
  public:
    explicit MonikulmioEle(RegionHost& host);

    /// Closes the polygon or places a corner. Presses in other windows than the one where drawing
    /// began do nothing.
    void Piirra(MouseButton button, PixelPoint mouse) override;
    bool OnkoPiirto() const override;
    void Unohda() override;

  private:
    int16_t FindCorner(PixelPoint mouse, int16_t& corner) override;
    int16_t FindInside(PixelPoint mouse) override;
    std::vector<PixelPoint> Corners(const Populaatio& region) override;
    void Take(const Populaatio& region) override;
    void Store(Populaatio& region, int16_t corner) override;
    void DragNew(PixelPoint mouse) override;
    void DragCorner(PixelPoint mouse) override;
    void DragWhole(PixelPoint mouse, PixelPoint before) override;
    void DropCorner(PixelPoint mouse) override;
    void DrawUnderWork() override { DrawCorners(true); }

    void Close();
    void PlaceCorner(PixelPoint mouse);
    void DrawCorners(bool closed);
};

}  // namespace tessarin
