// Regions by mouse on a dot plot: drawing, editing, moving, and what breaks a gesture off.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/RegionMuuttujat.h"
#include "mainwindow/WindowList.h"
#include "tests/support/PlotFixture.h"
#include "windows/RegionOutlines.h"

namespace tessarin {
namespace {

// A pixel of the plot area is 50 grid units, and 5 units of a channel of range 1000.
class GestureTest : public PlotTest {
  protected:
    GestureTest()
        : form_(Open({{"a", false, 1000, {300, 500, 700, 100}},
                      {"b", false, 1000, {300, 500, 500, 900}},
                      {"c", false, 1000, {0, 0, 0, 0}}})) {}

    void Click(double x, double y) {
        form_.Press(x, y);
        form_.Release(x, y);
    }
    void Drag(double x1, double y1, double x2, double y2) { DragIn(form_, {x1, y1}, {x2, y2}); }
    // A square over the middle half of both axes: values 250 to 750.
    void DrawSquare() {
        Arm();
        // The last click is on the handle of the first corner.
        for (const auto& [x, y] : {std::pair{68, 68}, {168, 68}, {168, 168}, {68, 168}, {69, 67}}) {
            Click(x, y);
        }
    }
    std::vector<int> Members(int slot) {
        const auto column = Tiedostot(1).Membership.Sarake(slot);
        return {column.begin(), column.end()};
    }
    void ExpectIdle() {
        EXPECT_FALSE(UusiRegionPaalla || RegionAloitettu);
        EXPECT_EQ(MuokattavaRegion + SiirrettavaRegion + SiirrettavaOtsikko + MuokattavaKulma, 0);
    }

