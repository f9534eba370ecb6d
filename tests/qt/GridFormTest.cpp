// Child windows with a table: activation beside plots, mouse, closing, places, pictures.
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>

#include "platform/qt/Conversions.h"
#include "platform/qt/GridWidget.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

const std::string kLongName = "Helper cells & <i>others</i> of the second day";

// `rows` counted with the head; 100 + 64 + 64 pixels wide.
GridTable MakeTable(int rows) {
    GridTable table{{{1500}, GridForm::kColumnWidth, GridForm::kColumnWidth},
                    {{{"File name", "a.fcs ", "a.fcs "}, true}}};
    while (table.Rows() < rows) {
        table.rows.push_back({{kLongName, std::to_string(table.Rows()), "12.5"}, false});
    }
    return table;
}

class GridFormTest : public WindowTest {
  protected:
    // A shown one, large enough for four rows.
    std::unique_ptr<RecordingGrid> MakeGrid(const std::string& name) {
        auto grid = std::make_unique<RecordingGrid>(name, log_);
        grid->form = Main().MakeGridChild(*grid);
        grid->form->SetTable(MakeTable(4));
        grid->form->SetOuterSize(TwipsFromPixels(300), TwipsFromPixels(200));
        grid->form->Show();
        LetEventsRun();
        return grid;
    }
    GridWidget& Grid(int place) { return dynamic_cast<GridWidget&>(*Shown(place).widget()); }
    QWidget& Cells(int place) { return *Grid(place).viewport(); }
    void RightClick(QWidget& widget, QPoint place) { Click(widget, place, {}, Qt::RightButton); }

    // What the window shows of the table, and the same part of its picture.
    static void ExpectShownPart(GridWidget& grid, const Bitmap& picture) {
        const double ratio = picture.ratio;
        const QRect seen(-grid.Corner(), grid.viewport()->size().boundedTo(grid.Cells().Size()));
        const QImage shown = grid.viewport()
                                 ->grab(QRect(QPoint(0, 0), seen.size()))
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        const QImage expected =
            ViewOf(picture).copy(QRect(seen.topLeft() * ratio, seen.size() * ratio));
        EXPECT_TRUE(shown == expected);
    }
};

TEST_F(GridFormTest, EachChangeBetweenPlotAndTableIsToldOnce) {
    const auto plot = MakeChild("A");
    Take();
    const auto grid = MakeGrid("G");
    EXPECT_EQ(Take(), Log{"G activate"});
    grid->form->Show();
    Click(Cells(1), {20, 20});
    EXPECT_EQ(Take(), Log{});

    Click(Picture(0), {20, 20});
    EXPECT_EQ(Take(), (Log{"A up 16", "A activate", "A press 1 20 20", "A release 1 20 20"}));
    Click(Cells(1), {20, 20});
    Click(Cells(1), {20, 40});
    EXPECT_EQ(Take(), Log{"G activate"});
    plot->form->Show();
    RightClick(Cells(1), {20, 20});
    EXPECT_EQ(Take(), (Log{"A activate", "G activate", "G right"}));
}

TEST_F(GridFormTest, APlotHearsOfShiftLetGoOverATable) {
    const auto plot = MakeChild("A");
    const auto grid = MakeGrid("G");
    Click(Picture(0), {20, 20}, Qt::ShiftModifier);
    EXPECT_EQ(Take()[3], "A down 16");
    Click(Cells(1), {20, 20});
    EXPECT_EQ(Take(), (Log{"A up 16", "G activate"}));

    plot->form->Show();
    QTest::sendKeyEvent(QTest::Press, Window().windowHandle(), Qt::Key_Shift, QString(), {});
    grid->form->Show();
    EXPECT_EQ(Take(), (Log{"A activate", "A down 16", "G activate"}));
    for (int i = 0; i < 2; ++i) {
        QTest::sendKeyEvent(QTest::Release, Window().windowHandle(), Qt::Key_Shift, QString(), {});
    }
    EXPECT_EQ(Take(), Log{"A up 16"});
}

