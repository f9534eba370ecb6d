// A dot plot on a scripted platform: what stands where on its surface, and in which colour.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/RegionMuuttujat.h"
#include "mainwindow/WindowList.h"
#include "plots/Axes.h"
#include "plots/DensityLayer.h"
#include "tests/support/PlotFixture.h"

namespace tessarin {
namespace {

constexpr uint32_t kBlack = 0xff000000;
constexpr uint32_t kWhite = 0xffffffff;

using DotPlotTest = PlotTest;

TEST_F(DotPlotTest, PutsEventsWhereTheirValuesSay) {
    const ScriptedForm& form = Open({{"FSC", false, 1000, {0, 500, 1000, 1005, -20}},
                                     {"SSC", false, 1000, {5, 250, 1000, 500, 750}}});
    EXPECT_EQ(form.caption, "[S] (1): Dot Plot - tube.fcs");
    EXPECT_EQ(DotAt(form, 100, 50), kWhite);
    EXPECT_EQ(DotAt(form, 200, 200), kWhite);
    EXPECT_EQ(DotAt(form, 201, 100), kWhite) << "a value above the range lies outside";
    EXPECT_EQ(DotAt(form, 0, 150), kWhite) << "a negative value lies on the axis";
    EXPECT_EQ(DotAt(form, 100, 51), kBlack);
    EXPECT_EQ(form.surface.blocksPainted, 5U);
}

TEST_F(DotPlotTest, DrawsAxesTicksAndTitles) {
    ScriptedForm& form = Open({{"FSC-H", false, 1024, {1}}, {"FL1", true, 10000, {1}}});
    const auto& strokes = form.surface.strokes;
    const auto ticks = [&](auto isTick) {
        return std::count_if(strokes.begin(), strokes.end(), isTick);
    };
    // Range 1024 has a tick at 0, 100, ... 1000.
    EXPECT_EQ(ticks([](const auto& s) { return s.y1 == 218 && s.y2 == 222; }), 11);
    // Four decades of ten ticks each, k * 10^d for k from 1 to 10, and 10000 once more as the
    // first of the decade that the axis has no room for.
    EXPECT_EQ(ticks([](const auto& s) { return s.x1 == 18 && s.x2 == 14; }), 41);
    // 500 of 1024 on 200 pixels, and three of four decades.
    EXPECT_EQ(ticks([](const auto& s) { return s.x1 == 18 + 97.65625 && s.y2 == 222; }), 1);
    EXPECT_EQ(ticks([](const auto& s) { return s.x2 == 14 && std::fabs(s.y1 - 68) < 1e-9; }), 2);
    EXPECT_EQ(TikkienPaikat({"", false, 65536}, 200).size(), 66U);
    EXPECT_EQ(TikkienPaikat({"", false, 1}, 200).size(), 11U) << "a tenth each";
    EXPECT_FALSE(TikkienPaikat({"", true, 2}, 200).empty());
    EXPECT_TRUE(TikkienPaikat({"", false, 0}, 200).empty());
    EXPECT_TRUE(TikkienPaikat({"", true, 1}, 200).empty());
    const auto& texts = form.surface.texts;
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "FSC-H");
    EXPECT_EQ(texts[0].x, 118 - 17.5);
    EXPECT_EQ(texts[0].y, 222);
    EXPECT_EQ(texts[1].text, "FL1");
    EXPECT_EQ(texts[1].tenths, 900);
    EXPECT_EQ(texts[1].x, 2);
    EXPECT_EQ(texts[1].y, 118 + 10.5);
}

TEST_F(DotPlotTest, ColoursByTheHighestVisiblePopulation) {
    ScriptedForm& form = Open({{"a", false, 1000, {100, 200, 300, 400, 500}},
                               {"b", false, 1000, {100, 200, 300, 400, 500}}});
    DefinePolygon(2, "low", {255, 0, 0}, {1, 2, 3});
    DefinePolygon(17, "definition", {0, 255, 0}, {2, 3});
    DefinePolygon(18, "clear", {0, 0, 255}, {3});
    Populaatiot(18).Transparent = true;
    DefinePolygon(19, "deleted", {7, 7, 7}, {1, 2, 3, 4});
    Populaatiot(19).Defined = false;
    DefinePolygon(kPopulationSlots, "last", {0, 255, 255}, {5});
    Populaatiot(2).AxisY = 7;  // drawn elsewhere; its members keep their colour here
    main.PiirraKaikki();
    EXPECT_EQ(DotAt(form, 20, 20), 0xffff0000);
    EXPECT_EQ(DotAt(form, 40, 40), 0xff00ff00);
    EXPECT_EQ(DotAt(form, 60, 60), 0xff00ff00) << "a transparent one is passed over";
    EXPECT_EQ(DotAt(form, 80, 80), kWhite);
    EXPECT_EQ(DotAt(form, 100, 100), 0xff00ffff);
    ChoosePopup(form, 7);
    EXPECT_EQ(DotAt(form, 20, 20), kWhite);
    ChoosePopup(form, 12);
    EXPECT_EQ(DotAt(form, 20, 20), kBlack);
    EXPECT_EQ(DotAt(form, 20, 30), kWhite);
    ChoosePopup(form, 13);
    EXPECT_EQ(DotAt(form, 21, 19), kBlack) << "large dots are two pixels wide";
}

TEST_F(DotPlotTest, GateShowsMembersOnly) {
    ScriptedForm& form =
        Open({{"a", false, 1000, {100, 200, 300}}, {"b", false, 1000, {100, 200, 300}}});
    DefinePolygon(3, "gate", {9, 9, 9}, {2});
    DefinePolygon(4, "empty", {9, 9, 9}, {});
    main.PiirraKaikki();
    ChoosePopup(form, 0, 1);  // "Show populations", first defined one
    EXPECT_EQ(form.surface.blocksPainted, 1U);
    EXPECT_EQ(DotAt(form, 40, 40), (Rgb{9, 9, 9}.Pixel()));
    ASSERT_EQ(platform.popups.lastEntries[0].children.size(), 3U);
    EXPECT_EQ(platform.popups.lastEntries[0].children[2].caption, "empty");
    EXPECT_TRUE(platform.popups.lastEntries[0].children[0].checked) << "as it was then";
    EXPECT_TRUE(form.surface.HasText("Gate: gate"));
    ChoosePopup(form, 0, 2);
    EXPECT_FALSE(platform.popups.lastEntries[0].children[0].checked);
    EXPECT_TRUE(platform.popups.lastEntries[0].children[1].checked);
    Populaatiot(4).Name = "a name that is too long for the margin of a small window";
    IkkunaPaikassa(1)->Piirra();
    EXPECT_TRUE(form.surface.HasText("Gate: a name that is too lo\u2026")) << "28 letters fit";
    EXPECT_EQ(form.surface.blocksPainted, 0U);
    EXPECT_TRUE(form.surface.HasText("a"));
    Populaatiot(4).Defined = false;
    main.PiirraKaikki();
    EXPECT_EQ(form.surface.blocksPainted, 3U) << "a gate that is gone shows all events again";
}

TEST_F(DotPlotTest, FastDrawFollowsTheLimit) {
    FastDrawLimit = 100;
    const std::vector<float> atLimit(100, 1);
    const std::vector<float> above(101, 1);
    ScriptedForm& form = Open({{"a", false, 1000, atLimit}, {"b", false, 1000, atLimit}});
    EXPECT_FALSE(form.surface.HasText("FAST DRAW MODE"));
    ChoosePopup(form, 14);
    EXPECT_EQ(form.surface.blocksPainted, 100U) << "at the limit the item does nothing";
    PutFile(1, "big.fcs", {{"a", false, 1000, above}, {"b", false, 1000, above}});
    IkkunaPaikassa(1)->LatauksenJalkeen();
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(form.surface.blocksPainted, 51U);
    EXPECT_TRUE(form.surface.HasText("FAST DRAW MODE"));
    ChoosePopup(form, 14);
    EXPECT_EQ(platform.popups.lastEntries[14].caption, "Full draw mode");
    EXPECT_EQ(form.surface.blocksPainted, 101U);
    // The tools' way changes the mode alone, and the step stays.
    IkkunaPaikassa(1)->Channels()->AsetaPiirtoMoodi("fast");
    EXPECT_EQ(form.surface.blocksPainted, 101U);
    EXPECT_TRUE(form.surface.HasText("FAST DRAW MODE"));
}

TEST_F(DotPlotTest, ResizingByHandDrawsThinnedUntilTheSizeRests) {
    const std::vector<float> many(3000, 500);
    ScriptedForm& form = Open({{"a", false, 1000, many}, {"b", false, 1000, many}});
    EXPECT_EQ(form.surface.blocksPainted, 3000U);
    const auto resize = [&form](int width) {
        form.Resize(TwipsFromPixels(width), TwipsFromPixels(300));
        return form.surface.blocksPainted;
    };
    EXPECT_EQ(resize(400), 1000U);
    EXPECT_EQ(form.surface.Width(), 400 - ScriptedForm::kFrameWidth);
    EXPECT_EQ(OletusKoko("DotPlot").Leveys, 6000);
    form.Move(50, 50);
    EXPECT_EQ(form.surface.blocksPainted, 3000U);
    EXPECT_EQ(resize(390), 1000U);
    platform.mainForm.events->BackgroundMouseMove();
    EXPECT_EQ(form.surface.blocksPainted, 3000U);
    EXPECT_EQ(resize(380), 1000U);
    platform.timers.ticks.back()();
    EXPECT_EQ(form.surface.blocksPainted, 3000U) << "no mouse was needed";

    // Whatever leaves the window, or is told of its file, is whole.
    EXPECT_EQ(resize(370), 1000U);
    form.Activate();
    Choose("CopyImages");
    EXPECT_EQ(form.surface.blocksPainted, 3000U);
    EXPECT_EQ(resize(360), 1000U);
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(form.surface.blocksPainted, 3000U);
    EXPECT_EQ(resize(350), 1000U);
    ScriptedForm& other = NewDotPlot();
    other.Resize(TwipsFromPixels(333), TwipsFromPixels(300));
    EXPECT_EQ(form.surface.blocksPainted, 3000U) << "only one window can wait";
    EXPECT_EQ(other.surface.blocksPainted, 1000U);

    form.SetOuterSize(TwipsFromPixels(200), TwipsFromPixels(200));
    EXPECT_EQ(form.surface.blocksPainted, 3000U) << "the program's sizes are full at once";
    form.Resize(TwipsFromPixels(1), TwipsFromPixels(1));  // too small to hold anything
    platform.mainForm.events->BackgroundMouseMove();
    EXPECT_EQ(KokoaMuutetaan, 0);
}

TEST_F(DotPlotTest, DensityShadesCountEvents) {
    // Three events in one cell, one below them, one to the left of that, one beyond both axes,
    // one far outside the matrix, and twenty in a cell.
    std::vector<float> a = {500, 500, 500, 500, 250, 1010, 1e30F};
    std::vector<float> b = {500, 500, 500, 250, 250, 1010, 500};
    a.insert(a.end(), 20, 750);
    b.insert(b.end(), 20, 250);
    ScriptedForm& form = Open({{"a", false, 1000, a}, {"b", false, 1000, b}});
    ChoosePopup(form, 3);
    // 512 cells on 200 pixels: value 500 is cell 256 from the left and 256 from the top.
    EXPECT_EQ(form.surface.PixelAt(118, 118), Grey(120).Pixel());
    EXPECT_EQ(form.surface.PixelAt(68, 168), Grey(60).Pixel());
    EXPECT_EQ(form.surface.PixelAt(118, 168), Grey(60).Pixel());
    EXPECT_EQ(form.surface.PixelAt(168, 168), Grey(255).Pixel());
    // Cell 517 from the left, at 219.95, and 6 above the plot, at 15.66.
    EXPECT_EQ(form.surface.PixelAt(220, 16), Grey(60).Pixel());
    ChoosePopup(form, 12);
    EXPECT_EQ(form.surface.PixelAt(68, 168), Grey(60).Pixel()) << "also on white";
    ChoosePopup(form, 3);
    EXPECT_EQ(form.surface.PixelAt(118, 118), kBlack);
    EXPECT_EQ(TiheysKuva::Shade(17), 251);
    EXPECT_EQ(TiheysKuva::Shade(18), 255);
}

TEST_F(DotPlotTest, DensityCellsAreRectanglesOnLargeSurfaces) {
    ScriptedForm& form = Open({{"a", false, 512, {256}}, {"b", false, 512, {256}}});
    form.SetOuterSize(TwipsFromPixels(1060 + ScriptedForm::kFrameWidth),
                      TwipsFromPixels(1060 + ScriptedForm::kFrameHeight));
    ChoosePopup(form, 3);
    // 1024 pixels for 512 cells: cell 256 begins at pixel 512 and reaches 2 further.
    for (const int offset : {0, 2}) {
        EXPECT_EQ(form.surface.PixelAt(18 + 512 + offset, 18 + 512 + offset), Grey(60).Pixel());
    }
    EXPECT_EQ(form.surface.PixelAt(18 + 511, 18 + 512), kBlack);
    EXPECT_EQ(form.surface.PixelAt(18 + 515, 18 + 512), kBlack);
    // One way just the 512 pixels that give a cell two, the other way too few for more than one.
    for (const bool wide : {true, false}) {
        form.SetOuterSize(TwipsFromPixels((wide ? 548 : 236) + ScriptedForm::kFrameWidth),
                          TwipsFromPixels((wide ? 236 : 548) + ScriptedForm::kFrameHeight));
        const auto at = [&](int along, int across) {
            return wide ? form.surface.PixelAt(18 + 256 + along, 18 + 100 + across)
                        : form.surface.PixelAt(18 + 100 + across, 18 + 256 + along);
        };
        EXPECT_EQ(at(0, 0), Grey(60).Pixel());
        EXPECT_EQ(at(1, 0), Grey(60).Pixel());
        EXPECT_EQ(at(2, 0), kBlack);
        EXPECT_EQ(at(0, 1), kBlack);
    }
}

TEST_F(DotPlotTest, RegionsAndTheirNames) {
    ScriptedForm& form =
        Open({{"a", false, 1000, {0}}, {"b", false, 1000, {0}}, {"c", false, 1000, {0}}});
    DefinePolygon(1, "Poly-1", {255, 0, 0}, {});
    Populaatio& polygon = Populaatiot(1);
    polygon.Corners = 3;
    polygon.Created = 2;
    const std::array<std::array<float, 2>, 3> corners = {
        {{2500, 2500}, {7500, 2500}, {5000, 9000}}};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        polygon.X[i + 1] = corners[i][0];
        polygon.Y[i + 1] = corners[i][1];
    }
    polygon.TitleX = 100;
    main.PiirraKaikki();
    const auto isSide = [](const RecordingKuva::Stroke& s) {
        return s.x1 == 68 && s.y1 == 68 && s.x2 == 168;
    };
    const auto sides = [&] {
        return std::count_if(form.surface.strokes.begin(), form.surface.strokes.end(), isSide);
    };
    EXPECT_EQ(sides(), 1);
    // Base: mean x 5000 less half of 6 characters, 21; mean y Int(4666.67) less 4.
    EXPECT_EQ(polygon.TitleBaseX, 4979);
    EXPECT_EQ(polygon.TitleBaseY, 4662);
    const auto& texts = form.surface.texts;
    const auto name =
        std::find_if(texts.begin(), texts.end(), [](const auto& t) { return t.text == "Poly-1"; });
    ASSERT_NE(name, texts.end());
    EXPECT_DOUBLE_EQ(name->x, 18 + 200 * 5079 / 10000.0 - 21);
    EXPECT_DOUBLE_EQ(name->y, 18 + 200 * 4662 / 10000.0 - 4);

