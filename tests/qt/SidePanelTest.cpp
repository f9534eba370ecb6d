// The side panel: its places, its events, and how it is cut and scrolled.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "platform/qt/Conversions.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

class SidePanelTest : public WindowTest {
  protected:
    SidePanelTest() {
        Main().BuildPanel(16, 16);
        for (int slot = 1; slot <= 32; ++slot) {
            Main().SetPanelRow(slot, {"Not defined", "C", {255, 0, 0}});
        }
        Main().SelectPanelRow(1);
        Main().SelectPanelRow(17);
        Main().SetPanelWidth({4000});
        LetEventsRun();
        main_.Take();
    }
    template <typename Widget = QWidget>
    Widget& Part(const char* name) {
        auto* part = Window().findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(part, nullptr) << name;
        return *part;
    }
    // Mouse moves are told all the time; what is left is what the user did.
    Log Done() {
        Log log = main_.Take();
        std::erase(log, "panel");
        return log;
    }
};

TEST_F(SidePanelTest, RowsStandWhereTheyShould) {
    const auto top = [&](const char* name) { return Part(name).geometry().top(); };
    EXPECT_EQ(Part("RegionVari1").geometry(), QRect(20, 41, 12, 12));
    EXPECT_EQ(Part("RegionVari16").geometry().top(), 261);
    EXPECT_EQ(Part("DefVari17").geometry(), QRect(20, 41, 12, 12));
    EXPECT_EQ(Part("RegionValitsin1").geometry().left(), 40);
    EXPECT_EQ(Part("DefLapinakyvaValitsin32").geometry().topLeft(), QPoint(8, 260));
    EXPECT_LT(Part("LuoUusiRegion").geometry().bottom(), top("RegionValitsin1"));
    // All of it can be seen in a main window of its first size.
    const QWidget& last = Part("DefVari32");
    EXPECT_LT(last.mapTo(&Window(), QPoint(0, 12)).y(), 770);
}

TEST_F(SidePanelTest, EachPartTellsWhatWasDoneToIt) {
    const auto click = [&](const char* name) { Click(Part(name), {6, 7}); };
    click("RegionValitsin3");
    click("DefValitsin32");
    click("RegionValitsin3");
    EXPECT_EQ(Done(), (Log{"row 3", "row 32"}));
    for (const char* name : {"LuoUusiRegion", "PoistaRegion", "MuutaRegioninNimi",
                             "LuoUusiMaaritelma", "PoistaMaaritelma"}) {
        click(name);
    }
    EXPECT_EQ(Done(), (Log{"button 0", "button 1", "button 2", "button 3", "button 4"}));
    click("JaadytaNakyma");
    click("JaadytaNakyma");
    EXPECT_EQ(Done(), (Log{"freeze", "thaw"}));
    click("DefVari20");
    DoubleClick(Part("RegionVari2"), {6, 6});
    EXPECT_EQ(Done(), (Log{"color 20 once", "color 2 once", "color 2 twice"}));
    click("LapinakyvaValitsin4");
    DoubleClick(Part("LapinakyvaValitsin4"), {6, 6});
    EXPECT_EQ(Done(), Log{"label 4"});
}

TEST_F(SidePanelTest, TheProgramsOwnChangesAreNotTold) {
    Main().SelectPanelRow(5);
    Main().SelectPanelRow(30);
    EXPECT_TRUE(Part<QRadioButton>("RegionValitsin5").isChecked());
    EXPECT_FALSE(Part<QRadioButton>("RegionValitsin1").isChecked());
    EXPECT_TRUE(Part<QRadioButton>("DefValitsin30").isChecked());
    Main().SetPanelButtonEnabled(PanelButton::kPoistaMaaritelma, false);
    EXPECT_FALSE(Part("PoistaMaaritelma").isEnabled());
    EXPECT_TRUE(Part("PoistaRegion").isEnabled());
    EXPECT_EQ(Done(), Log{});
}

TEST_F(SidePanelTest, ARowShowsItsSlot) {
    Main().SetPanelRow(
        2, {"A name that is far too long for the width of the panel", "T", {10, 200, 30}});
    const auto& option = Part<QRadioButton>("RegionValitsin2");
    EXPECT_TRUE(option.text().startsWith("A name that"));
    EXPECT_TRUE(option.text().endsWith(QChar(0x2026)));
    EXPECT_TRUE(option.toolTip().contains("far too long for the width of the panel"));
    EXPECT_EQ(Part<QLabel>("LapinakyvaValitsin2").text(), "T");
    const Bitmap box = FromQt(Part("RegionVari2").grab().toImage());
    EXPECT_EQ(box.At(box.width / 2, box.height / 2), (Rgb{10, 200, 30}.Pixel()));
    Main().SetPanelRow(2, {"R&D <b>", "C", {}});
    EXPECT_EQ(option.text(), "R&&D <b>");
}

