// The tool window: what runs in it and beside it, stopping, sizes, and leaving in the middle.
#include "tools/Skripti.h"

#include <filesystem>
#include <fstream>
#include <memory>

#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/ToolList.h"
#include "tools/ToolPack.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

class SkriptiTest : public ProgramTest {
  protected:
    // The form is the first child; all others are plots.
    ScriptedForm& Form() { return *platform.mainForm.children.front(); }
    ScriptedTextBox& Box(const char* name) { return Form().controls.Get<ScriptedTextBox>(name); }
    ScriptedTextBox& Text() { return Box("Teksti"); }
    ScriptedButton& Button(const char* name) { return Form().controls.Get<ScriptedButton>(name); }
    std::string Execute() { return Button("Toteuta").caption; }
    std::string State() {
        if (!Form().shown) {
            return "hidden";
        }
        return Text().state.visible ? "full" : "small";
    }
    bool RunFromMenu(const std::string& text) { return window_.AjaValikosta(text, user_); }

    void Type(const std::string& text) {
        Text().text = text;
        Text().onEdit();
    }
    bool Resting() const { return platform.timers.running.back(); }
    // The moment passes after which the window looks at what was typed.
    void Rest() {
        ASSERT_TRUE(Resting());
        platform.timers.ticks.back()();
    }

    Skripti window_{main};
    DialogToolUser user_{platform.dialogs};
};

TEST_F(SkriptiTest, AMenuRunShowsStopAndLeavesNothingBehind) {
    Text().text = "mine";
    EXPECT_EQ(State(), "hidden");
    std::string during;
    platform.loop.atNextYield = [&] { during = State() + " " + Execute(); };
    EXPECT_TRUE(RunFromMenu("$a.set:1\r\n"));
    EXPECT_EQ(during, "small Stop");
    EXPECT_EQ(State(), "hidden");
    EXPECT_EQ(Execute(), "Execute");
    EXPECT_EQ(Text().text, "mine");
    EXPECT_EQ(Box("Muuttujat").text, "");

    EXPECT_FALSE(RunFromMenu(":55\r\n")) << "an aborted run";
    EXPECT_EQ(State(), "hidden");
    EXPECT_TRUE(RunFromMenu("showscripter\r\n"));
    EXPECT_EQ(State(), "full");
    EXPECT_TRUE(RunFromMenu("end\r\n"));
    EXPECT_EQ(State(), "hidden");
}

TEST_F(SkriptiTest, StopTakesEffectAtTheNextLine) {
    platform.loop.atNextYield = [&] { Button("Toteuta").Click(); };
    RunFromMenu("message:one\r\nmessage:two\r\n");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "one");
    EXPECT_EQ(Execute(), "Execute");
    EXPECT_FALSE(SkriptiKaynnissa);
}

// A tool that shows box after box cannot be stopped anywhere else.
TEST_F(SkriptiTest, BoxesOfARunCarryStop) {
    auto& dialogs = platform.dialogs;
    dialogs.texts = {"12"};
    RunFromMenu(
        "message:one\r\nquestion.$a.input:two\r\nquestion.go.continue:three\r\n"
        "create.dotplot:1\r\nw.1.file.load:nothing\r\ndo:0\r\n");
    ASSERT_EQ(dialogs.messages.size(), 3U);
    EXPECT_EQ(dialogs.messages[0].extra, "Stop");
    EXPECT_EQ(dialogs.questions.at(0).extra, "Stop");
    EXPECT_EQ(dialogs.questions.at(1).extra, "Stop");
    EXPECT_EQ(dialogs.messages[1].extra, "Stop")
        << "also what is no line's own: " << dialogs.messages[1].text;
    EXPECT_EQ(dialogs.messages[2].extra, "") << "the run is over";
    dialogs.Message("later", "");
    EXPECT_EQ(dialogs.messages.back().extra, "");

    dialogs.pressExtra = true;
    for (const std::string box :
         {"message:on", "question.$a.input:on", "question.go.continue:on"}) {
        dialogs.messages.clear();
        dialogs.questions.clear();
        dialogs.texts = {"12"};
        RunFromMenu("do:1000\r\n" + box + "\r\nloop\r\n");
        EXPECT_EQ(dialogs.messages.size() + dialogs.questions.size(), 1U) << box;
        EXPECT_FALSE(SkriptiKaynnissa);
    }
    platform.loop.atNextYield = [&] { dialogs.Message("of somebody else", ""); };
    RunFromMenu("$a.set:1\r\n");
    EXPECT_EQ(dialogs.messages.back().extra, "") << "between lines nothing is the run's";
}