    ChoosePopup(form, 6);  // only those created here: this one is window 2's
    EXPECT_EQ(sides(), 0);
    ChoosePopup(form, 6);
    MuokattavaRegion = 1;  // in hand
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(sides(), 0);
    MuokattavaRegion = 0;
    IkkunaPaikassa(1)->Channels()->AsetaKanava("y", 3);
    EXPECT_EQ(sides(), 0) << "drawn on other channels";
    EXPECT_FALSE(form.surface.HasText("Poly-1"));
    IkkunaPaikassa(1)->Channels()->AsetaKanava("y", 2);
    ChoosePopup(form, 5);
    EXPECT_EQ(sides(), 0);
}

TEST_F(DotPlotTest, QuadrantCross) {
    ScriptedForm& form = Open({{"a", false, 1000, {0}}, {"b", false, 1000, {0}}});
    ChoosePopup(form, 2);
    EXPECT_EQ(platform.popups.lastEntries[2].caption, "Show Quadrant");
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("y"), " 5000");
    EXPECT_EQ(form.surface.PixelAt(118, 30), kWhite);
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("x", 2500);
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("y", 1000);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 2500");
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("y"), " 9000")
        << "from the bottom";
    EXPECT_EQ(form.surface.PixelAt(118, 30), kBlack);
    EXPECT_EQ(form.surface.PixelAt(68, 200), kWhite);
    EXPECT_EQ(form.surface.PixelAt(200, 38), kWhite);
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("x", -5);
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("z", 7);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), "-5");
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("z"), "");
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("x", 2500);
    IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("close");
    EXPECT_EQ(form.surface.PixelAt(68, 200), kBlack);
    form.Press(68, 38);
    form.Release(150, 150);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 2500")
        << "a hidden cross is not taken hold of";
    ChoosePopup(form, 18);
    EXPECT_EQ(platform.popups.lastEntries[2].caption, "Show quadrant");
    ViimeKvadranttiX = 4000;
    ViimeKvadranttiY = 3000;
    IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("open");
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 4000");
    for (const auto& [x, y] : {std::pair{0, 3000}, {4000, 0}}) {
        ViimeKvadranttiX = x;
        ViimeKvadranttiY = y;
        IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("close");
        IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("open");
        EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 5000")
            << "one left at an edge comes back in the middle";
    }
    EXPECT_EQ(form.surface.PixelAt(118, 30), kWhite);
    ChoosePopup(form, 2);
    EXPECT_EQ(form.surface.PixelAt(118, 30), kBlack);
}