TEST_F(SidePanelTest, ColoursAreThePrescribedOnes) {
    const Bitmap window = Main().Snapshot();
    const auto at = [&](const char* name, QPoint place) {
        const QPoint there = Part(name).mapTo(&Window(), place) * window.ratio;
        return window.At(there.x(), there.y());
    };
    EXPECT_EQ(at("TempLogo", {2, 2}), kBackgroundColor.Pixel());
    EXPECT_EQ(at("OikeaPalkki", {3, 300}), kPanelColor.Pixel());
    EXPECT_EQ(at("RegionValitsin2", {150, 2}), kPanelColor.Pixel());
    EXPECT_EQ(at("LuoUusiRegion", {5, 5}), kButtonColor.Pixel());
    EXPECT_EQ(at("PoistaMaaritelma", {5, 5}), kButtonColor.Pixel());
}

TEST_F(SidePanelTest, ItSlidesOverTheAreaAndMovesNothing) {
    Main().SetPanelWidth({150});
    const auto child = MakeChild("A");
    child->form->SetPlace(TwipsFromPixels(860), TwipsFromPixels(300));
    LetEventsRun();
    Take();
    const QRect place = Shown(0).geometry();
    Main().SetPanelWidth({4000});
    LetEventsRun();
    EXPECT_EQ(Shown(0).geometry(), place);
    EXPECT_EQ(Take(), Log{});
    EXPECT_FALSE(Window().Area().horizontalScrollBar()->isVisible());
    QWidget* seen = Window().childAt(Part("OikeaPalkki").mapTo(&Window(), QPoint(100, 350)));
    EXPECT_TRUE(Part("OikeaPalkki").isAncestorOf(seen)) << "it stands above the window";
    Window().resize(1100, 700);
    LetEventsRun();
    EXPECT_EQ(Part("OikeaPalkki").geometry().right(), 1099);
    EXPECT_EQ(Part("OikeaPalkki").height(), Window().Area().height());
}

TEST_F(SidePanelTest, AStripCutsWhatStandsOnIt) {
    const int optionWidth = Part("RegionValitsin1").width();
    const QRect row = Part("RegionVari1").geometry();
    Main().SetPanelWidth({150});
    EXPECT_EQ(Part("OikeaPalkki").width(), 10);
    EXPECT_EQ(Window().Area().width(), 1190);
    EXPECT_EQ(Part("RegionValitsin1").width(), optionWidth);
    EXPECT_EQ(Part("RegionVari1").geometry(), row);
    Main().SetPanelWidth({4000});
    EXPECT_EQ(Part("OikeaPalkki").width(), 266);
    EXPECT_EQ(Window().Area().width(), 1190);
}

TEST_F(SidePanelTest, ALowWindowScrolls) {
    auto& scroll = *Window().Panel().findChild<QScrollArea*>();
    EXPECT_EQ(scroll.verticalScrollBar()->maximum(), 0);
    Window().resize(1200, 400);
    LetEventsRun();
    EXPECT_GT(scroll.verticalScrollBar()->maximum(), 200);
    EXPECT_EQ(scroll.horizontalScrollBar()->maximum(), 0);
    EXPECT_LT(
        Part("RegionValitsin1").mapTo(&scroll, QPoint(Part("RegionValitsin1").width(), 0)).x(),
        scroll.viewport()->width());
}

TEST_F(SidePanelTest, MovesOverThePanelAndItsPartsAreTold) {
    for (const char* name : {"OikeaPalkki", "RegionVari1", "DefValitsin20", "JaadytaNakyma",
                             "TempLogo", "PoistaRegion"}) {
        main_.Take();
        ASSERT_TRUE(Part(name).hasMouseTracking()) << name;
        MoveTo(Part(name), {3, 3});
        const Log told = main_.Take();
        EXPECT_GE(std::count(told.begin(), told.end(), "panel"), 1) << name;
        EXPECT_EQ(std::count(told.begin(), told.end(), "background"), 0) << name;
    }
}

}  // namespace
}  // namespace tessarin
