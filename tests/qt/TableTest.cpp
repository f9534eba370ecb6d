// A table as a control on the screen: mouse, scrolling, pictures, activation beside plots.
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <cmath>

#include "platform/qt/Conversions.h"
#include "platform/qt/GridWidget.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

const std::string kLongName = "Helper cells & <i>others</i> of the second day";

// `rows` counted with the head; 100 + 64 + 64 pixels wide.
GridTable MakeTable(int rows) {
    GridTable table{{{1500}, kGridColumnWidth, kGridColumnWidth},
                    {{{"File name", "a.fcs ", "a.fcs "}, true}}};
    while (table.Rows() < rows) {
        table.rows.push_back({{kLongName, std::to_string(table.Rows()), "12.5"}, false});
    }
    return table;
}

// A form that is all table.
struct TableForm {
    std::unique_ptr<RecordingForm> child;
    std::unique_ptr<Table> table;
};

class TableTest : public WindowTest {
  protected:
    // A shown one, large enough for four rows.
    TableForm MakeGrid(const std::string& name) {
        TableForm made{MakeChild(name), nullptr};
        made.table = made.child->form->Controls().MakeTable({"grid", "Statistics"});
        made.table->SetTable(MakeTable(4));
        made.table->onRightPress = [this, name] { log_.push_back(name + " right"); };
        Fill(made);
        return made;
    }
    static void Fill(const TableForm& made) {
        made.table->SetPlace(
            {0, 0, made.child->form->ScaleWidth(), made.child->form->ScaleHeight()});
    }
    GridWidget& Grid(int place) { return *Shown(place).findChild<GridWidget*>("grid"); }
    QWidget& Cells(int place) { return *Grid(place).viewport(); }
    // A move with the left button down, or without any.
    void MoveMouse(QPoint place, Qt::MouseButtons buttons) {
        QMouseEvent move(QEvent::MouseMove, place, Cells(0).mapToGlobal(place), Qt::NoButton,
                         buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&Cells(0), &move);
    }
    void RightClick(QWidget& widget, QPoint place) { Click(widget, place, {}, Qt::RightButton); }

    // What the window shows of the table, and the same part of its picture. Scrolled to half a
    // pixel of the screen it looks different; a part of one at the edge is left out.
    static void ExpectShownPart(GridWidget& grid, const Bitmap& picture) {
        const double ratio = picture.ratio;
        const auto isWhole = [ratio](int pixels) { return std::fmod(pixels * ratio, 1) == 0; };
        QRect seen(-grid.Corner(), grid.viewport()->size().boundedTo(grid.Cells().Size()));
        if (!isWhole(seen.left()) || !isWhole(seen.top())) {
            return;
        }
        seen.setSize(seen.size() -
                     QSize(isWhole(seen.width()) ? 0 : 1, isWhole(seen.height()) ? 0 : 1));
        const QImage shown = grid.viewport()
                                 ->grab(QRect(QPoint(0, 0), seen.size()))
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        const QImage expected =
            ViewOf(picture).copy(QRect(seen.topLeft() * ratio, seen.size() * ratio));
        EXPECT_TRUE(shown == expected);
    }
};

TEST_F(TableTest, EachChangeBetweenPlotAndTableIsToldOnce) {
    const auto plot = MakeChild("A");
    const auto grid = MakeGrid("G");
    Take();
    Click(Cells(1), {20, 20});
    EXPECT_EQ(Take(), Log{"G up 16"});
    Click(Picture(0), {20, 20});
    EXPECT_EQ(Take(), (Log{"A up 16", "A activate", "A press 1 20 20", "A release 1 20 20"}));
    Click(Cells(1), {20, 20});
    EXPECT_EQ(Take(), (Log{"G up 16", "G activate"}));
    plot->form->Show();
    RightClick(Cells(1), {20, 20});
    EXPECT_EQ(Take(), (Log{"A activate", "G up 16", "G activate", "G right"}));
}

TEST_F(TableTest, OnlyARightPressIsToldAndMayEndTheForm) {
    auto grid = MakeGrid("G");
    Take();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        Click(Cells(0), {150, 20}, {}, button);
    }
    std::erase(log_, "G up 16");
    EXPECT_EQ(Take(), Log{});
    RightClick(Cells(0), {150, 20});
    RightClick(Cells(0), {250, 150});  // beside the cells
    std::erase(log_, "G up 16");
    LetEventsRun();
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "G right"), 2);

    grid.table->onRightPress = [&] {
        grid.table.reset();
        grid.child->form.reset();
        LetEventsRun();
    };
    RightClick(Cells(0), {150, 20});
    LetEventsRun();
    EXPECT_TRUE(Window().Area().subWindowList().isEmpty());
}

