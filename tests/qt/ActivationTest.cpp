// Which child is active, how often it hears of it, and Shift on the way there.
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include "qt/Recorders.h"

namespace tessarin {
namespace {

using ActivationTest = WindowTest;

void PressKey(QWidget& window, QEvent::Type type, Qt::Key key) {
    QTest::sendKeyEvent(type == QEvent::KeyPress ? QTest::Press : QTest::Release,
                        window.windowHandle(), key, QString(), Qt::NoModifier);
}

TEST_F(ActivationTest, EachChangeIsToldOnce) {
    const auto a = MakeChild("A");
    EXPECT_EQ(Take().back(), "A activate");
    const auto b = MakeChild("B");
    const Log shown = Take();
    EXPECT_EQ(std::count(shown.begin(), shown.end(), "B activate"), 1);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), "A activate"), 0);

    b->form->Show();
    Click(Picture(1), {20, 20});
    EXPECT_EQ(Take(), (Log{"B up 16", "B press 1 20 20", "B release 1 20 20"}));

    Click(Picture(0), {20, 20});
    EXPECT_EQ(Take(), (Log{"A up 16", "A activate", "A press 1 20 20", "A release 1 20 20"}));
}

TEST_F(ActivationTest, OtherProgramsDialogsAndMenusChangeNothing) {
    const auto a = MakeChild("A");
    const auto b = MakeChild("B");
    Click(Picture(0), {20, 20});
    Take();

    QWidget other;  // stands for another program
    other.show();
    other.activateWindow();
    LetEventsRun();
    ASSERT_FALSE(Window().isActiveWindow());
    Window().activateWindow();
    LetEventsRun();
    ASSERT_TRUE(Window().isActiveWindow());
    QDialog dialog(&Window());
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    dialog.exec();
    EXPECT_EQ(Take(), Log{});
}

TEST_F(ActivationTest, PressOnTheTitleActivatesToo) {
    const auto a = MakeChild("A");
    const auto b = MakeChild("B");
    Take();
    Click(Shown(0), {100, 8}, Qt::ShiftModifier);
    EXPECT_EQ(Take(), (Log{"A down 16", "A activate"}));
}

TEST_F(ActivationTest, ShiftGoesToTheActiveChildAndComesBeforeAnActivation) {
    const auto a = MakeChild("A");
    const auto b = MakeChild("B");
    Window().activateWindow();
    LetEventsRun();
    Take();

    PressKey(Window(), QEvent::KeyPress, Qt::Key_Shift);
    PressKey(Window(), QEvent::KeyPress, Qt::Key_X);
    PressKey(Window(), QEvent::KeyRelease, Qt::Key_X);
    PressKey(Window(), QEvent::KeyRelease, Qt::Key_Shift);
    EXPECT_EQ(Take(), (Log{"B down 16", "B down 88", "B up 88", "B up 16"}));

    Click(Picture(0), {20, 20}, Qt::ShiftModifier);
    EXPECT_EQ(Take(),
              (Log{"A down 16", "A activate", "A press 1 shift 20 20", "A release 1 shift 20 20"}));
}

TEST_F(ActivationTest, TheNextChildHearsOfItsTurnFromTheEventLoopOnly) {
    const auto a = MakeChild("A");
    const auto b = MakeChild("B");
    Take();
    b->form.reset();
    EXPECT_EQ(log_, Log{});
    EXPECT_EQ(Take(), Log{"A activate"});

    a->form->Hide();
    EXPECT_EQ(Take(), Log{});
    a->form->Show();
    EXPECT_EQ(Take(), Log{"A activate"});
}

TEST_F(ActivationTest, AClosedWindowIsFreedBetweenTheLinesOfATool) {
    auto closed = MakeChild("A");
    auto kept = MakeChild("B");
    const QPointer<ChildWindow> window(&Shown(0));
    closed->form.reset();
    platform_.Loop().Yield();
    EXPECT_TRUE(window) << "whoever yields may have been called by that window";
    QTimer::singleShot(0, [this] { platform_.Loop().YieldBetween(); });
    platform_.Loop().Yield();
    EXPECT_TRUE(window) << "a tool that began within another yield";
    platform_.Loop().YieldBetween();
    EXPECT_FALSE(window);
    EXPECT_EQ(Window().Area().subWindowList().size(), 1);
}

}  // namespace
}  // namespace tessarin
