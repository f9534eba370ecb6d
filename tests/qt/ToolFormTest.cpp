// The window of tools on the screen: places, typing, the small form beside plots, closing.
#include "platform/qt/ToolPane.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

class RecordingTool : public ToolFormEvents {
  public:
    explicit RecordingTool(Log& log) : log_(log) {}

    void Form_Activate() override { log_.emplace_back("T activate"); }
    void Form_QueryUnload() override {
        log_.emplace_back("T unload");
        form->Hide();
    }
    void Toteuta_Click() override { log_.emplace_back("T execute"); }
    void Tyhjenna_Click() override { log_.emplace_back("T clear"); }
    void MuutaKokoa_Click() override { log_.emplace_back("T size"); }
    void Teksti_Row(int row) override { log_.push_back("T row " + std::to_string(row)); }
    void Form_MouseMove() override { ++moves; }

    std::unique_ptr<ToolForm> form;
    int moves = 0;

  private:
    Log& log_;
};

class ToolFormTest : public WindowTest {
  protected:
    ToolFormTest() { tool_.form = Main().MakeToolForm(tool_); }
    ToolPane& Pane(int place) { return dynamic_cast<ToolPane&>(*Shown(place).widget()); }

    RecordingTool tool_{log_};
};

TEST_F(ToolFormTest, EverythingHasItsPlaceInTheFullForm) {
    LetEventsRun();
    EXPECT_TRUE(Shown(0).isHidden());
    tool_.form->ShowFull();
    LetEventsRun();
    EXPECT_EQ(Take(), Log{"T activate"});
    EXPECT_EQ(Shown(0).windowTitle(), "Tool running");
    ToolPane& pane = Pane(0);
    EXPECT_EQ(pane.size(), QSize(425, 491));
    EXPECT_EQ(pane.Text().geometry(), QRect(8, 8, 409, 305));
    EXPECT_EQ(pane.Execute().geometry(), QRect(8, 320, 97, 17));
    EXPECT_EQ(pane.Variables().geometry(), QRect(8, 360, 409, 129));
    for (const char* name : {"Toteuta", "Tyhjenna", "MuutaKokoa"}) {
        Click(*pane.findChild<QWidget*>(name), {5, 5});
    }
    EXPECT_EQ(Take(), (Log{"T execute", "T clear", "T size"}));

    Shown(0).resize(Shown(0).size() + QSize(100, 50));  // the boxes grow, nothing overlaps
    EXPECT_EQ(pane.Text().geometry(), QRect(8, 8, 509, 355));
    EXPECT_EQ(pane.Variables().geometry(), QRect(8, 410, 509, 129));
    EXPECT_EQ(pane.Execute().y(), 370);
}

TEST_F(ToolFormTest, WhatIsTypedIsTheText) {
    tool_.form->ShowFull();
    LetEventsRun();
    ToolPane& pane = Pane(0);
    Take();
    QTest::keyClicks(&pane.Text(), "do:2");
    QTest::keyClick(&pane.Text(), Qt::Key_Return);
    QTest::keyClicks(&pane.Text(), "loop:");
    EXPECT_EQ(tool_.form->Text(), "do:2\nloop:");
    EXPECT_EQ(Take().back(), "T row 2");
    QTest::keyClick(&pane.Text(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Take().back(), "T row 1");
    EXPECT_EQ(tool_.form->SelectedText(), "\nloop:");
    tool_.form->SetText("");
    EXPECT_EQ(tool_.form->Text(), "");
    pane.Text().undo();
    EXPECT_EQ(tool_.form->Text(), "do:2\nloop:") << "a wrong click is taken back";

    QTest::keyClicks(&pane.Variables(), "no");
    tool_.form->SetVariables("a = 1\nb = 2");
    EXPECT_EQ(pane.Variables().toPlainText(), "a = 1\nb = 2");
    tool_.form->SetCursorPlace("Row: 9");
    EXPECT_EQ(pane.CursorPlace().text(), "Row: 9");
    tool_.moves = 0;
    MoveTo(pane, {3, 3});
    MoveTo(*pane.Text().viewport(), {50, 50});
    MoveTo(*pane.Variables().viewport(), {50, 50});
    EXPECT_EQ(tool_.moves, 3);
}

TEST_F(ToolFormTest, TheSmallFormStandsBesideTheActiveWindow) {
    const auto plot = MakeChild("A");
    const auto other = MakeChild("B");
    Take();
    tool_.form->ShowSmall();
    LetEventsRun();
    EXPECT_EQ(Take(), Log{}) << "B is still the active one";
    EXPECT_EQ(Shown(0).size(), QSize(120, 60));
    EXPECT_TRUE(Window().Area().rect().contains(Shown(0).geometry()));
    EXPECT_FALSE(Pane(0).Text().isVisible());
    ASSERT_TRUE(Pane(0).Execute().isVisible());
    tool_.form->SetExecuteCaption("Stop");
    EXPECT_EQ(Pane(0).Execute().text(), "Stop");
    tool_.form->Hide();
    LetEventsRun();
    EXPECT_EQ(Take(), Log{}) << "and hears nothing at the end either";

    tool_.form->ShowSmall();
    Click(Pane(0).Execute(), {5, 5});
    EXPECT_EQ(Take().back(), "T execute");
    tool_.form->ShowFull();
    EXPECT_TRUE(Window().Area().rect().contains(Shown(0).geometry()));
    EXPECT_TRUE(Pane(0).Text().isVisible());
    tool_.form->ShowSmall();
    EXPECT_EQ(Shown(0).geometry().bottomLeft(), Window().Area().rect().bottomLeft());
}

TEST_F(ToolFormTest, ClosingOnlyHides) {
    tool_.form->ShowFull();
    LetEventsRun();
    Take();
    tool_.form->SetText("kept");
    Shown(0).close();
    EXPECT_EQ(Take().back(), "T unload");
    EXPECT_TRUE(Shown(0).isHidden());
    tool_.form->ShowFull();
    EXPECT_EQ(tool_.form->Text(), "kept");
    tool_.form.reset();
    LetEventsRun();
    EXPECT_TRUE(Window().Area().subWindowList().isEmpty());
}

}  // namespace
}  // namespace tessarin