TEST_F(SkriptiTest, TheTextBoxRunsAndShowsItsVariables) {
    window_.MuutaSkriptiKoko("iso");
    Text().text = "$total.set:5\n$twice.calc:$total*2";  // the last line has no end of its own
    Button("Toteuta").Click();
    EXPECT_EQ(State(), "full");
    EXPECT_NE(Box("Muuttujat").text.find("total"), std::string::npos);
    EXPECT_NE(Box("Muuttujat").text.find("10"), std::string::npos);
    EXPECT_EQ(Execute(), "Execute");
    Text().text = "message:$";
    Button("Toteuta").Click();
    Text().onRow(7);
    EXPECT_EQ(Form().controls.Get<ScriptedTextField>("KursorinPaikka").text, "Row: 7");
    Button("Tyhjenna").Click();
    EXPECT_EQ(Text().text, "");
}

TEST_F(SkriptiTest, AFaultShowsItsRowAndWhy) {
    Text().text = "$a.set:1\n w.9.zero\n$b.set:2";
    Button("Toteuta").Click();
    EXPECT_EQ(Text().markedRow, 2);
    EXPECT_EQ(platform.dialogs.messages.at(0).text,
              "There is an error in the code on line 2. Aborting.\n"
              "There is no window 9: w.9.zero");
    Text().markedRow = 0;
    RunFromMenu("w.9.zero\r\n");
    EXPECT_EQ(Text().markedRow, 0) << "another text";
    platform.loop.atNextYield = [&] { Text().text = "w.9.zero"; };
    Button("Toteuta").Click();
    EXPECT_EQ(platform.dialogs.messages.size(), 3U);
    EXPECT_EQ(Text().markedRow, 0) << "it was changed during the run";
}

TEST_F(SkriptiTest, WhatIsNoCommandIsToldWhenTypingRests) {
    Type("$a.set:1\nw.1.axsis.x:$a");
    EXPECT_EQ(Box("Muuttujat").text, "") << "still typing";
    Rest();
    EXPECT_EQ(Box("Muuttujat").text, "Row 2: `w.1.axsis.x` is no command\n");
    EXPECT_FALSE(Resting()) << "told once";
    std::string during;
    platform.loop.atNextYield = [&] {
        Type("w.1.axsis.y:$a");
        Rest();
        during = Box("Muuttujat").text;
    };
    Button("Toteuta").Click();
    EXPECT_EQ(during, Box("Muuttujat").text) << "values alone while it runs";
    EXPECT_EQ(during, "$a: 1\n");
    EXPECT_TRUE(Resting());
    Rest();
    EXPECT_EQ(Box("Muuttujat").text, "Row 1: `w.1.axsis.y` is no command\n$a: 1\n");
    Type("one\ntwo\nthree\nfour");
    Rest();
    EXPECT_EQ(Box("Muuttujat").text,
              "Row 1: `one` is no command\nRow 2: `two` is no command\n"
              "Row 3: `three` is no command\n$a: 1\n");
    Button("Tyhjenna").Click();
    EXPECT_EQ(Box("Muuttujat").text, "$a: 1\n") << "nothing is left to be told of";
}

// Opens and saves in a folder of tools, which stand in the menu.
class ToolFilesTest : public testing::Test {
  protected:
    ToolFilesTest() {
        std::filesystem::create_directory(folder_.Path("scripts"));
        folder_.Write("scripts/old.tsrscript", "message:old\r\nend\r\n");
        platform.programFolder = folder_.Path();
        main_ = std::make_unique<PaaIkkuna>(platform.Services());
        window_ = std::make_unique<Skripti>(*main_);
        tools_ = std::make_unique<ToolList>(*main_, *window_);
        main_->Kumppanit().tools = tools_.get();
        main_->Kaynnista();
        window_->MuutaSkriptiKoko("iso");
    }
    ~ToolFilesTest() override { PalautaAlkutila(); }

    ScriptedControlMaker& Controls() { return platform.mainForm.children.front()->controls; }
    ScriptedTextBox& Text() { return Controls().Get<ScriptedTextBox>("Teksti"); }
    // Presses that button; the user chooses that file, or Cancel, if he is asked for one.
    void Press(const char* button, const std::string& chosen) {
        platform.dialogs.messages.clear();
        platform.dialogs.questions.clear();
        platform.dialogs.texts = {chosen.empty() ? "" : folder_.Path(chosen)};
        Controls().Get<ScriptedButton>(button).Click();
    }
    std::string Content(const std::string& name) {
        std::ifstream in(folder_.Path(name), std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(in), {}};
    }
    std::string Menu() const {
        std::string captions;
        for (const MenuItem& item : platform.mainForm.menus[4].items) {
            captions += item.caption + (item.enabled ? " " : "(off) ");
        }
        return captions;
    }

    TemporaryFolder folder_;
    ScriptedPlatform platform;
    std::unique_ptr<PaaIkkuna> main_;
    std::unique_ptr<Skripti> window_;
    std::unique_ptr<ToolList> tools_;
};

