// The quadrant cross of a window: its item, its keys, what tools ask of it, and dragging it.
#pragma once

#include <string>
#include <string_view>

#include "mainwindow/WindowRoles.h"
#include "plots/QuadrantCross.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// A part of windows whose plane a cross can divide.
class QuadrantPart : public QuadrantOwner {
  public:
    explicit QuadrantPart(FrameWindow& window) : window_(window) {}

    // QuadrantOwner.
    void NaytaTaiPiilotaKvadrantti(std::string_view what) override;
    bool OnkoKvadranttiKaytossa() const override { return cross_.KvadranttiKaytossa; }
    void AsetaRegion(std::string_view axis, double value) override;
    std::string AnnaKvadrantinKoordinaatit(std::string_view axis) const override;

    const Kvadrantti& Risti() const { return cross_; }
    /// Draws the cross, unless it is hidden or being dragged.
    void Piirra(const PlotArea& area);

    // The mouse. Each is True when the cross took it.
    bool Tartu(const PlotArea& area, PixelPoint mouse);
    bool Liiku(const PlotArea& area, PixelPoint mouse);
    bool Paasta(const PlotArea& area, PixelPoint mouse);
    /// The mouse was taken away.
    void Keskeyta();

    WindowMenuItem Item();
    void AddKeys(SheetTable& keys);

  private:
    FrameWindow& window_;
    Kvadrantti cross_;
    bool koskettu_ = false;  // somebody has shown or hidden it, and its item reads otherwise then
};

}  // namespace tessarin
