// Where a plot's data stand on its surface, and the grid on which regions are kept.
#pragma once

#include <cstdint>

#include "core/Projektio.h"
#include "platform/Kuva.h"

namespace tessarin {

inline constexpr int16_t TekstiMarginaali = 18;  // pixels free on every side of the plot area
inline constexpr int16_t TikinPituus = 4;        // pixels of a tick; also axis to title
inline constexpr int16_t KahvanKoko = 3;         // half size of a square handle, and its reach
inline constexpr int kMerkinLeveys = 7;          // width of a character in all layout rules

/// A place on a surface, in pixels, not rounded.
struct PixelPoint {
    double x = 0;
    double y = 0;
};

/// A place on the grid: x from the left edge of the plot area, y from its top.
struct GridPoint {
    double x = 0;
    double y = 0;
};

/// Background, and the grey level of everything that is not coloured.
struct Tausta {
    bool MustaTausta = true;
    uint8_t Harmaa = 255;

    /// Brings `Harmaa` in line with `MustaTausta`.
    void Paivita() { Harmaa = MustaTausta ? 255 : 0; }
    Rgb BackColor() const { return MustaTausta ? Grey(0) : Grey(255); }
    Rgb ForeColor() const { return MustaTausta ? Grey(255) : Grey(0); }
    Rgb Line() const { return Grey(Harmaa); }
};

/// What is left free around the plot area, and how far that was moved, in pixels.
struct AreaFrame {
    int margin = TekstiMarginaali;
    PixelPoint shift{};
};

/// The plot area of a surface at one moment: where the grid lies on it. All its conversions are in
/// floating point.
class PlotArea {
  public:
    /// Sizes below 1 are taken as 1.
    PlotArea(int width, int height, AreaFrame frame = {});
    explicit PlotArea(const Kuva& surface, AreaFrame frame = {})
        : PlotArea(surface.Width(), surface.Height(), frame) {}

    double W() const { return w_; }
    double H() const { return h_; }
    double Left() const { return frame_.margin + frame_.shift.x; }
    double Top() const { return frame_.margin + frame_.shift.y; }
    double Right() const { return w_ - frame_.margin + frame_.shift.x; }
    double Bottom() const { return h_ - frame_.margin + frame_.shift.y; }
    /// Length of the x axis and of the y axis; below 0 on a surface too small for the margins.
    double XLength() const { return w_ - 2 * frame_.margin; }
    double YLength() const { return h_ - 2 * frame_.margin; }

    PixelPoint ToPixel(GridPoint place) const;
    /// On an axis without length the result is 0.
    GridPoint ToGrid(PixelPoint place) const;

  private:
    double w_;
    double h_;
    AreaFrame frame_;
};

/// Draws a square handle at a place.
void PiirraKahva(Kuva& surface, PixelPoint at, Rgb color);

/// Whether the mouse hits the handle at a place.
bool OsuuKahvaan(PixelPoint handle, PixelPoint mouse);

}  // namespace tessarin