TEST_F(TableTest, ThereIsNoContextMenuOfItsOwn) {
    const auto grid = MakeGrid("G");
    grid.table->SetTable(MakeTable(300));
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

TEST_F(TableTest, MovesAreToldAndNotToTheBackground) {
    const auto grid = MakeGrid("G");
    MoveTo(Cells(0), {20, 20});
    main_.Take();
    grid.child->moves = 0;
    MoveTo(Cells(0), {30, 20});
    MoveTo(Cells(0), {150, 150});
    EXPECT_EQ(grid.child->moves, 2);
    EXPECT_EQ(main_.Take(), Log{});
}

TEST_F(TableTest, ItTellsWhatItNeeds) {
    const auto grid = MakeGrid("G");
    grid.table->SetTable(MakeTable(12));
    EXPECT_EQ(grid.table->NeededWidth(), 229);
    EXPECT_EQ(grid.table->NeededHeight(), 12 * 16 + 1);
    grid.table->SetPlace({0, 0, 229, 193});
    LetEventsRun();
    EXPECT_EQ(Cells(0).size(), Grid(0).size()) << "no scroll bar";
}

TEST_F(TableTest, ScrollingReachesEveryPartOfTheTable) {
    const auto grid = MakeGrid("G");
    grid.table->SetTable(MakeTable(100));
    grid.table->SetPlace({0, 0, 150, 120});
    LetEventsRun();
    const Bitmap picture = grid.table->Picture();
    ExpectShownPart(Grid(0), picture);
    Grid(0).horizontalScrollBar()->setValue(70);
    Grid(0).verticalScrollBar()->setValue(412);
    ExpectShownPart(Grid(0), picture);
    Grid(0).horizontalScrollBar()->setValue(10000);
    Grid(0).verticalScrollBar()->setValue(10000);
    EXPECT_EQ(Grid(0).Corner().x(), Cells(0).width() - 229);
    EXPECT_EQ(Grid(0).Corner().y(), Cells(0).height() - 1601);
    ExpectShownPart(Grid(0), picture);

    grid.table->SetTable(MakeTable(2));  // shorter than the place that was scrolled to
    LetEventsRun();
    EXPECT_EQ(Grid(0).Corner().y(), 0);
    ExpectShownPart(Grid(0), grid.table->Picture());
}

TEST_F(TableTest, AColumnIsDrawnWiderByTheLineBehindIt) {
    const auto grid = MakeGrid("G");
    int told = 0;
    grid.table->onColumnWidth = [&told] { ++told; };
    MoveMouse({60, 24}, Qt::NoButton);
    EXPECT_EQ(Cells(0).cursor().shape(), Qt::ArrowCursor);
    MoveMouse({101, 24}, Qt::NoButton);
    EXPECT_EQ(Cells(0).cursor().shape(), Qt::SplitHCursor);
    QTest::mousePress(&Cells(0), Qt::LeftButton, {}, {101, 24});
    MoveMouse({131, 60}, Qt::LeftButton);
    EXPECT_EQ(grid.table->NeededWidth(), 229 + 30);
    EXPECT_EQ(told, 0) << "while the line is held";
    MoveMouse({151, 60}, Qt::LeftButton);
    QTest::mouseRelease(&Cells(0), Qt::LeftButton, {}, {151, 60});
    EXPECT_EQ(told, 1);
    MoveMouse({200, 60}, Qt::NoButton);
    EXPECT_EQ(grid.table->NeededWidth(), 229 + 50);
    grid.table->SetTable(MakeTable(7));
    EXPECT_EQ(grid.table->NeededWidth(), 229 + 50) << "it stays while the table is filled again";
    ExpectShownPart(Grid(0), grid.table->Picture());

    // A click on a line changes nothing; a button that came up elsewhere lets go.
    QTest::mouseClick(&Cells(0), Qt::LeftButton, {}, {151, 24});
    QTest::mousePress(&Cells(0), Qt::LeftButton, {}, {151, 24});
    MoveMouse({141, 24}, Qt::LeftButton);
    MoveMouse({161, 24}, Qt::NoButton);
    QTest::mouseRelease(&Cells(0), Qt::LeftButton, {}, {161, 24});
    EXPECT_EQ(grid.table->NeededWidth(), 229 + 40);
    EXPECT_EQ(told, 2);

    QTest::mousePress(&Cells(0), Qt::LeftButton, {}, {141, 24});
    grid.table->SetTable(GridTable{});  // a tool fills it with the line in hand
    MoveMouse({161, 24}, Qt::LeftButton);
    QTest::mouseRelease(&Cells(0), Qt::LeftButton, {}, {161, 24});
    EXPECT_EQ(told, 2);
}

TEST_F(TableTest, ThePictureNeedsNoWindowOnTheScreen) {
    RecordingForm hidden("H", log_);
    hidden.form = Main().MakeChild(hidden);
    const auto table = hidden.form->Controls().MakeTable({"grid", "Statistics"});
    EXPECT_TRUE(table->Picture().pixels.empty());
    table->SetTable(MakeTable(4));
    const Bitmap picture = table->Picture();
    EXPECT_EQ(picture.ratio, Window().devicePixelRatioF());
    EXPECT_EQ(picture.width, std::lround(229 * picture.ratio));
    EXPECT_EQ(picture.height, std::lround(65 * picture.ratio));
    const auto shown = MakeGrid("G");
    ExpectShownPart(Grid(1), picture);
    EXPECT_TRUE(shown.table->Picture().pixels == picture.pixels);

    const auto surface = Main().MakeSurface();
    surface->SetPicture(picture);
    EXPECT_EQ(surface->Width(), 229);
    EXPECT_EQ(surface->Height(), 65);
    EXPECT_TRUE(surface->Image().pixels == picture.pixels);
}

TEST_F(TableTest, CutTextIsWholeInItsToolTip) {
    const auto grid = MakeGrid("G");
    const auto toolTipAt = [&](QPoint place) {
        QHelpEvent event(QEvent::ToolTip, place, Cells(0).mapToGlobal(place));
        QApplication::sendEvent(&Cells(0), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(toolTipAt({20, 24}), AsToolTip(ToQt(kLongName)));
    grid.table->SetTable(MakeTable(100));
    Grid(0).verticalScrollBar()->setValue(16);  // the second row stands first
    EXPECT_EQ(toolTipAt({20, 8}), AsToolTip(ToQt(kLongName)));
    QToolTip::hideText();
    LetEventsRun();
}

}  // namespace
}  // namespace tessarin
