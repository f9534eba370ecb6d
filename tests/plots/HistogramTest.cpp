// The histogram: its bins, its bars, markers by mouse, and its statistics.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/RegionMuuttujat.h"
#include "mainwindow/WindowList.h"
#include "mainwindow/WindowRegistry.h"
#include "plots/HistogramBins.h"
#include "plots/MarkerOutlines.h"
#include "tests/support/PlotFixture.h"
#include "windows/FrameWindow.h"

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

// Ten events at 500, in bin 512, and two at 250, in bin 256; smoothing is off.
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
    void Arm() { platform.mainForm.events->PanelButtonPressed(PanelButton::kLuoUusiRegion); }
    void Drag(double x1, double y1, double x2, double y2) {
        form_.Press(x1, y1);
        form_.Move((x1 + x2) / 2, (y1 + y2) / 2);
        form_.Move(x2, y2);
        form_.Release(x2, y2);
    }
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

TEST_F(HistogramTest, GivesItsBinsToOthers) {
    AnalysisWindow& window = *IkkunaPaikassa(1);
    const BinOwner& bins = *window.Bins();
    ChoosePopup(form_, 16);
    std::string expected;
    for (int bin = 1; bin <= 1024; ++bin) {
        expected += bin == 512 ? "10\n" : (bin == 256 ? "2\n" : "0\n");
    }
    EXPECT_EQ(platform.clipboard.text, expected);
    EXPECT_EQ(bins.LahetaHistogram()[512], 10);
    EXPECT_EQ(bins.LahetaMax(), 1000);
    EXPECT_EQ(bins.LahetaLog(), false);
    EXPECT_EQ(bins.LahetaNimi(), "FL1");
    EXPECT_EQ(bins.LahetaKanavaID(), 1);
    EXPECT_EQ(bins.LahetaScale(), 0);
    Populaatiot(1).X[1] = 1000;
    Populaatiot(1).X[2] = 4000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 2500);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("abskorkeus", 1), 2);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("suhtkorkeus", 1), 2000);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("other", 1), 0);
    Populaatiot(1).X[2] = 5000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("abskorkeus", 1), 10) << "the bin at its end";
    Populaatiot(MaxPopulations) = Populaatiot(1);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", MaxPopulations), 5000);
    Populaatiot(1).X[2] = 2000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 0) << "no bin wins";
    Populaatiot(1).X[2] = 1e30F;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 5000);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 99), 0);
    for (const auto& [left, right] : {std::pair{10010.0F, 12000.0F}, {-900.0F, -20.0F}}) {
        Populaatiot(1).X[1] = left;
        Populaatiot(1).X[2] = right;
        for (const char* mode : {"paikka", "abskorkeus", "suhtkorkeus"}) {
            EXPECT_EQ(bins.AnnaHistonKorkeinKohta(mode, 1), 0) << left << " lies beyond the axis";
        }
    }
    int32_t place = 5000;
    EXPECT_EQ(bins.AnnaHistonKorkeus(place), 10000);
    EXPECT_EQ(place, 512) << "the argument becomes the bin";
    place = -5;
    EXPECT_EQ(bins.AnnaHistonKorkeus(place), 0);
    window.Channels()->AsetaKanava("x", 2);
    EXPECT_EQ(window.Channels()->AnnaKanava("x"), "2");
    EXPECT_EQ(bins.LahetaNimi(), "FL2");
    EXPECT_TRUE(form_.surface.HasText("FL2"));
    PutFile(1, "narrow.fcs", {{"only", false, 1000, {1}}});
    window.Piirra();
    EXPECT_EQ(window.Channels()->AnnaKanava("x"), "1")
        << "a channel that the file lacks falls back";
    Tiedostot(1) = Tiedosto();
    EXPECT_EQ(bins.LahetaNimi(), "");
    ChoosePopup(form_, 18);
    EXPECT_FALSE(platform.popups.lastEntries[16].enabled) << "no bins to copy";
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

