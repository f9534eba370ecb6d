// The histogram: its bins, its bars, and markers by mouse.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "HistogramFixture.h"
#include "plots/HistogramBins.h"
#include "plots/MarkerOutlines.h"

namespace tessarin {
namespace {

TEST(HistogramBinsTest, CountsByPlaceOnTheAxis) {
    PutFile(1, "f",
            {{"a", false, 1024, {0, -3, 5, 5.5F, 1023.9F, 1024, 1025, NAN, 1e30F}},
             {"b", false, 262144, {255, 256, 511, 512, 0, 0, 0, 0, 0}},
             {"c", true, 10000, {1, 10, 100, 1000, 10000, 0, 0, 0, 0}}});
    Tiedostot(1).Membership.Aseta(5, 3, 1);
    const auto bins = LaskeHistogrammi({Tiedostot(1), 1}, 1024);
    ASSERT_EQ(bins.size(), 1025U);
    EXPECT_EQ(bins[0], 3) << "what is at the foot, below it, and no number";
    EXPECT_EQ(bins[5], 2);
    EXPECT_EQ(bins[1023], 1);
    EXPECT_EQ(bins[1024], 1) << "just what lies on the range";
    EXPECT_EQ(std::count(bins.begin(), bins.end(), 0), 1021);
    const auto wide = LaskeHistogrammi({Tiedostot(1), 2}, 1024);
    EXPECT_EQ(wide[0], 6);
    EXPECT_EQ(wide[1], 2);
    EXPECT_EQ(wide[2], 1);
    const auto decades = LaskeHistogrammi({Tiedostot(1), 3}, 1024);
    EXPECT_EQ(decades[512], 1) << "two of four decades";
    EXPECT_EQ(decades[768], 1);
    EXPECT_EQ(LaskeHistogrammi({Tiedostot(1), 1, 3}, 1024)[1023], 1);
    EXPECT_EQ(LaskeHistogrammi({Tiedostot(1), 1, 3}, 1024)[0], 0) << "gated";
    EXPECT_EQ(LaskeHistogrammi({Tiedostot(1), 1, 0, 4}, 1024)[0], 1) << "events 1, 5 and 9";
    PalautaAlkutila();
}

TEST(HistogramBinsTest, SmoothsForwardAndFindsTheTop) {
    std::vector<double> bins(1025);
    bins[0] = 7;
    bins[9] = 8;
    bins[100] = 3;
    bins[1015] = 9;
    bins[1023] = 6;
    auto smooth = bins;
    Tasoita(smooth, 2);
    EXPECT_EQ(smooth[0], 7);
    EXPECT_EQ(smooth[97], 0);
    EXPECT_EQ(smooth[98] + smooth[99] + smooth[100], 3);
    EXPECT_EQ(smooth[101], 0);
    EXPECT_EQ(smooth[1021], 2);
    EXPECT_EQ(smooth[1022], 2) << "the last mean, of bins 1022 to 1024";
    EXPECT_EQ(smooth[1024], 2);
    EXPECT_EQ(KorkeinPylvas(bins), 3) << "not the ten bins at either end";
    EXPECT_EQ(KorkeinPylvas(smooth), 3) << "nine in three bins, the last of them before the end";
    bins[1014] = 4;
    EXPECT_EQ(KorkeinPylvas(bins), 4);
    bins[10] = 5;
    EXPECT_EQ(KorkeinPylvas(bins), 5);
    smooth = bins;
    Tasoita(smooth, 1000000);  // limited to 1023: one mean of bins 1 to 1024
    // 5 + 8 + 3 + 4 + 9 + 6 of them.
    EXPECT_FLOAT_EQ(static_cast<float>(smooth[1]), 35.0F / 1024);
    EXPECT_EQ(smooth[1024], smooth[1]);
    smooth = bins;
    Tasoita(smooth, 0);
    EXPECT_EQ(smooth, bins);
}

TEST_F(HistogramTest, DrawsBarsScaleAndTitles) {
    EXPECT_EQ(form_.caption, "[S] (1): Histogram - tube.fcs");
    EXPECT_TRUE(form_.surface.HasText("FL1"));
    ASSERT_TRUE(form_.surface.HasText(" 10"));
    const auto& texts = form_.surface.texts;
    const auto top = std::find_if(texts.begin(), texts.end(),
                                  [](const auto& text) { return text.text == " 10"; });
    EXPECT_EQ(top->tenths, 900);
    EXPECT_EQ(top->x, 2);
    EXPECT_EQ(top->y, 18 + 3 * 7);
    // From each column to the next, but for the first and the last.
    EXPECT_EQ(CountStrokes(LineForm::kLine, {175, 0, 0}), 199);
    // Up from the empty column 99 to the top of column 100.
    EXPECT_EQ(
        std::ranges::count_if(
            form_.surface.strokes,
            [](const auto& s) { return s.x1 == 117 && s.y1 == 218 && s.x2 == 118 && s.y2 == 18; }),
        1);
    ChoosePopup(form_, 13);
    EXPECT_EQ(CountStrokes(LineForm::kLine, {175, 0, 0}), 0);
    ChoosePopup(form_, 13);
    ChoosePopup(form_, 13);
    EXPECT_EQ(platform.popups.lastEntries[13].caption, "Don't draw outline");
    // Bin 512 of 1024 on 200 pixels is column 100, and 256 is column 50.
    EXPECT_EQ(form_.surface.PixelAt(118, 30), kRed.Pixel());
    EXPECT_EQ(form_.surface.PixelAt(68, 118 + 70), kRed.Pixel());
    EXPECT_EQ(form_.surface.PixelAt(68, 118 + 50), Grey(0).Pixel()) << "two of ten";

    Answer(2, "20");
    EXPECT_EQ(platform.dialogs.questions.back().text, "Set Y scale\n(0 = automatic)");
    EXPECT_TRUE(form_.surface.HasText(" 20"));
    EXPECT_EQ(form_.surface.PixelAt(118, 100), Grey(0).Pixel());
    for (const char* refused : {"", "-1", "many", "1e999"}) {
        Answer(2, refused);
        EXPECT_TRUE(form_.surface.HasText(" 20")) << refused;
    }
    Answer(2, "5");
    EXPECT_EQ(form_.surface.PixelAt(118, 18), kRed.Pixel());
    EXPECT_EQ(form_.surface.PixelAt(118, 17), Grey(0).Pixel()) << "a bar ends at the top";
    platform.dialogs.colors = {{0, 90, 200}};
    ChoosePopup(form_, 11);
    EXPECT_EQ(form_.surface.PixelAt(118, 100), (Rgb{0, 90, 200}).Pixel());
    ChoosePopup(form_, 13);
    EXPECT_GT(CountStrokes(LineForm::kLine, {0, 10, 120}), 0) << "no part of a colour below 0";
    form_.SetOuterSize(TwipsFromPixels(1036 + 24 + ScriptedForm::kFrameWidth),
                       TwipsFromPixels(300));
    EXPECT_EQ(CountStrokes(LineForm::kLine, {0, 10, 120}), 0) << "as many columns as bins";
    EXPECT_EQ(form_.surface.PixelAt(18 + 512, 100), (Rgb{0, 90, 200}).Pixel());
    form_.SetOuterSize(TwipsFromPixels(30 + ScriptedForm::kFrameWidth), TwipsFromPixels(300));
    EXPECT_EQ(CountStrokes(LineForm::kLine, {0, 90, 200}), 0) << "no room for a plot";
    form_.Resize(TwipsFromPixels(1), TwipsFromPixels(1));
    EXPECT_EQ(KokoaMuutetaan, 0) << "always redrawn in full";
}

TEST_F(HistogramTest, DrawsAMarkerByOneDrag) {
    PutFile(2, "other.fcs", {{"a", false, 1000, {200, 199.9F, 600, 600.1F}}});
    Arm();
    form_.Press(100, 100, MouseButton::kRight);
    EXPECT_EQ(KulmienMaara, 0) << "only the left button draws";
    form_.Press(100, 100);
    EXPECT_FALSE(form_.surface.AutoRedraw()) << "above the picture";
    form_.Lose();
    form_.Move(120, 100);
    form_.Release(120, 100);
    EXPECT_TRUE(UusiRegionPaalla && !Populaatiot(1).Defined) << "broken off, and armed still";
    Arm();
    DrawMarker();
    const Populaatio& marker = Populaatiot(1);
    EXPECT_TRUE(marker.Defined && marker.Transparent);
    EXPECT_EQ(marker.Name, "Histo-1");
    EXPECT_EQ(marker.Type, "Histogram");
    EXPECT_EQ(marker.AxisX, 1);
    EXPECT_EQ(marker.Corners, 2);
    EXPECT_EQ(marker.Created, 1);
    EXPECT_FLOAT_EQ(marker.X[1], 2000) << "in order, though drawn from right to left";
    EXPECT_FLOAT_EQ(marker.X[2], 6000);
    EXPECT_FLOAT_EQ(marker.Y[1], 5000);
    EXPECT_EQ(Members(1), 12);
    const auto other = Tiedostot(2).Membership.Sarake(1);
    EXPECT_EQ(std::vector<uint8_t>(other.begin(), other.end()), (std::vector<uint8_t>{1, 0, 1, 0}))
        << "both ends count as inside";
    EXPECT_FALSE(UusiRegionPaalla);
    EXPECT_TRUE(form_.surface.HasText("Histo-1"));
    // The bar, and two ends of a twentieth of the plot either way.
    EXPECT_EQ(form_.surface.PixelAt(100, 118), Grey(255).Pixel());
    EXPECT_EQ(form_.surface.PixelAt(58, 109), Grey(255).Pixel());
    EXPECT_NE(form_.surface.PixelAt(58, 107), Grey(255).Pixel());
    EXPECT_EQ(form_.surface.PixelAt(138, 109), Grey(255).Pixel());
    EXPECT_EQ(form_.surface.PixelAt(138, 127), Grey(255).Pixel());
    EXPECT_NE(form_.surface.PixelAt(138, 129), Grey(255).Pixel());
    ChoosePopup(form_, 5);
    EXPECT_FALSE(form_.surface.HasText("Histo-1"));

    platform.dialogs.answers = {true};
    Arm();
    form_.Press(118, 50);
    EXPECT_EQ(CountStrokes(LineForm::kFilledBox, kRed), 2) << "red at first";
    form_.Release(118, 50);
    EXPECT_EQ(Members(1), 10) << "without a move it takes what lies right there";
    Populaatiot(1).AxisX = 2;
    Tiedostot(2).Membership.Aseta(1, 1, 1);
    TarkistaPopulaatiot();
    EXPECT_EQ(Tiedostot(2).Membership(1, 1), 0) << "a file without the channel has no members";
}

TEST_F(HistogramTest, MarkersAreEditedAndMoved) {
    DrawMarker();
    form_.Move(138, 119);
    EXPECT_EQ(CountStrokes(LineForm::kFilledBox, Grey(255)), 2) << "an end marks both";
    Drag(138, 118, 500, 68);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[2], 10000) << "an end stops at the edge";
    EXPECT_FLOAT_EQ(Populaatiot(1).Y[1], 2500) << "and changes the height";
    Drag(218, 68, 98, 68);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[2], 4000);
    EXPECT_EQ(Members(1), 2);

