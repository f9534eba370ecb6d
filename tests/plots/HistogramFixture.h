// A program with one histogram.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/RegionMuuttujat.h"
#include "mainwindow/WindowList.h"
#include "tests/support/PlotFixture.h"

namespace tessarin {

/// Ten events at 500, in bin 512, and two at 250, in bin 256; smoothing is off.
class HistogramTest : public PlotTest {
  protected:
    HistogramTest() : form_(Make()) { Answer(3, "0"); }

    ScriptedForm& Make() {
        OletusKoko("Histogram") = {TwipsFromPixels(236 + ScriptedForm::kFrameWidth).count,
                                   TwipsFromPixels(236 + ScriptedForm::kFrameHeight).count};
        std::vector<float> values(10, 500);
        values.insert(values.end(), 2, 250);
        PutFile(1, "tube.fcs",
                {{"FL1", false, 1000, values}, {"FL2", false, 1000, std::vector<float>(12, 100)}});
        CurrentFile = 1;
        Choose("CreateHistogram");
        return LastForm();
    }
    void Answer(int item, const std::string& text) {
        platform.dialogs.texts.push_back(text);
        ChoosePopup(form_, item);
    }
    void Drag(double x1, double y1, double x2, double y2) { DragIn(form_, {x1, y1}, {x2, y2}); }
    // Ends at grid 2000 and 6000, height 5000.
    void DrawMarker() {
        Arm();
        Drag(138, 100, 58, 118);  // from right to left
    }
    int Members(int16_t slot) {
        const auto column = Tiedostot(1).Membership.Sarake(slot);
        return static_cast<int>(std::count(column.begin(), column.end(), uint8_t{1}));
    }
    int CountStrokes(LineForm form, Rgb color) {
        const auto& strokes = form_.surface.strokes;
        return static_cast<int>(std::count_if(
            strokes.begin(), strokes.end(),
            [&](const auto& stroke) { return stroke.form == form && stroke.color == color; }));
    }

    ScriptedForm& form_;
    const Rgb kRed{255, 0, 0};
};

}  // namespace tessarin