TEST_F(HistogramTest, MarkersAreEditedMovedAndNamed) {
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

TEST_F(HistogramTest, StatisticsWithSpread) {
    PutFile(1, "tube.fcs",
            {{"FL1", false, 1000, {10, 30, 0, 500}}, {"FL2", false, 1000, {1, 2, 3, 4}}});
    Populaatio& marker = Populaatiot(3);
    marker.Defined = true;
    marker.Name = "Low";
    marker.Type = "Histogram";
    marker.AxisX = 1;
    marker.Created = 2;  // of another window
    marker.X[1] = 100;
    marker.X[2] = 300;
    Populaatiot(MaxPopulations) = marker;
    Populaatiot(MaxPopulations).AxisX = 2;
    Populaatiot(4) = marker;
    Populaatiot(4).Type = "Polygon";
    Populaatiot(kPopulationSlots).Defined = true;
    Populaatiot(kPopulationSlots).Name = "Low";
    Populaatiot(5) = marker;
    Populaatiot(5).Name = "None";
    Populaatiot(5).X[1] = 301;
    Populaatiot(5).X[2] = 301;
    TarkistaPopulaatiot();
    ChoosePopup(form_, 1);
    const ScriptedTable& grid = Grid();
    using Row = std::vector<std::string>;
    EXPECT_EQ(TableForms().back()->caption, "(1) Statistics: tube.fcs");
    EXPECT_EQ(grid.table.rows[0].cells,
              (Row{"", "Number", "% of vis", "X mean", "X geomean", "CV"}));
    // 10, 30, 0, 500: mean 135, squares of the distances 125^2 + 105^2 + 135^2 + 365^2 = 178100;
    // the root of a quarter of that is 211.0094, by 135 1.56303. Geometric: 0 counts as 1, and
    // the fourth root of 150000 is 19.6799.
    EXPECT_EQ(grid.Row("Visible"), (Row{"Visible", "4", "100", "135", "19.67", "156.3"}));
    // 10 and 30: mean 20, distance 10 each, so 0.5; geometric the root of 300.
    EXPECT_EQ(grid.Row("Low"), (Row{"Low", "2", "50", "20", "17.32", "50"}));
    EXPECT_EQ(grid.Row("None"), (Row{"None", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(grid.table.rows.back().cells[1], "2") << "a definition";
    EXPECT_EQ(grid.table.Rows(), 5) << "no row for a marker of another channel";
    EXPECT_EQ(TableForms().back()->width.count, 5 * 1200 + 1500 + 100 + 3 * 15)
        << "three pixels more than told, as the frame is wider here";
    const StatisticsOwner& window = *IkkunaPaikassa(1)->Stats();
    EXPECT_EQ(window.AnnaStatistiikka("3", "cv"), 50);
    EXPECT_EQ(window.AnnaStatistiikka("3", "vis"), 50);
    EXPECT_EQ(window.AnnaStatistiikka("32", "number"), 2);
    EXPECT_EQ(window.AnnaStatistiikka("0", "xmean"), 135);
    EXPECT_EQ(window.AnnaStatistiikka("0", "vis"), 100);
    EXPECT_NEAR(window.AnnaStatistiikka("0", "cv").value_or(0), 156.303, 1e-3);
    EXPECT_NEAR(window.AnnaStatistiikka("0", "xgeomean").value_or(0), 19.6799, 1e-4);
    for (const char* none : {"-1", "33", ""}) {
        EXPECT_EQ(window.AnnaStatistiikka(none, "number"), std::nullopt);
    }
    EXPECT_EQ(window.AnnaStatistiikka("ul", "number"), std::nullopt);
    EXPECT_EQ(window.AnnaStatistiikka("0", "ymean"), std::nullopt);

    platform.popups.choices.push_back({7, -1});
    Grid().onRightPress();
    EXPECT_EQ(platform.popups.lastEntries[5].caption, "CV");
    EXPECT_EQ(grid.table.rows[0].cells[0], "File name");
    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(3);
    EXPECT_EQ(grid.Row("Visible")[1], "2");
    IkkunaPaikassa(1)->Channels()->AsetaKanava("x", 2);
    EXPECT_EQ(grid.table.Rows(), 5) << "the header row, and the marker on that channel";
    ChoosePopup(form_, 1);
    EXPECT_TRUE(TableForms().empty());
}

// A window that shows histograms, as far as those need to know.
class Follower : public FrameWindow, private SourceOwner {
  public:
    explicit Follower(PaaIkkuna& main) : FrameWindow(main, {.emptyTitle = "Follower"}) {}
    SourceOwner* Sources() override { return this; }
    void Piirra() override { ++redraws; }
    int redraws = 0;

  private:
    std::vector<WindowMenuItem> Items() override { return {}; }
    void AddKeys(SheetTable& /*keys*/) override {}
    void DrawPicture(const PlotArea& /*area*/) override {}
    bool AsetaHistogram(int16_t /*line*/, int16_t /*window*/) override { return true; }
};

TEST_F(HistogramTest, WhatFollowsIsWorkedOutOutsideGesturesAndLoading) {
    RekisteroiIkkunaLaji(
        {"Follower", "", false, [](PaaIkkuna& to) { return std::make_shared<Follower>(to); }});
    LuoIkkunaPaikkaan(main, "Follower", MaxWindows);
    PoistaIkkunaLaji("Follower");
    auto& follower = dynamic_cast<Follower&>(*IkkunaPaikassa(MaxWindows));
    NewDotPlot();
    DrawMarker();
    ChoosePopup(form_, 1);
    GridTable& table = Grid().table;
    follower.redraws = 0;
    const auto expect = [&](bool worked, const std::string& when) {
        EXPECT_EQ(follower.redraws > 0, worked) << when;
        EXPECT_EQ(!table.rows.empty(), worked) << when;
        follower.redraws = 0;
        table.rows.clear();
    };
    IkkunaPaikassa(1)->Piirra();
    expect(true, "redrawn");
    form_.Press(80, 200);
    form_.Move(90, 200);
    IkkunaPaikassa(1)->Piirra();
    expect(false, "while a marker is moved");
    form_.Release(90, 200);
    expect(true, "moved");
    Loading = true;
    const int drawn = form_.surface.redraws;
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(form_.surface.redraws, drawn + 1) << "the picture comes at once";
    expect(false, "while a sheet is loaded");
    Loading = false;
    form_.Close();
    EXPECT_EQ(follower.redraws, 1) << "nothing to follow";
}

}  // namespace
}  // namespace tessarin
