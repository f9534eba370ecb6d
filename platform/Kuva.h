// The picture surface that every plot draws on.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/Bitmap.h"
#include "core/Color.h"

namespace tessarin {

/// Many filled rectangles of one size, each in its own colour, painted in order.
///
/// `x`, `y` are the places in pixels, not rounded yet; `pixel` the colours as `Rgb::Pixel` gives
/// them; all three have the same length. A block covers `width` by `height` pixels; dots are
/// blocks of 1 by 1 or 2 by 2. Places outside the surface are passed over, whatever their value.
struct Blocks {
    std::span<const double> x;
    std::span<const double> y;
    std::span<const uint32_t> pixel;
    int width = 1;
    int height = 1;
};

/// Shapes that `Line` has.
enum class LineForm {
    kLine,       ///< from one end to the other, both included
    kBox,        ///< outline of the rectangle between two corners
    kFilledBox,  ///< the whole rectangle, both corners included; zero wide is one pixel wide
};

/// The pointer over a surface or a window.
enum class MousePointer { kNormal = 0, kCrosshair = 2, kHourglass = 11 };

/// `Kuva` means picture. All places and sizes are in pixels, x to the right and y downwards from
/// the upper left corner; places are rounded to the nearest pixel, ties to even. On a screen of
/// high density one pixel here is several there, and lines, dots and text keep their size.
///
/// There are two layers. With `AutoRedraw` on, drawing goes into the persistent picture, which
/// survives repaints. With it off, drawing goes to a transient overlay above that picture.
class Kuva {
  public:
    virtual ~Kuva() = default;

    // Size and place in the window. A size below 1 is taken as 1 when a picture is made.
    virtual int Left() const = 0;
    virtual int Top() const = 0;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    virtual void SetPlace(int left, int top) = 0;
    virtual void SetSize(int width, int height) = 0;
    virtual void SetVisible(bool visible) = 0;

    virtual void SetBackColor(Rgb color) = 0;
    virtual void SetForeColor(Rgb color) = 0;

    /// With `AutoRedraw` on: fills the whole surface with the background colour. With it off:
    /// wipes the overlay only, and the persistent picture shows again.
    virtual void Cls() = 0;

    virtual bool AutoRedraw() const = 0;
    virtual void SetAutoRedraw(bool on) = 0;

    /// Width in pixels of lines and dots; 1 or 2.
    virtual void SetDrawWidth(int pixels) = 0;

    virtual void Line(double x1, double y1, double x2, double y2, Rgb color,
                      LineForm form = LineForm::kLine) = 0;
    /// One dot as large as the draw width.
    virtual void PSet(double x, double y, Rgb color) = 0;
    /// Circle of that radius around (x, y), filled with the fill colour first if `FillStyle` says.
    virtual void Circle(double x, double y, double radius, Rgb color) = 0;
    virtual void SetFillStyle(bool filled) = 0;
    virtual void SetFillColor(Rgb color) = 0;
    /// Many dots or cells at once, straight into the picture's memory.
    virtual void PaintBlocks(const Blocks& blocks) = 0;
    /// Another picture, stretched to the rectangle at (x, y) of `width` by `height` pixels.
    virtual void PaintPicture(const Bitmap& picture, double x, double y, double width,
                              double height) = 0;

    /// Place of the next text: the upper left corner of its first character.
    virtual void SetCurrent(double x, double y) = 0;
    /// Writes UTF-8 text at the current place in the text colour. Each character takes 7 pixels.
    virtual void Print(std::string_view text) = 0;
    /// The next `Print` writes at an angle, in tenths of a degree to the left: 900 is upwards. The
    /// current place is the upper left corner of the first character before it was turned.
    virtual void AsetaKierrettyFontti(int tenths) = 0;
    /// Back to the font of the surface.
    virtual void PalautaFontti() = 0;

    /// The persistent picture, as it would be saved or copied.
    virtual Bitmap Image() const = 0;
    /// Takes over a picture, and its size with it.
    virtual void SetPicture(const Bitmap& picture) = 0;

    virtual void SetMousePointer(MousePointer pointer) = 0;
};

}  // namespace tessarin
