// The tool window: what runs in it and beside it, stopping, sizes, and leaving in the middle.
#include "tools/Skripti.h"

#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

class SkriptiTest : public ProgramTest {
  protected:
    ScriptedToolForm& Form() { return *platform.mainForm.tools; }
    bool RunFromMenu(const std::string& text) { return window_.AjaValikosta(text, user_); }

    Skripti window_{main};
    DialogToolUser user_{platform.dialogs};
};

TEST_F(SkriptiTest, AMenuRunShowsStopAndLeavesNothingBehind) {
    Form().text = "mine";
    EXPECT_EQ(Form().state, "hidden");
    std::string during;
    platform.loop.atNextYield = [&] { during = Form().state + " " + Form().caption; };
    EXPECT_TRUE(RunFromMenu("$a.set:1\r\n"));
    EXPECT_EQ(during, "small Stop");
    EXPECT_EQ(Form().state, "hidden");
    EXPECT_EQ(Form().caption, "Execute");
    EXPECT_EQ(Form().text, "mine");
    EXPECT_EQ(Form().variables, "");

    EXPECT_FALSE(RunFromMenu(":55\r\n")) << "an aborted run";
    EXPECT_EQ(Form().state, "hidden");
    EXPECT_TRUE(RunFromMenu("showscripter\r\n"));
    EXPECT_EQ(Form().state, "full");
    EXPECT_TRUE(RunFromMenu("end\r\n"));
    EXPECT_EQ(Form().state, "hidden");
}

TEST_F(SkriptiTest, StopTakesEffectAtTheNextLine) {
    platform.loop.atNextYield = [&] { Form().events.Toteuta_Click(); };
    RunFromMenu("message:one\r\nmessage:two\r\n");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "one");
    EXPECT_EQ(Form().caption, "Execute");
    EXPECT_FALSE(SkriptiKaynnissa);
}

TEST_F(SkriptiTest, TheTextBoxRunsAndShowsItsVariables) {
    window_.MuutaSkriptiKoko("iso");
    Form().text = "$total.set:5\n$twice.calc:$total*2";  // the last line has no end of its own
    Form().events.Toteuta_Click();
    EXPECT_EQ(Form().state, "full");
    EXPECT_NE(Form().variables.find("total"), std::string::npos);
    EXPECT_NE(Form().variables.find("10"), std::string::npos);
    EXPECT_EQ(Form().caption, "Execute");
    Form().text = "message:$";
    Form().events.Toteuta_Click();
    Form().events.Teksti_Row(7);
    EXPECT_EQ(Form().cursorPlace, "Row: 7");
    Form().events.Tyhjenna_Click();
    EXPECT_EQ(Form().text, "");
}

TEST_F(SkriptiTest, SizesTakeTurns) {
    window_.MuutaSkriptiKoko("iso");
    window_.MuutaSkriptiKoko("iso");
    EXPECT_EQ(Form().state, "full");
    Form().events.MuutaKokoa_Click();
    EXPECT_EQ(Form().state, "small");
    window_.MuutaSkriptiKoko("pieni");
    EXPECT_EQ(Form().state, "small");
    window_.MuutaSkriptiKoko("other");
    EXPECT_EQ(Form().state, "full");
    Form().events.Form_QueryUnload();
    EXPECT_EQ(Form().state, "hidden");
}

TEST_F(SkriptiTest, TheActiveWindowOfToolsIsCopied) {
    EXPECT_EQ(window_.AnnaID(), 999);
    window_.MuutaSkriptiKoko("iso");
    Form().text = "whole";
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "whole");
    Form().selected = "part";
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "part");
    // The small form is no window to copy from: it never becomes the active one.
    NewDotPlot().Activate();
    RunFromMenu("end\r\n");
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "");
}

TEST_F(SkriptiTest, ARunWithinARunEndsBoth) {
    platform.loop.atNextYield = [&] { RunFromMenu("message:inner\r\n"); };
    RunFromMenu("message:first\r\nmessage:second\r\n");
    ASSERT_EQ(platform.dialogs.messages.size(), 2U);
    EXPECT_EQ(platform.dialogs.messages[1].text, "inner");
    EXPECT_EQ(Form().state, "hidden");
    EXPECT_EQ(Form().caption, "Execute");
}

TEST_F(SkriptiTest, LeavingTheProgramEndsTheRun) {
    NewDotPlot();
    platform.dialogs.answers.emplace_back(true);
    platform.loop.atNextYield = [&] { Choose("FileExit"); };
    RunFromMenu("message:one\r\nmessage:two\r\ncreate.dotplot:2\r\n");
    EXPECT_TRUE(platform.loop.quit);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_TRUE(platform.mainForm.children.empty());
}

}  // namespace
}  // namespace tessarin