    form_.Press(70, 200);  // between the ends, at any height
    EXPECT_EQ(SiirrettavaRegion, 1);
    form_.Move(90, 200);
    form_.Move(400, 200);  // would leave the plot: stays
    form_.Move(380, 200);
    form_.Release(380, 200);
    for (const double x : {58.0, 98.0, 150.0, 40.0}) {
        form_.Press(x, 200);
        EXPECT_EQ(SiirrettavaRegion, 0) << "at an end or beside it";
        form_.Release(x, 200);
    }
    // To each edge and back; the way back is 40, 160, and 50 pixels up and down.
    for (const auto& [x, y] :
         {std::pair{30.0, 200.0}, {190.0, 200.0}, {70.0, 150.0}, {70.0, 200.0}}) {
        Drag(70, 200, x, y);
        EXPECT_FLOAT_EQ(Populaatiot(1).X[1], static_cast<float>(2000 + (x - 70) * 50));
        Drag(x, y, 70, 200);
    }
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 2000);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[2], 4000);
    EXPECT_EQ(SiirrettavaRegion, 0);
    Drag(70, 200, 130, 210);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 5000);
    EXPECT_EQ(Members(1), 10);

    form_.Press(118, 78);
    EXPECT_EQ(MuokattavaKulma, 1);
    form_.SetOuterSize(TwipsFromPixels(436 + ScriptedForm::kFrameWidth), TwipsFromPixels(300));
    form_.Move(218, 78);
    EXPECT_EQ(KulmaX[2], 18 + 0.7F * 400) << "the other end stays where it was on the axis";
    form_.SetOuterSize(TwipsFromPixels(236 + ScriptedForm::kFrameWidth),
                       TwipsFromPixels(236 + ScriptedForm::kFrameHeight));
    form_.Move(20, 78);
    form_.Lose();
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 5000) << "broken off";
}