TEST_F(GridFormTest, ClosingAsksAndDestroyingIsSilent) {
    const auto plot = MakeChild("A");
    auto grid = MakeGrid("G");
    Take();
    grid->keepsFormOnClose = true;
    Shown(1).close();
    EXPECT_EQ(Take(), Log{"G unload"});
    EXPECT_TRUE(Shown(1).isHidden());
    grid->keepsFormOnClose = false;
    grid->form->Show();
    Take();
    Shown(1).close();
    EXPECT_EQ(Take(), (Log{"G unload", "A activate"}));
    EXPECT_EQ(grid->form, nullptr);
    EXPECT_EQ(Window().Area().subWindowList().size(), 1);

    auto other = MakeGrid("H");
    Take();
    other->form.reset();
    EXPECT_EQ(log_, Log{});
    EXPECT_EQ(Take(), Log{"A activate"});
}

TEST_F(GridFormTest, OnlyARightPressIsToldAndMayEndTheForm) {
    auto grid = MakeGrid("G");
    Take();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        Click(Cells(0), {150, 20}, {}, button);
    }
    EXPECT_EQ(Take(), Log{});
    RightClick(Cells(0), {150, 20});
    RightClick(Cells(0), {250, 150});  // beside the cells
    EXPECT_EQ(Take(), (Log{"G right", "G right"}));

    grid->onPress = [&] {
        grid->form.reset();
        LetEventsRun();
    };
    RightClick(Cells(0), {150, 20});
    EXPECT_EQ(Take(), Log{"G right"});
    EXPECT_TRUE(Window().Area().subWindowList().isEmpty());
}

TEST_F(GridFormTest, ThereIsNoContextMenuOfItsOwn) {
    const auto grid = MakeGrid("G");
    grid->form->SetTable(MakeTable(300));
    bool opened = false;
    for (QWidget* part : {&Cells(0), static_cast<QWidget*>(Grid(0).verticalScrollBar())}) {
        QTimer::singleShot(0, part, [&] {
            if (QWidget* menu = QApplication::activePopupWidget()) {
                opened = true;
                menu->close();
            }
        });
        const QPoint middle = part->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, part->mapToGlobal(middle));
        QApplication::sendEvent(part, &event);
        LetEventsRun();
    }
    EXPECT_FALSE(opened);
}

TEST_F(GridFormTest, MovesAreToldWithAndWithoutAButtonAndNotToTheBackground) {
    const auto grid = MakeGrid("G");
    MoveTo(Cells(0), {20, 20});
    main_.Take();
    grid->moves = 0;
    MoveTo(Cells(0), {30, 20});
    MoveTo(Cells(0), {150, 150});
    EXPECT_EQ(grid->moves, 2);
    QTest::mousePress(Window().windowHandle(), Qt::LeftButton, {},
                      Cells(0).mapTo(&Window(), QPoint(150, 150)));
    grid->moves = 0;
    MoveTo(Cells(0), {20, 20});
    EXPECT_EQ(grid->moves, 1);
    EXPECT_EQ(main_.Take(), Log{});
}

TEST_F(GridFormTest, ANewTableStandsWithinTheAreaUnlessItIsPlacedOutside) {
    const auto open = [this](int place, bool placed) {
        auto grid = std::make_unique<RecordingGrid>("G", log_);
        grid->form = Main().MakeGridChild(*grid);
        grid->form->Show();
        const QSize area = Shown(place).mdiArea()->viewport()->size();
        Shown(place).move(area.width() - 50, area.height() - 50);
        if (placed) {
            grid->form->SetPlace(grid->form->Left(), grid->form->Top());
        }
        grid->form->SetOuterSize(TwipsFromPixels(300), TwipsFromPixels(200));
        return grid;
    };
    const auto grid = open(0, false);
    const QSize area = Shown(0).mdiArea()->viewport()->size();
    EXPECT_EQ(Shown(0).geometry().bottomRight(), QPoint(area.width() - 1, area.height() - 1));
    Shown(0).move(area.width() - 50, 10);
    grid->form->SetOuterSize(TwipsFromPixels(280), TwipsFromPixels(200));
    EXPECT_EQ(Shown(0).x(), area.width() - 50) << "where the user put it";
    const auto placed = open(1, true);
    EXPECT_EQ(Shown(1).x(), area.width() - 50);
}

