// Controls of a form on the screen: mouse and keyboard, what the program sets, going in the middle.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/Recorders.h"

namespace tessarin {
namespace {

class ControlsTest : public WindowTest {
  protected:
    ControlsTest() {
        child_ = MakeChild("A");
        child_->form->Surface().SetVisible(false);
    }
    ControlMaker& Maker() { return child_->form->Controls(); }
    template <class Widget>
    Widget& Find(const char* name) {
        return *Shown(0).findChild<Widget*>(name);
    }

    std::unique_ptr<RecordingForm> child_;
};

TEST_F(ControlsTest, ClicksAndKeysReachTheReceiver) {
    const auto first = Maker().MakeButton({"first", "First", {10, 10, 80, 20}});
    const auto second = Maker().MakeButton({"second", "Second", {10, 40, 80, 20}});
    int clicks = 0;
    first->onClick = [&clicks] { ++clicks; };
    Click(Find<QWidget>("first"), {5, 5});
    EXPECT_EQ(clicks, 1);
    Click(Find<QWidget>("second"), {5, 5});  // nobody listens
    Find<QWidget>("first").setFocus();
    QTest::keyClick(&Find<QWidget>("first"), Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
    QTest::keyClick(&Find<QWidget>("first"), Qt::Key_Tab);
    EXPECT_TRUE(Find<QWidget>("second").hasFocus()) << "in the order of their making";
    first->SetEnabled(false);
    Click(Find<QWidget>("first"), {5, 5});
    EXPECT_EQ(clicks, 2);
    first->SetCaption("R&D");
    EXPECT_EQ(Find<QPushButton>("first").accessibleName(), "First");
    second->SetVisible(false);
    EXPECT_FALSE(Find<QWidget>("second").isVisible());
    second->SetPlace({1, 2, 30, 40});
    EXPECT_EQ(Find<QWidget>("second").geometry(), QRect(1, 2, 30, 40));
}

TEST_F(ControlsTest, AControlMayGoWhileItTells) {
    auto button = Maker().MakeButton({"go", "Go", {10, 10, 80, 20}});
    button->onClick = [&button] { button.reset(); };
    Click(Find<QWidget>("go"), {5, 5});
    LetEventsRun();
    EXPECT_EQ(Shown(0).findChild<QWidget*>("go"), nullptr);

    auto last = Maker().MakeButton({"last", "Last", {10, 10, 80, 20}});
    last->onClick = [this, &last] {
        last.reset();
        child_->form.reset();
    };
    Click(Find<QWidget>("last"), {5, 5});
    LetEventsRun();
    EXPECT_TRUE(Window().Area().subWindowList().isEmpty());
}

TEST_F(ControlsTest, WhatIsTypedIsTheText) {
    const auto box = Maker().MakeTextBox({"box", "Text", {5, 5, 200, 100}});
    const auto shown = Maker().MakeTextBox({"shown", "Values", {5, 110, 200, 30}, true});
    int row = 0;
    box->onRow = [&row](int now) { row = now; };
    auto& typed = Find<QPlainTextEdit>("box");
    QTest::keyClicks(&typed, "do:2");
    QTest::keyClick(&typed, Qt::Key_Return);
    QTest::keyClicks(&typed, "loop:");
    EXPECT_EQ(box->Text(), "do:2\nloop:");
    EXPECT_EQ(row, 2);
    QTest::keyClick(&typed, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(box->SelectedText(), "\nloop:");
    box->SetText("");
    EXPECT_EQ(box->Text(), "");
    typed.undo();
    EXPECT_EQ(box->Text(), "do:2\nloop:") << "a wrong click is taken back";

    QTest::keyClicks(&Find<QPlainTextEdit>("shown"), "no");
    shown->SetText("a = 1\nb = 2");
    EXPECT_EQ(shown->Text(), "a = 1\nb = 2");
}

TEST_F(ControlsTest, ATextBoxTellsOfTypingOnly) {
    const auto box = Maker().MakeTextBox({"box", "Text", {5, 5, 200, 100}});
    int edits = 0;
    box->onEdit = [&edits] { ++edits; };
    box->SetText("set");
    EXPECT_EQ(edits, 0);
    auto& typed = Find<QPlainTextEdit>("box");
    QTest::keyClicks(&typed, "!");
    EXPECT_EQ(edits, 1);
    typed.undo();
    EXPECT_EQ(edits, 2) << "taking back is typing too";
}

TEST_F(ControlsTest, ALineIsMarkedUntilTheCursorLeavesIt) {
    const auto box = Maker().MakeTextBox({"box", "Text", {5, 5, 200, 60}});
    int row = 0;
    box->onRow = [&row](int now) { row = now; };
    std::string lines = "1";
    for (int line = 2; line <= 100; ++line) {
        lines += "\n" + std::to_string(line);
    }
    box->SetText(lines);
    auto& shown = Find<QPlainTextEdit>("box");
    const auto marked = [&shown] {
        const auto parts = shown.extraSelections();
        return parts.isEmpty() ? 0 : parts[0].cursor.blockNumber() + 1;
    };
    box->GoToRow(70);
    EXPECT_EQ(marked(), 70);
    EXPECT_EQ(row, 70);
    EXPECT_TRUE(shown.rect().contains(shown.cursorRect().center())) << "it is in sight";
    QTest::keyClick(&shown, Qt::Key_Right);
    EXPECT_EQ(marked(), 70);
    QTest::keyClick(&shown, Qt::Key_Up);
    EXPECT_EQ(marked(), 0);
    for (const auto& [asked, there] : {std::pair{1000, 100}, {0, 1}}) {
        box->GoToRow(asked);
        EXPECT_EQ(marked(), there);
    }
    QTest::keyClicks(&shown, "x");
    EXPECT_EQ(marked(), 0) << "the text is another one";
}

TEST_F(ControlsTest, AFieldTellsOfTypingOnly) {
    const auto field = Maker().MakeTextField({"field", "Name", {5, 5, 100, 20}});
    const auto shown = Maker().MakeTextField({"shown", "Row", {5, 30, 100, 20}, true});
    int edits = 0;
    field->onEdit = [&edits] { ++edits; };
    field->SetText("set");
    EXPECT_EQ(edits, 0);
    QTest::keyClicks(&Find<QLineEdit>("field"), "!");
    EXPECT_EQ(field->Text(), "set!");
    EXPECT_EQ(edits, 1);
    shown->SetText("Row: 9");
    QTest::keyClicks(&Find<QLineEdit>("shown"), "no");
    EXPECT_EQ(shown->Text(), "Row: 9");
    const auto label = Maker().MakeLabel({"label", "Variable values", {5, 60, 100, 20}});
    label->SetText("<b>as it is</b>");
}

TEST_F(ControlsTest, MovesOverTheFormAndItsControlsAreTold) {
    const auto box = Maker().MakeTextBox({"box", "Text", {5, 5, 200, 100}});
    MoveTo(Picture(0), {250, 150});
    child_->moves = 0;
    MoveTo(Picture(0), {251, 151});
    MoveTo(*Find<QPlainTextEdit>("box").viewport(), {50, 50});
    MoveTo(*Find<QPlainTextEdit>("box").viewport(), {60, 50});
    EXPECT_EQ(child_->moves, 3);
}

TEST_F(ControlsTest, KeysOfTheActiveFormAreToldWithTheirCodes) {
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::sendKeyEvent(QTest::Click, Window().windowHandle(), key, QString(), modifiers);
        return Take();
    };
    Take();
    EXPECT_EQ(press(Qt::Key_V, Qt::ControlModifier),
              (Log{"A down 0 ctrl", "A down 86 ctrl", "A up 86", "A up 0"}));
    EXPECT_EQ(press(Qt::Key_Delete, {}), (Log{"A down 46", "A up 46"}));
    EXPECT_EQ(press(Qt::Key_Escape, {}), (Log{"A down 27", "A up 27"}));
    EXPECT_EQ(press(Qt::Key_F7, {}), (Log{"A down 0", "A up 0"}));
}

TEST_F(ControlsTest, AFixedFormKeepsItsSize) {
    child_->form->SetResizable(false);
    Shown(0).resize(500, 400);
    EXPECT_EQ(Shown(0).size(), QSize(300, 200));
    EXPECT_FALSE(Shown(0).windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    child_->form->SetOuterSize(TwipsFromPixels(320), TwipsFromPixels(240));
    EXPECT_EQ(Shown(0).size(), QSize(320, 240));
    child_->form->SetResizable(true);
    Shown(0).resize(500, 400);
    EXPECT_EQ(Shown(0).size(), QSize(500, 400));
}

TEST(ControlsOutliveMainForm, AllCallsAreHarmless) {
    Log log;
    RecordingForm child("A", log);
    std::unique_ptr<Button> button;
    std::unique_ptr<TextBox> box;
    std::unique_ptr<TextField> field;
    std::unique_ptr<Table> table;
    {
        QtPlatform platform({true, "", "", nullptr, nullptr, nullptr, nullptr});
        child.form = platform.Main().MakeChild(child);
        button = child.form->Controls().MakeButton({"b", "B"});
        box = child.form->Controls().MakeTextBox({"t", "T"});
        field = child.form->Controls().MakeTextField({"f", "F"});
        table = child.form->Controls().MakeTable({"g", "G"});
    }
    button->SetCaption("late");
    button->SetPlace({1, 2, 3, 4});
    box->SetText("late");
    box->SetFocus();
    field->SetText("late");
    table->SetTable({});
    EXPECT_EQ(box->Text() + box->SelectedText() + field->Text(), "");
    EXPECT_TRUE(table->Picture().pixels.empty());
    EXPECT_EQ(table->NeededWidth() + table->NeededHeight(), 0);
    EXPECT_EQ(child.form->AreaWidth(), 0);
}

}  // namespace
}  // namespace tessarin
