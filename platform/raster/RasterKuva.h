// The picture surface in plain memory: all of `Kuva` but the drawing of letters.
//
// Every surface of the program is one of these, so a plot comes out the same on a screen, in a
// file, headless and in a test; those who derive from it add text and show the pixels.
#pragma once

#include <string_view>

#include "platform/Kuva.h"
#include "platform/raster/Layer.h"

namespace tessarin {

class RasterKuva : public Kuva {
  public:
    RasterKuva();

    int Left() const override { return left_; }
    int Top() const override { return top_; }
    int Width() const override { return width_; }
    int Height() const override { return height_; }
    void SetPlace(int left, int top) override;
    void SetSize(int width, int height) override;
    void SetVisible(bool visible) override { visible_ = visible; }

    void SetBackColor(Rgb color) override { backColor_ = color; }
    void SetForeColor(Rgb color) override { foreColor_ = color; }
    void Cls() override;
    bool AutoRedraw() const override { return autoRedraw_; }
    void SetAutoRedraw(bool on) override { autoRedraw_ = on; }
    void SetDrawWidth(int pixels) override { drawWidth_ = pixels; }
    void Line(double x1, double y1, double x2, double y2, Rgb color, LineForm form) override;
    void PSet(double x, double y, Rgb color) override;
    void Circle(double x, double y, double radius, Rgb color) override;
    void SetFillStyle(bool filled) override { filled_ = filled; }
    void SetFillColor(Rgb color) override { fillColor_ = color; }
    void PaintBlocks(const Blocks& blocks) override;
    void PaintPicture(const Bitmap& picture, double x, double y, double width,
                      double height) override;
    void SetCurrent(double x, double y) override;
    void Print(std::string_view text) override;
    void AsetaKierrettyFontti(int tenths) override { tenths_ = tenths; }
    void PalautaFontti() override { tenths_ = 0; }
    Bitmap Image() const override;
    void SetPicture(const Bitmap& picture) override;
    void SetMousePointer(MousePointer pointer) override { pointer_ = pointer; }

    /// Device pixels for each pixel; the picture starts anew, empty, when it changes.
    void SetRatio(double ratio);
    double Ratio() const { return ratio_; }

    /// What the user sees: the overlay while it holds something, else the persistent picture.
    const Layer& Shown() const { return overlayShown_ ? overlay_ : picture_; }
    bool IsVisible() const { return visible_; }
    MousePointer Pointer() const { return pointer_; }

  protected:
    /// A text to be drawn: its place in pixels, and the angle at which it leads from there, in
    /// tenths of a degree to the left.
    struct TextRun {
        std::string_view text;
        double x = 0;
        double y = 0;
        Rgb color;
        int tenths = 0;
    };

    /// Draws the letters into `layer`, whose pixels are `Ratio()` to one, 7 pixels a character.
    virtual void PaintText(Layer& layer, const TextRun& run) = 0;

    /// Told after each drawing which device pixels look different now.
    virtual void Changed(const PixelRect& /*rect*/) {}

    static constexpr int kCharacterWidth = 7;
    static constexpr int kLineHeight = 14;

  private:
    Layer& Target();
    void Touch(const PixelRect& rect);
    int Device(double place) const;
    int Thickness() const;
    void DeviceLine(double x1, double y1, double x2, double y2, uint32_t pixel);
    PixelRect DeviceBox(double x1, double y1, double x2, double y2) const;
    void ResizeLayers();

    int left_ = 0;
    int top_ = 0;
    int width_ = 1;
    int height_ = 1;
    double ratio_ = 1;
    bool visible_ = true;
    Rgb backColor_;
    Rgb foreColor_ = Grey(255);
    Rgb fillColor_;
    bool filled_ = false;
    bool autoRedraw_ = true;
    int drawWidth_ = 1;
    double currentX_ = 0;
    double currentY_ = 0;
    int tenths_ = 0;  // angle of the next text
    MousePointer pointer_ = MousePointer::kNormal;

    Layer picture_;
    Layer overlay_;
    bool overlayShown_ = false;
    PixelRect overlayTouched_;  // where the overlay differs from the picture
};

}  // namespace tessarin