TEST_F(GridFormTest, PlacesAreThoseOfTheFrame) {
    RecordingGrid grid("G", log_);
    grid.form = Main().MakeGridChild(grid);
    grid.form->SetPlace(TwipsFromPixels(120), {1507});
    grid.form->Show();
    LetEventsRun();
    EXPECT_EQ(grid.form->Left(), TwipsFromPixels(120));
    EXPECT_EQ(grid.form->Top(), TwipsFromPixels(100));
    EXPECT_EQ(Shown(0).pos(), QPoint(120, 100));
    Shown(0).move(-7, 33);  // as the user drags it
    EXPECT_EQ(grid.form->Left(), TwipsFromPixels(-7));
    EXPECT_EQ(grid.form->Top(), TwipsFromPixels(33));
    grid.form->SetPlace({2000000000}, {-2000000000});
    EXPECT_EQ(grid.form->Left(), TwipsFromPixels(8192));
    EXPECT_EQ(grid.form->Top(), TwipsFromPixels(-8192));
}

TEST_F(GridFormTest, ATableThatJustDoesNotFitGetsTheFewPixels) {
    const auto grid = MakeGrid("G");
    grid->form->SetTable(MakeTable(12));
    grid->form->SetOuterSize({2 * 960 + 1500 + 100}, {12 * 240 + 380});
    LetEventsRun();
    EXPECT_EQ(Cells(0).size(), Grid(0).size());  // no scroll bar
    EXPECT_GE(Cells(0).width(), 229);
    EXPECT_GE(Cells(0).height(), 12 * 16 + 1);
    for (const QSize size : {QSize(400, 300), QSize(150, 100), QSize(400, 100)}) {
        grid->form->SetOuterSize(TwipsFromPixels(size.width()), TwipsFromPixels(size.height()));
        EXPECT_EQ(Shown(0).size(), size);
    }
    for (const int twips : {0, -4000, 2000000000}) {
        grid->form->SetOuterSize({twips}, {twips});
        LetEventsRun();
        EXPECT_LE(Shown(0).width(), 8192);
    }
}

TEST_F(GridFormTest, AWindowThatWasPutAwayStaysAway) {
    const auto grid = MakeGrid("G");
    Shown(0).showMinimized();
    grid->form->SetTable(MakeTable(8));
    grid->form->SetOuterSize(TwipsFromPixels(350), TwipsFromPixels(250));
    LetEventsRun();
    EXPECT_TRUE(Shown(0).isMinimized());
    grid->form->Show();
    EXPECT_FALSE(Shown(0).isMinimized());
    grid->form->SetOuterSize(TwipsFromPixels(350), TwipsFromPixels(250));
    EXPECT_EQ(Shown(0).size(), QSize(350, 250));
}

