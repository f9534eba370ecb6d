// A dot plot of known size on a file made in memory.
#pragma once

#include <string>
#include <vector>

#include "tests/support/ProgramFixture.h"
#include "windows/PlotArea.h"

namespace tessarin {

class PlotTest : public ProgramTest {
  protected:
    // A window whose surface is 236 by 236 pixels: the plot area is 200 by 200, so that with a
    // range of 1000 a value of 5 is one pixel.
    ScriptedForm& Open(const std::vector<TestChannel>& channels) {
        OletusKoko("DotPlot") = {TwipsFromPixels(236 + ScriptedForm::kFrameWidth).count,
                                 TwipsFromPixels(236 + ScriptedForm::kFrameHeight).count};
        PutFile(1, "tube.fcs", channels);
        CurrentFile = 1;
        return NewDotPlot();
    }

    void Arm() { platform.mainForm.events->PanelButtonPressed(PanelButton::kLuoUusiRegion); }
    static void DragIn(ScriptedForm& form, PixelPoint from, PixelPoint to) {
        form.Press(from.x, from.y);
        form.Move((from.x + to.x) / 2, (from.y + to.y) / 2);
        form.Move(to.x, to.y);
        form.Release(to.x, to.y);
    }

    static uint32_t DotAt(const ScriptedForm& form, int x, int y) {
        return form.surface.PixelAt(18 + x, 236 - 18 - y);
    }

    static void DefinePolygon(int16_t slot, const std::string& name, Rgb color,
                              const std::vector<int32_t>& members) {
        Populaatio& row = Populaatiot(slot);
        row.Defined = true;
        row.Name = name;
        row.Type = "Polygon";
        row.AxisX = 1;
        row.AxisY = 2;
        row.Red = color.red;
        row.Green = color.green;
        row.Blue = color.blue;
        for (const int32_t event : members) {
            Tiedostot(1).Membership.Aseta(event, slot, 1);
        }
    }
};

}  // namespace tessarin