    ScriptedForm& form_;
};

TEST_F(GestureTest, DrawsARegionThatHoldsForEveryFile) {
    PutFile(2, "other.fcs", {{"a", false, 1000, {500}}, {"b", false, 1000, {500}}});
    PutFile(3, "narrow.fcs", {{"a", false, 1000, {500}}});
    Tiedostot(3).Membership.Aseta(1, 1, 1);  // left over
    DrawSquare();
    const Populaatio& region = Populaatiot(1);
    EXPECT_TRUE(region.Defined);
    EXPECT_EQ(region.Name, "Poly-1");
    EXPECT_EQ(region.Type, "Polygon");
    EXPECT_EQ(region.Corners, 4);
    EXPECT_EQ(region.Created, 1);
    EXPECT_FLOAT_EQ(region.X[1], 2500);
    EXPECT_FLOAT_EQ(region.Y[3], 7500);
    EXPECT_EQ(Members(1), (std::vector<int>{1, 1, 1, 0}));
    EXPECT_EQ(Tiedostot(2).Membership(1, 1), 1);
    EXPECT_EQ(Tiedostot(3).Membership(1, 1), 0) << "a file without the channel has no members";
    EXPECT_EQ(platform.mainForm.rows[0].caption, "Poly-1");
    EXPECT_EQ(DotAt(form_, 60, 60), Populaatiot(1).Color().Pixel());
    ExpectIdle();
}

TEST_F(GestureTest, ClosesByRightButtonAndCancelsByItOrByTheButton) {
    Arm();
    Arm();
    EXPECT_FALSE(UusiRegionPaalla) << "a second press cancels";
    Arm();
    Click(68, 68);
    Click(168, 68);
    form_.Move(120, 120);
    EXPECT_EQ(form_.surface.Pointer(), MousePointer::kCrosshair);
    EXPECT_EQ(form_.surface.strokes.back().x2, 120) << "a line follows the mouse";
    form_.Press(10, 100, MouseButton::kRight);
    EXPECT_TRUE(Populaatiot(1).Defined) << "stored with its two corners";
    EXPECT_EQ(Members(1), (std::vector<int>{0, 0, 0, 0}));
    ExpectIdle();

    platform.dialogs.answers = {false};
    Arm();
    EXPECT_FALSE(UusiRegionPaalla) << "defined already, and Cancel";
    EXPECT_EQ(platform.dialogs.questions.back().title, "Population already defined");
    Arm();
    EXPECT_TRUE(UusiRegionPaalla);
    form_.Press(100, 100, MouseButton::kRight);
    ExpectIdle();
    EXPECT_EQ(Populaatiot(1).Corners, 2) << "disarmed, and the old region stays";
    Arm();
    Click(50, 50);
    Arm();
    ExpectIdle();
    EXPECT_EQ(form_.surface.AutoRedraw(), true);
}

TEST_F(GestureTest, AnArmedRegionIsSeenAndCanBeCalledOff) {
    const std::string& status = platform.mainForm.status;
    bool& down = platform.mainForm.buttonsDown[PanelButton::kLuoUusiRegion];
    Arm();
    EXPECT_TRUE(down);
    EXPECT_TRUE(status.starts_with("Click the corners; right click closes; Esc cancels"));
    Click(68, 68);
    Click(168, 68);
    form_.Move(100, 100);
    form_.KeyDown(kKeyBackspace);
    EXPECT_EQ(KulmienMaara, 1);
    EXPECT_EQ(form_.surface.strokes.back().x1, 68) << "the line starts at the corner before";
    EXPECT_EQ(form_.surface.strokes.back().x2, 100);
    form_.KeyDown(kKeyBackspace);
    EXPECT_TRUE(UusiRegionPaalla && !RegionAloitettu);
    EXPECT_TRUE(form_.surface.AutoRedraw());
    form_.KeyDown(kKeyBackspace);
    Click(50, 50);
    Click(60, 50);
    form_.KeyDown(kKeyEscape);
    ExpectIdle();
    EXPECT_FALSE(down);
    EXPECT_EQ(status, "");
    EXPECT_FALSE(Populaatiot(1).Defined);

    DrawSquare();
    EXPECT_FALSE(down);
    EXPECT_EQ(status, "");
    form_.Press(100, 100);
    form_.Move(150, 150);
    form_.KeyDown(kKeyEscape);
    form_.Release(150, 150);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 2500) << "a drag that was called off";
    ExpectIdle();
}

TEST_F(GestureTest, OtherWindowsTakeNoPartInADrawing) {
    NewDotPlot();
    ScriptedForm& other = LastForm();
    Arm();
    Click(68, 68);
    other.Press(100, 100);
    other.Press(100, 100, MouseButton::kRight);
    EXPECT_EQ(KulmienMaara, 1);
    EXPECT_TRUE(RegionAloitettu);
    for (int i = 0; i < 60; ++i) {
        Click(70 + i, 100);
    }
    EXPECT_EQ(KulmienMaara, kMaxCorners) << "no corner beyond the last that has room";
    other.Close();
    EXPECT_TRUE(RegionAloitettu) << "the other window has no part in it";
    form_.Close();
    ExpectIdle();
    EXPECT_FALSE(Populaatiot(1).Defined);
}

TEST_F(GestureTest, MovesCornersPolygonsAndNames) {
    DrawSquare();
    Drag(168, 168, 118, 118);  // the third corner to the middle
    EXPECT_FLOAT_EQ(Populaatiot(1).X[3], 5000);
    EXPECT_FLOAT_EQ(Populaatiot(1).Y[3], 5000);
    EXPECT_FLOAT_EQ(Populaatiot(1).Y[4], 7500);
    ExpectIdle();

    form_.Press(80, 90);
    EXPECT_EQ(SiirrettavaRegion, 1);
    const auto& strokes = form_.surface.strokes;
    EXPECT_TRUE(std::any_of(strokes.begin(), strokes.end(), [](const auto& s) {
        return s.x1 == 68 && s.y1 == 68 && s.x2 == 168;
    })) << "drawn above the picture while it is in hand";
    form_.Release(80, 90);
    Drag(80, 90, 90, 80);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 3000);
    EXPECT_FLOAT_EQ(Populaatiot(1).Y[1], 2000);
    Drag(90, 80, 390, 80);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 18000) << "it may leave the plot";
    Drag(390, 80, 90, 80);

    // The name's handle is the upper left corner of its text.
    const auto& texts = form_.surface.texts;
    const auto name =
        std::find_if(texts.begin(), texts.end(), [](const auto& t) { return t.text == "Poly-1"; });
    ASSERT_NE(name, texts.end());
    const double x = name->x;
    const double y = name->y;
    Drag(x + 1, y + 1, 40, 40);
    EXPECT_EQ(Populaatiot(1).TitleX, (40 + 21 - 18) * 50 - Populaatiot(1).TitleBaseX);
    EXPECT_EQ(Populaatiot(1).TitleY, (40 + 4 - 18) * 50 - Populaatiot(1).TitleBaseY);
    ExpectIdle();
}

