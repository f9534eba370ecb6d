// A picture surface for tests: real pixels, and a list of what was written and drawn.
#pragma once

#include <string>
#include <vector>

#include "platform/raster/RasterKuva.h"

namespace tessarin {

class RecordingKuva : public RasterKuva {
  public:
    struct Text {
        std::string text;
        double x = 0;
        double y = 0;
        Rgb color;
        int tenths = 0;  ///< angle
    };
    struct Stroke {
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        Rgb color;
        LineForm form = LineForm::kLine;
    };

    void Cls() override;
    void Line(double x1, double y1, double x2, double y2, Rgb color, LineForm form) override;
    void PaintBlocks(const Blocks& blocks) override;

    /// What was drawn since the last `Cls`, of either layer.
    std::vector<Text> texts;
    std::vector<Stroke> strokes;
    /// Dots and cells since the last `Cls` of the persistent layer.
    std::size_t blocksPainted = 0;
    /// Changes of the whole picture: calls of `Cls` on the persistent layer.
    int redraws = 0;

    /// The colour word of the persistent picture at a device pixel.
    uint32_t PixelAt(int x, int y) const { return Image().At(x, y); }
    bool HasText(const std::string& text) const;

  protected:
    void PaintText(Layer& layer, const TextRun& run) override;
};

}  // namespace tessarin