TEST_F(DotPlotTest, ChannelsFromTheAxesAndTheirFallback) {
    ScriptedForm& form =
        Open({{"a", false, 1000, {0}}, {"b", false, 1000, {0}}, {"c", false, 1000, {0}}});
    platform.popups.choices.push_back({2, -1});
    form.Press(100, 230, MouseButton::kRight);  // below the x axis
    EXPECT_EQ(IkkunaPaikassa(1)->Channels()->AnnaKanava("x"), "3");
    ASSERT_EQ(platform.popups.lastEntries.size(), 3U);
    EXPECT_EQ(platform.popups.lastEntries[2].caption, "c");
    EXPECT_TRUE(platform.popups.lastEntries[0].checked) << "the channel in use until then";
    form.Press(10, 100, MouseButton::kRight);  // left of the y axis, dismissed
    EXPECT_EQ(IkkunaPaikassa(1)->Channels()->AnnaKanava("y"), "2") << "nothing was chosen";
    form.Press(10, 18, MouseButton::kRight);  // above the y axis it is the plot's menu
    EXPECT_EQ(platform.popups.lastEntries.size(), 19U);
    PutFile(1, "one.fcs", {{"only", false, 1000, {5}}});
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(IkkunaPaikassa(1)->Channels()->AnnaKanava("x"), "1");
    EXPECT_EQ(IkkunaPaikassa(1)->Channels()->AnnaKanava("y"), "1");
}

TEST_F(DotPlotTest, AWindowWithoutFileStaysEmpty) {
    ScriptedForm& form = NewDotPlot();
    EXPECT_EQ(form.caption, "[S] (1): Dot Plot - No File");
    const int redraws = form.surface.redraws;
    main.PiirraKaikki();
    form.Press(10, 100, MouseButton::kRight);
    for (int item = 1; item <= 18; ++item) {
        ChoosePopup(form, item);
    }
    EXPECT_FALSE(platform.popups.lastEntries[16].enabled) << "there is no data to save";
    form.Press(form.surface.Width() / 2.0, form.surface.Height() / 2.0);
    EXPECT_EQ(form.surface.redraws, redraws);
    EXPECT_TRUE(form.surface.texts.empty() && form.surface.strokes.empty());
}

}  // namespace
}  // namespace tessarin