TEST_F(HistogramTest, NamesOfMarkersAreMoved) {
    DrawMarker();
    Drag(58, 118, 118, 78);
    Drag(138, 78, 158, 78);
    const PlotArea area(form_.surface);
    const PixelPoint name = NimenPaikka(area, Populaatiot(1), kMarkerName);
    EXPECT_EQ(name.x, 18 + 120 - 7 * 3.5) << "over the middle of 5000 and 7000";
    EXPECT_EQ(name.y, 78 - 14);
    EXPECT_EQ(form_.surface.PixelAt(118, 70), Grey(0).Pixel()) << "the name hides an end";
    form_.Press(name.x + 1, name.y + 1);
    EXPECT_EQ(form_.surface.PixelAt(118, 70), Grey(255).Pixel()) << "but not while it is in hand";
    form_.Lose();
    form_.Move(name.x + 20, name.y + 18);
    EXPECT_EQ(CountStrokes(LineForm::kFilledBox, Grey(120)), 1);
    Drag(name.x + 1, name.y + 1, name.x + 11, name.y - 9);
    EXPECT_EQ(Populaatiot(1).TitleX, 550) << "its corner goes to the mouse";
    EXPECT_EQ(Populaatiot(1).TitleY, -450);
}

TEST_F(HistogramTest, LeavesAPolygonUnderWorkAlone) {
    ScriptedForm& dots = NewDotPlot();
    Arm();
    dots.Press(68, 68);
    dots.Release(68, 68);
    form_.Press(100, 100);
    form_.Move(120, 100);
    form_.Release(120, 100);
    EXPECT_TRUE(RegionAloitettu);
    EXPECT_EQ(KulmienMaara, 1);
    EXPECT_FALSE(Populaatiot(1).Defined);
}

}  // namespace
}  // namespace tessarin