TEST_F(ToolFilesTest, ASavedToolStandsInTheMenuAtOnce) {
    EXPECT_EQ(Menu(), "old ");
    Text().text = "message:new\n\xc3\xa4";
    Press("Talleta", "");
    EXPECT_EQ(Menu(), "old ");
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(platform.dialogs.lastPreset, folder_.Path("scripts/"));
    Press("Talleta", "scripts/new");
    EXPECT_EQ(Content("scripts/new.tsrscript"), "message:new\r\n\xc3\xa4\r\n");
    EXPECT_EQ(Menu(), "new old ");
    platform.mainForm.events->Command(platform.mainForm.menus[4].items[0].command);
    EXPECT_EQ(platform.dialogs.messages.at(0).text, "new") << "and runs from there";

    platform.dialogs.answers = {false};
    Press("Talleta", "scripts/old.TSRSCRIPT.tsrpack");  // which nothing packs
    EXPECT_EQ(Menu(), "new old old ");
    Press("Talleta", "scripts/old.tsrscript");
    EXPECT_EQ(platform.dialogs.questions.at(1).title, "File already exists");
    EXPECT_EQ(Content("scripts/old.tsrscript"), "message:old\r\nend\r\n");
    EXPECT_EQ(platform.dialogs.lastPreset, folder_.Path("scripts/old.TSRSCRIPT.tsrpack.tsrscript"));
    Press("Talleta", "nowhere/tool.tsrscript");
    EXPECT_EQ(platform.dialogs.messages.at(0).text,
              "The tool '" + folder_.Path("nowhere/tool.tsrscript") + "' could not be written.");
}

TEST_F(ToolFilesTest, AnOpenedToolTakesThePlaceOfASavedOneAlone) {
    Press("Avaa", "scripts/old.tsrscript");
    EXPECT_EQ(platform.dialogs.lastPreset, folder_.Path("scripts/"));
    EXPECT_EQ(Text().text, "message:old\nend\n");
    EXPECT_EQ(platform.dialogs.questions.size(), 1U) << "an empty box is not asked about";
    Press("Avaa", "scripts/old.tsrscript");
    EXPECT_EQ(platform.dialogs.questions.size(), 1U) << "nor is a tool as it was opened";
    Press("Talleta", "");
    EXPECT_EQ(platform.dialogs.lastPreset, folder_.Path("scripts/old.tsrscript"));

    Text().text = "mine";
    platform.dialogs.answers = {false};
    Press("Avaa", "scripts/old.tsrscript");
    EXPECT_EQ(Text().text, "mine");
    EXPECT_EQ(platform.dialogs.questions.at(0).title, "Open tool");
    Press("Avaa", "");
    EXPECT_EQ(Text().text, "mine") << "thought better of it";
    Press("Talleta", "scripts/mine.tsrscript");
    Press("Avaa", "scripts/old.tsrscript");
    EXPECT_EQ(platform.dialogs.questions.size(), 1U) << "nor one as it was saved";

    folder_.Write("scripts/a.tsrpack", TeePaketti("end\r\n"));
    for (const auto& [name, why] : {std::pair{"scripts/a.tsrpack", "is packed"},
                                    {"scripts/none.tsrscript", "could not be read"}}) {
        Press("Avaa", name);
        EXPECT_NE(platform.dialogs.messages.at(0).text.find(why), std::string::npos) << name;
        EXPECT_EQ(Text().text, "message:old\nend\n");
    }
}

TEST_F(SkriptiTest, SizesTakeTurns) {
    window_.MuutaSkriptiKoko("iso");
    window_.MuutaSkriptiKoko("iso");
    EXPECT_EQ(State(), "full");
    Button("MuutaKokoa").Click();
    EXPECT_EQ(State(), "small");
    window_.MuutaSkriptiKoko("pieni");
    EXPECT_EQ(State(), "small");
    window_.MuutaSkriptiKoko("other");
    EXPECT_EQ(State(), "full");
    Form().Close();
    EXPECT_EQ(State(), "hidden");
}

TEST_F(SkriptiTest, TheActiveWindowOfToolsIsCopied) {
    EXPECT_EQ(window_.AnnaID(), 999);
    window_.MuutaSkriptiKoko("iso");
    Text().text = "whole";
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "whole");
    Text().selected = "part";
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
    EXPECT_EQ(State(), "hidden");
    EXPECT_EQ(Execute(), "Execute");
}

TEST_F(SkriptiTest, LeavingTheProgramEndsTheRun) {
    NewDotPlot();
    platform.dialogs.answers.emplace_back(true);
    platform.loop.atNextYield = [&] { Choose("FileExit"); };
    RunFromMenu("message:one\r\nmessage:two\r\ncreate.dotplot:2\r\n");
    EXPECT_TRUE(platform.loop.quit);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.mainForm.children.size(), 1U);
}

}  // namespace
}  // namespace tessarin
