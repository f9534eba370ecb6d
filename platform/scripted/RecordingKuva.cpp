#include "platform/scripted/RecordingKuva.h"

#include <algorithm>

namespace tessarin {

void RecordingKuva::Cls() {
    texts.clear();
    strokes.clear();
    if (AutoRedraw()) {
        blocksPainted = 0;
        ++redraws;
    }
    RasterKuva::Cls();
}

void RecordingKuva::Line(double x1, double y1, double x2, double y2, Rgb color, LineForm form) {
    strokes.push_back({x1, y1, x2, y2, color, form});
    RasterKuva::Line(x1, y1, x2, y2, color, form);
}

void RecordingKuva::PaintBlocks(const Blocks& blocks) {
    blocksPainted += blocks.x.size();
    RasterKuva::PaintBlocks(blocks);
}

bool RecordingKuva::HasText(const std::string& text) const {
    return std::any_of(texts.begin(), texts.end(),
                       [&text](const Text& written) { return written.text == text; });
}

void RecordingKuva::PaintText(Layer& /*layer*/, const TextRun& run) {
    texts.push_back({std::string(run.text), run.x, run.y, run.color, run.tenths});
}

}  // namespace tessarin
