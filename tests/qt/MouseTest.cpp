// The mouse over a picture, and how it can be lost.
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>

#include "qt/Recorders.h"

namespace tessarin {
namespace {

class MouseTest : public WindowTest {
  protected:
    MouseTest() : child_(MakeChild("A")) {
        QTest::mouseClick(&Picture(0), Qt::LeftButton, {}, {1, 1});
        Take();
        log_.clear();
    }
    void Move(double x, double y, Qt::MouseButtons buttons) {
        const QPointF place(x, y);
        QMouseEvent move(QEvent::MouseMove, place, Picture(0).mapToGlobal(place), Qt::NoButton,
                         buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&Picture(0), &move);
    }
    std::unique_ptr<RecordingForm> child_;
};

TEST_F(MouseTest, PlacesAndButtonsArriveAsTheyAre) {
    child_->form->Surface().SetPlace(10, 5);
    Move(30, 40, Qt::NoButton);
    QTest::mousePress(&Picture(0), Qt::RightButton, {}, {30, 40});
    Move(32, 41, Qt::RightButton);
    QTest::mouseRelease(&Picture(0), Qt::RightButton, Qt::ShiftModifier, {32, 41});
    QTest::mouseClick(&Picture(0), Qt::MiddleButton, {}, {32, 41});
    EXPECT_EQ(log_, (Log{"A move 0 20 35", "A press 2 20 35", "A move 2 22 36",
                         "A release 2 shift 22 36"}));
    EXPECT_TRUE(Picture(0).hasMouseTracking());
}

TEST_F(MouseTest, ADoubleClickIsTwoPresses) {
    DoubleClick(Picture(0), {9, 9});
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "A press 1 9 9"), 2);
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "A release 1 9 9"), 2);
}

TEST_F(MouseTest, ADragIsLostWhenTheMouseIsTakenAway) {
    const std::function<void()> takers[] = {
        [&] {
            QEvent ungrab(QEvent::UngrabMouse);
            QCoreApplication::sendEvent(&Picture(0), &ungrab);
        },
        [&] {
            QWidget other;
            other.show();
            other.activateWindow();
            LetEventsRun();
        },
        [&] { Shown(0).hide(); },
        [&] { Move(9, 9, Qt::NoButton); },
    };
    for (const auto& take : takers) {
        Window().activateWindow();
        child_->form->Show();
        LetEventsRun();
        QTest::mousePress(&Picture(0), Qt::LeftButton, {}, {5, 5});
        take();
        take();
        EXPECT_EQ(std::count(log_.begin(), log_.end(), "A lost"), 1);
        QTest::mouseRelease(&Picture(0), Qt::LeftButton, {}, {5, 5});
        log_.clear();
    }
}

TEST_F(MouseTest, NothingIsLostBetweenDrags) {
    QTest::mouseClick(&Picture(0), Qt::LeftButton, {}, {5, 5});
    QEvent ungrab(QEvent::UngrabMouse);
    QCoreApplication::sendEvent(&Picture(0), &ungrab);
    Move(7, 7, Qt::NoButton);
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "A lost"), 0);
}

TEST_F(MouseTest, APopUpMenuDuringThePressTakesTheMouseAfterIt) {
    child_->onPress = [&] {
        QMenu menu;
        menu.addAction("item");
        QTimer::singleShot(0, &menu, &QMenu::close);
        menu.exec();
        log_.push_back("menu done");
    };
    QTest::mousePress(&Picture(0), Qt::RightButton, {}, {5, 5});
    EXPECT_EQ(log_, (Log{"A press 2 5 5", "menu done", "A lost"}));
}

}  // namespace
}  // namespace tessarin