TEST_F(GestureTest, AnotherSizeLeavesWhatTheMouseHoldsInItsPlace) {
    // Another 200 pixels each way: a pixel of the plot area is 25 grid units.
    const auto grow = [this] {
        form_.SetOuterSize(TwipsFromPixels(436 + ScriptedForm::kFrameWidth),
                           TwipsFromPixels(436 + ScriptedForm::kFrameHeight));
    };
    DrawSquare();
    form_.Press(80, 90);
    grow();
    form_.Move(80, 90);
    form_.Release(80, 90);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 2500);
    EXPECT_FLOAT_EQ(Populaatiot(1).Y[3], 7500);
    EXPECT_EQ(Members(1), (std::vector<int>{1, 1, 1, 0}));

    form_.Press(318, 318);
    EXPECT_EQ(MuokattavaKulma, 3);
    form_.SetOuterSize(TwipsFromPixels(236 + ScriptedForm::kFrameWidth),
                       TwipsFromPixels(236 + ScriptedForm::kFrameHeight));
    form_.Move(118, 118);
    const auto& strokes = form_.surface.strokes;
    EXPECT_TRUE(std::any_of(strokes.begin(), strokes.end(),
                            [](const auto& s) { return s.x1 == 68 && s.y1 == 68 && s.x2 == 168; }));
    form_.Release(118, 118);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 2500);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[3], 5000);

    Arm();  // and yes, in place of the old one
    Click(68, 68);
    Click(168, 68);
    grow();
    form_.Press(118, 318, MouseButton::kRight);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[1], 2500);
    EXPECT_FLOAT_EQ(Populaatiot(1).X[2], 7500);
    ExpectIdle();
}

// Counts the autosaves.
class CountingStore : public ViewStore {
  public:
    void TalletaNakyma(std::string_view mode) override { saves += mode == "Autosave" ? 1 : 0; }
    bool LataaNakyma(const std::string& /*path*/) override { return false; }
    void TarjoaPalautusta() override {}
    void PoistaAutosave() override {}
    int saves = 0;
};

TEST_F(GestureTest, StatisticsAndAutosaveWaitForItsEnd) {
    CountingStore store;
    main.Kumppanit().views = &store;
    DrawSquare();
    ChoosePopup(form_, 1);
    ChoosePopup(form_, 2);
    GridTable& table = Grid().table;
    const auto expect = [&](bool worked, const std::string& when) {
        EXPECT_EQ(store.saves > 0, worked) << when;
        EXPECT_EQ(!table.rows.empty(), worked) << when;
        store.saves = 0;
        table.rows.clear();
    };
    expect(true, "redrawn");
    for (const auto& [what, x, y] : {std::tuple("the cross", 118, 118),
                                     {"a corner", 68, 68},
                                     {"the region", 80, 90},
                                     {"the name", 97, 114}}) {
        form_.Press(x, y);
        form_.Move(x + 1, y);
        IkkunaPaikassa(1)->Piirra();
        expect(false, what);
        form_.Release(x, y);
        expect(true, what);
    }
    form_.Resize(TwipsFromPixels(300), TwipsFromPixels(300));
    expect(false, "while the user resizes it");
    IkkunaPaikassa(1)->Piirra();
    expect(true, "rested");
    Loading = true;
    IkkunaPaikassa(1)->Piirra();
    expect(false, "while a sheet is loaded");
    Loading = false;
    main.Kumppanit().views = nullptr;
}

TEST_F(GestureTest, AMouseTakenAwayLeavesNoHalfState) {
    DrawSquare();
    const Populaatio before = Populaatiot(1);
    form_.Press(168, 168);
    EXPECT_EQ(MuokattavaKulma, 3);
    form_.Move(20, 20);
    form_.Lose();
    ExpectIdle();
    EXPECT_EQ(Populaatiot(1).X, before.X);
    form_.Move(30, 30);
    form_.Release(30, 30);
    EXPECT_EQ(Populaatiot(1).X, before.X);
    form_.Press(100, 100);
    form_.Close();
    ExpectIdle();
}

TEST_F(GestureTest, HoverMarksCornersAndNames) {
    DrawSquare();
    const auto boxes = [this] {
        return std::count_if(form_.surface.strokes.begin(), form_.surface.strokes.end(),
                             [](const auto& s) { return s.form == LineForm::kFilledBox; });
    };
    form_.Move(67, 69);
    EXPECT_EQ(boxes(), 4);
    form_.Move(30, 30);
    EXPECT_EQ(boxes(), 0);
    const PixelPoint name = NimenPaikka(PlotArea(form_.surface), Populaatiot(1), kPolygonName);
    form_.Move(name.x + 40, name.y + 6);
    ASSERT_EQ(boxes(), 1);
    EXPECT_EQ(form_.surface.strokes.back().color, Grey(120));
    ChoosePopup(form_, 5);  // no lines, nothing to take hold of
    form_.Move(67, 69);
    EXPECT_EQ(boxes(), 0);
    form_.Press(68, 68);
    ExpectIdle();
}

