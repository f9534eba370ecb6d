// Drawing, editing and moving markers on a histogram with the mouse.
#pragma once

#include <cstdint>
#include <vector>

#include "plots/MarkerOutlines.h"
#include "windows/RegionGesture.h"

namespace tessarin {

/// `MarkkeriEle` means marker gesture. A marker is drawn by one drag from end to end. `KulmaX(1)`
/// and `KulmaX(2)` are its ends and `KulmaY(1)` its height.
class MarkkeriEle : public RegionEle {
  public:
    explicit MarkkeriEle(RegionHost& host) : RegionEle(host, kMarkerName) {}

    /// A left press begins a new marker, unless a polygon is being drawn in another window.
    void Piirra(MouseButton button, PixelPoint mouse) override;
    bool OnkoPiirto() const override { return MarkkeriVeto; }
    void Keskeyta() override;
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
    void DropCorner(PixelPoint /*mouse*/) override {}
    void ReleaseNew() override;
    void DrawUnderWork() override { DrawMarker(host_.EleenVari()); }

    void DrawMarker(Rgb color);
    void AbandonNew();

    bool MarkkeriVeto = false;  // a new marker is being dragged out
};

}  // namespace tessarin