TEST_F(GridFormTest, ScrollingReachesEveryPartOfTheTable) {
    const auto grid = MakeGrid("G");
    grid->form->SetTable(MakeTable(100));
    grid->form->SetOuterSize(TwipsFromPixels(150), TwipsFromPixels(120));
    LetEventsRun();
    const Bitmap picture = grid->form->Picture();
    ExpectShownPart(Grid(0), picture);
    Grid(0).horizontalScrollBar()->setValue(70);
    Grid(0).verticalScrollBar()->setValue(411);
    ExpectShownPart(Grid(0), picture);
    Grid(0).horizontalScrollBar()->setValue(10000);
    Grid(0).verticalScrollBar()->setValue(10000);
    EXPECT_EQ(Grid(0).Corner().x(), Cells(0).width() - 229);
    EXPECT_EQ(Grid(0).Corner().y(), Cells(0).height() - 1601);
    ExpectShownPart(Grid(0), picture);

    grid->form->SetTable(MakeTable(2));  // shorter than the place that was scrolled to
    LetEventsRun();
    EXPECT_EQ(Grid(0).Corner().y(), 0);
    ExpectShownPart(Grid(0), grid->form->Picture());
}

TEST_F(GridFormTest, ThePictureNeedsNoWindowOnTheScreen) {
    RecordingGrid hidden("H", log_);
    hidden.form = Main().MakeGridChild(hidden);
    EXPECT_TRUE(hidden.form->Picture().pixels.empty());
    hidden.form->SetTable(MakeTable(4));
    const Bitmap picture = hidden.form->Picture();
    EXPECT_EQ(picture.ratio, Window().devicePixelRatioF());
    EXPECT_EQ(picture.width, 229 * picture.ratio);
    EXPECT_EQ(picture.height, 65 * picture.ratio);
    const auto shown = MakeGrid("G");
    ExpectShownPart(Grid(1), picture);
    EXPECT_TRUE(shown->form->Picture().pixels == picture.pixels);
}

TEST_F(GridFormTest, CutTextIsWholeInItsToolTip) {
    const auto grid = MakeGrid("G");
    const auto toolTipAt = [&](QPoint place) {
        QHelpEvent event(QEvent::ToolTip, place, Cells(0).mapToGlobal(place));
        QApplication::sendEvent(&Cells(0), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(toolTipAt({20, 24}), AsToolTip(ToQt(kLongName)));
    grid->form->SetTable(MakeTable(100));
    Grid(0).verticalScrollBar()->setValue(16);  // the second row stands first
    EXPECT_EQ(toolTipAt({20, 8}), AsToolTip(ToQt(kLongName)));
    QToolTip::hideText();
    LetEventsRun();
}

TEST_F(GridFormTest, TheCaptionStandsInTheTitleAsItIs) {
    const auto grid = MakeGrid("G");
    grid->form->SetCaption("Statistics (1): R&D[*].fcs");
    EXPECT_EQ(Shown(0).windowTitle(), QString("Statistics (1): R&D[*][*].fcs"));
}

TEST(GridFormOutlivesMainForm, AllCallsAreHarmless) {
    Log log;
    RecordingGrid grid("G", log);
    {
        QtPlatform platform({true, "", "", nullptr, nullptr, nullptr, nullptr});
        platform.Main().Show();
        grid.form = platform.Main().MakeGridChild(grid);
        grid.form->Show();
    }
    grid.form->SetTable(MakeTable(3));
    grid.form->SetOuterSize({4000}, {4000});
    grid.form->SetPlace({150}, {150});
    grid.form->SetCaption("late");
    grid.form->Show();
    EXPECT_EQ(grid.form->Left(), Twips{0});
    EXPECT_TRUE(grid.form->Picture().pixels.empty());
}

TEST_F(GridFormTest, ASurfaceWithoutAWindowTakesThePicture) {
    const auto grid = MakeGrid("G");
    const auto surface = Main().MakeSurface();
    surface->SetSize(30, 20);
    surface->Cls();
    EXPECT_EQ(surface->Image().width, 30 * Window().devicePixelRatioF());
    surface->SetPicture(grid->form->Picture());
    EXPECT_EQ(surface->Width(), 229);
    EXPECT_EQ(surface->Height(), 65);
    EXPECT_TRUE(surface->Image().pixels == grid->form->Picture().pixels);
}

}  // namespace
}  // namespace tessarin