TEST_F(GestureTest, TheSameRegionHasTheSameMembersAtEverySize) {
    DrawSquare();
    const auto members = Members(1);
    for (const int side : {60, 300, 900}) {
        form_.SetOuterSize(TwipsFromPixels(side), TwipsFromPixels(side));
        form_.Move(1, 1);
        TarkistaPopulaatiot();
        EXPECT_EQ(Members(1), members) << side;
    }
}

TEST_F(GestureTest, QuadrantIsDraggedAndStopsAtTheEdge) {
    ChoosePopup(form_, 2);
    Drag(118, 118, 68, 400);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 2500");
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("y"), " 0");
    EXPECT_EQ(ViimeKvadranttiX, 2500);
    EXPECT_EQ(ViimeKvadranttiY, 10000);
    Drag(68, 218, 68, 118);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("y"), " 5000");
    form_.Press(68, 118);
    EXPECT_EQ(form_.surface.PixelAt(68, 60), Grey(0).Pixel()) << "above the picture";
    form_.Move(100, 100);
    form_.Lose();
    ExpectIdle();
    EXPECT_TRUE(form_.surface.AutoRedraw());
    form_.Move(150, 150);
    form_.Release(150, 150);
    EXPECT_EQ(IkkunaPaikassa(1)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 2500")
        << "the mouse was taken away";
    EXPECT_EQ(form_.surface.PixelAt(68, 60), Grey(255).Pixel());
    ScriptedForm& second = NewDotPlot();
    ChoosePopup(second, 2);
    EXPECT_EQ(IkkunaPaikassa(2)->Quadrant()->AnnaKvadrantinKoordinaatit("x"), " 2500");
}

TEST_F(GestureTest, PanelCommandsRenameDeleteAndRecolour) {
    MainFormEvents& user = *platform.mainForm.events;
    auto& buttons = platform.mainForm.buttons;
    EXPECT_FALSE(buttons[PanelButton::kMuutaRegioninNimi]);
    DrawSquare();
    EXPECT_TRUE(buttons[PanelButton::kMuutaRegioninNimi] && buttons[PanelButton::kPoistaRegion]);
    platform.dialogs.texts = {"not poly-1"};
    user.PanelButtonPressed(PanelButton::kLuoUusiMaaritelma);
    EXPECT_EQ(platform.dialogs.questions.back().title, "Create definition");
    EXPECT_EQ(Members(17), (std::vector<int>{0, 0, 0, 1}));

    platform.dialogs.texts = {"Cells"};
    user.PanelButtonPressed(PanelButton::kMuutaRegioninNimi);
    EXPECT_EQ(platform.mainForm.rows[0].caption, "Cells");
    EXPECT_EQ(platform.mainForm.rows[16].caption, "not Cells");
    platform.dialogs.texts = {"Cells or nobody"};
    user.PanelButtonPressed(PanelButton::kLuoUusiMaaritelma);
    EXPECT_EQ(platform.dialogs.messages.back().text, "Error in the definition: nobody");
    EXPECT_EQ(platform.dialogs.lastPreset, "Cells or nobody") << "to be mended";
    EXPECT_EQ(Populaatiot(17).Name, "not Cells");

    platform.dialogs.colors = {{1, 2, 3}, {4, 5, 6}};
    user.PanelColorClicked(1, false);
    EXPECT_EQ(Populaatiot(1).Color(), (Rgb{255, 50, 0})) << "a population wants two clicks";
    user.PanelColorClicked(1, true);
    EXPECT_EQ(Populaatiot(1).Color(), (Rgb{1, 2, 3}));
    user.PanelColorClicked(17, false);
    EXPECT_EQ(Populaatiot(17).Color(), (Rgb{4, 5, 6}));
    user.PanelLabelDoubleClicked(1);
    EXPECT_EQ(platform.mainForm.rows[0].label, "T");
    EXPECT_EQ(DotAt(form_, 60, 60), 0xffffffff);

    platform.dialogs.answers = {false, true};
    user.PanelButtonPressed(PanelButton::kPoistaRegion);
    EXPECT_TRUE(Populaatiot(1).Defined);
    user.PanelButtonPressed(PanelButton::kPoistaRegion);
    EXPECT_FALSE(Populaatiot(1).Defined || Populaatiot(17).Defined) << "the definition lost it";
    EXPECT_EQ(platform.mainForm.status, "No longer defined: not Cells");
    EXPECT_EQ(Members(1), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(platform.mainForm.rows[16].caption, "Not defined");
    EXPECT_FALSE(buttons[PanelButton::kPoistaRegion]);
}

}  // namespace
}  // namespace tessarin
