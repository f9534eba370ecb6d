// The tool language: lines, variables, conditions, loops, questions, and every way to stop.
#include "ToolFixture.h"

namespace tessarin {
namespace {

TEST_F(ToolRunTest, ValuesAndVariables) {
    struct Case {
        const char* lines;
        const char* report;
    };
    for (const Case& c : {
             Case{"$a.set:007~output.write:$a", "7|"},
             {"$a.set: abc~output.write:<$a>", "< abc>|"},
             {"$a.set:x~$a.zeros:0~output.write:$a", ""},
             {"$a.set:5~$a.zeros:3~output.write:$a", "005|"},
             {"$a.set:10000000~$a.zeros:3~output.write:$a", "00010000000|"},
             {"$a.set:99~$a.zeros:1~output.write:$a", "99|"},
             {"$a.set:1~$ab.set:2~output.write:$ab$a", "21|"},
             {"$a.set:$b~$b.set:3~output.write:$a", "3|"},
             {"$a.set:2.5~$a.calc:$a*2+1~output.write:$a", "6|"},
             {"$a.calc:1,5*2,5~output.write:$a", "3,75|"},
             {"$a.calc:Mid(\"abcd\",2,2)&Round(2.567,1)~output.write:$a", "bc2.6|"},
             {"$a.set:-1.5~$a.int:$a~output.write:$a", "-2|"},
             {"$p.set:C:\\data:lost~output.write:$p", "C:\\data|"},
             {"$p.set:a:b:c~output.write:$p", "a:b|"},
             {"output.write:a[tab]b", "a\tb|"},
             {"$n.set:2~$m.set:x$n~output.write:$m", "x2|"},
             {"$a.digits:3~output.write:<$a>", "<>|"},
             {"  $a.set:1  ~output.write:$a", "1|"},
             {"Output.write:no~nothing.here:1~@~output.write:yes", "yes|"},
             {"$x.set:@.unknown.query~output.write:$x", "@.unknown.query|"},
             {"$x.set: @.foldernow~output.write:$x", " @.foldernow|"},
             {"$x.set:1E3~output.write:$x", "1000|"},
         }) {
        EXPECT_EQ(Run(c.lines), c.report) << c.lines;
    }
    EXPECT_EQ(Run("$a.set:5~$b.set:text~output.write:$a"), "5|");
    EXPECT_EQ(shown_, "$a: 5\n$b: text\n");
}

TEST_F(ToolRunTest, ConditionsSkipToTheirEndif) {
    const auto taken = [&](const std::string& condition) {
        return Run(condition + "~output.write:in~endif~output.write:out") == "in|out|";
    };
    EXPECT_TRUE(taken("$a.set:3~$a.if.bigger:2"));
    EXPECT_FALSE(taken("$a.set:3~$a.if.bigger:3"));
    EXPECT_TRUE(taken("$a.set:3~$a.if.smaller:3.5"));
    EXPECT_TRUE(taken("$a.set:3~$a.if.equals:3.0"));
    EXPECT_FALSE(taken("$a.set:3~$a.if.same:3.0"));
    EXPECT_TRUE(taken("$a.set:3~$a.if.different:3.0"));
    EXPECT_TRUE(taken("$a.set: abc~$a.if.same: abc"));
    EXPECT_FALSE(taken("$a.set: abc~$a.if.same:abc"));
    EXPECT_FALSE(taken("$a.set:1~$a.if.other:1"));
    EXPECT_TRUE(taken("if.true:@.p.1.exists~# no~endif~if.false:@.p.1.exists"));
    EXPECT_FALSE(taken("if.maybe:true"));
    EXPECT_EQ(Run("if.true:no~if.true:true~output.write:1~endif~output.write:2~endif~"
                  "output.write:3"),
              "3|");
    EXPECT_EQ(Run("if.true:no~output.write:if.~endif~output.write:1~endif~output.write:2"), "2|")
        << "the letters count wherever they stand";
    EXPECT_EQ(Run("if.true:no~#endif~if~# if.~output.write:1~endif~output.write:2"), "2|")
        << "but not in comments and on the shortest lines";
}

TEST_F(ToolRunTest, LoopsEndByCountConditionOrFile) {
    EXPECT_EQ(Run("$n.set:0~do:5~$n.calc:$n+1~output.write:$n~loop"), "1|2|3|4|5|");
    EXPECT_EQ(Run("do:1~output.write:x~loop"), "x|");
    EXPECT_EQ(Run("do:2.9~output.write:x~loop"), "x|x|");
    EXPECT_EQ(Run("do:-3~output.write:x~loop"), "x|");
    EXPECT_EQ(Run("do:9~output.write:x~loop:1=1"), "x|");
    EXPECT_EQ(Run("$n.set:0~do:9~$n.calc:$n+1~output.write:$n~loop:$n>2"), "1|2|3|");
    EXPECT_EQ(Run("$n.set:9~do:9~$n.calc:$n-1~output.write:$n~loop:$n<7"), "8|7|6|");
    EXPECT_EQ(Run("do:2~do:2~output.write:x~loop~output.write:y~loop"), "x|x|y|x|x|y|");
    EXPECT_EQ(Run("do:2~ # $a.set:1~output.write:x~loop"), "x|x|")
        << "a comment behind a blank is a line the first time";
    EXPECT_EQ(Run("do~output.write:x~end~output.write:y"), "x|");
    EXPECT_EQ(Run("loop~output.write:x"), "x|");
    EXPECT_EQ(Fails("loop~loop"), Fault(2));
    EXPECT_EQ(Fails("$n.set:0~do:200~do:200"), "");
    std::string deep;
    for (int i = 0; i < 100; ++i) {
        deep += "do:2~";
    }
    EXPECT_EQ(Fails(deep), "");
    EXPECT_EQ(Fails(deep + "do:2"), Fault(101));

    FcsBuilder file("I", 16, "1,2,3,4", 2, 1);
    for (const char* name : {"a.fcs", "b.fcs", "c.fcs"}) {
        folder_.Write(name, file.Bytes());
    }
    const std::string report =
        Run("create.dotplot:3~w.3.file.move:first~do:1000~$f.set:@.w.3.filename~"
            "output.write:$f~w.3.file.move:next~output.write:-~loop");
    EXPECT_EQ(Split(report, '-').size(), 4U) << report;
    EXPECT_EQ(Run("output.write:@.filesinfolder"), "3|");
    // Back from the last; the file before the first is none, and that ends the loop.
    const std::string back =
        Run("do:1000~$f.set:@.w.3.filename~output.write:$f~w.3.file.move:previous~"
            "output.write:-~loop");
    EXPECT_EQ(Split(back, '-').size(), 4U) << back;
    EXPECT_EQ(back.substr(0, 5), report.substr(report.size() - 8, 5));
    EXPECT_EQ(Run("w.3.file.load:b.fcs~output.write:@.w.3.filename"), "b.fcs|");
}

TEST_F(ToolRunTest, TheStatusBarTellsHowFarARunIs) {
    FcsBuilder file("I", 16, "1,2,3,4", 2, 1);
    file.AddInteger(1).AddInteger(1);
    for (const char* name : {"a.fcs", "b.fcs", "c.fcs"}) {
        folder_.Write(name, file.Bytes());
    }
    std::vector<std::string> said;  // each once, in their order
    const std::function<void()> note = [&] {
        if (said.empty() || said.back() != platform.mainForm.status) {
            said.push_back(platform.mainForm.status);
        }
        platform.loop.atNextYield = note;
    };
    const auto run = [&](const std::string& lines) {
        said.clear();
        platform.loop.atNextYield = note;
        Run(lines);
        platform.loop.atNextYield = nullptr;
        return said;
    };
    using Said = std::vector<std::string>;
    const std::string through =
        "create.dotplot:1~w.1.file.move:first~do:9~w.1.file.move:next~loop~w.1.file.load:b.fcs";
    EXPECT_EQ(run(through),
              (Said{"", "Tool running: file 1 of 3, a.fcs", "Tool running: file 2 of 3, b.fcs",
                    "Tool running: file 3 of 3, c.fcs", "Tool running: file 2 of 3, b.fcs"}));
    EXPECT_EQ(platform.mainForm.status, "") << "the run is over";
    Tiedostot(Ikkunat(1).FileIndex).Oddities = "it is odd";
    main.HuomautaTiedostosta(Ikkunat(1).FileIndex);
    EXPECT_EQ(
        run("do:2500~update.population:1~loop~update.population:2"),
        (Said{"b.fcs: it is odd", "Tool running: round 1000 of at most 2500; b.fcs: it is odd",
              "Tool running: round 2000 of at most 2500; b.fcs: it is odd", "b.fcs: it is odd"}));
    unseen_ = true;
    for (const std::string& status : run(through)) {
        EXPECT_EQ(status.find("Tool"), std::string::npos) << "nobody would see it: " << status;
    }
}

TEST_F(ToolRunTest, EveryWayToStopSaysWhy) {
    EXPECT_EQ(Fails("version.require:1.2.1~version.require:0.9.9~version.require:1.1.5"), "");
    EXPECT_EQ(Fails("version.require:1.3.0"),
              "This tool requires at least version 1.3.0. Aborting.");
    EXPECT_EQ(Fails("version.require:2.0.0"),
              "This tool requires at least version 2.0.0. Aborting.");
    EXPECT_EQ(Fails("question.$a.input:How many?"),
              "You must give the value for each question. Aborting.");
    EXPECT_EQ(Fails("question.$a.file.open:Which?"),
              "You must give the valid file name. Aborting.");
    EXPECT_EQ(Fails("question.$a.file.save:Where?"),
              "You must give the valid file name. Aborting.");
    EXPECT_EQ(Fails("question.$a.folder.open:x"), "You must give the valid folder. Aborting.");
    EXPECT_EQ(Fails("do:0"), "You must give the max loop times. Aborting.");
    EXPECT_EQ(Fails("printpreview.print"), "The printer has not been set! Aborting.");
    EXPECT_EQ(Fails("   "), Fault(1));
    EXPECT_EQ(platform.dialogs.messages.back().title, "Fatal error");
    for (const char* bad :
         {"$a.calc:1/0", "$a.calc:nonsense", "$aa", "$a.set:x~$a.if.bigger:2", "$a.int:x",
          "do:many", "do:2~loop:x=1", "if ", "$a.if", "output.close~output.write:x", ":55",
          "version.require:1", "$a.set:$a1~$a1.set:$a~output.write:$a1",
          "$a.set:x$a~output.write:$a", "$a.set:1~$a.zeros:99999999", "question.$a"}) {
        EXPECT_TRUE(Fails(bad).starts_with("There is an error in the code on line ")) << bad;
    }
    AnswerToolUser user({}, platform.dialogs, nullptr, log_);
    EXPECT_FALSE(ToolRun(main, {user}).AjaOhjelma(""));
    EXPECT_EQ(platform.dialogs.messages.back().text,
              "There is an error in the code on line 1. Aborting.\nThe line has no first word.");
    EXPECT_TRUE(ToolRun(main, {user}).AjaOhjelma("# only\r\n# comments\r\n\r\n"));
    EXPECT_TRUE(ToolRun(main, {user}).AjaOhjelma("do:0")) << "no line end, no line";
    platform.loop.atNextYield = [] { SkriptiKaynnissa = false; };
    EXPECT_EQ(Run("output.write:never"), "") << "stopped at the next line";
}

TEST_F(ToolRunTest, QuestionsAreAnsweredBeforehand) {
    answers_ = {{"$a", "12"},
                {"file", folder_.Path("sub/name.fcs")},
                {"go", "yes"},
                {"stop", "cancel"},
                {"$d", folder_.Path("sub/x")}};
    EXPECT_EQ(Run("question.$a.input:one[enter]two~output.write:<$a>"), "<12>|");
    EXPECT_EQ(Run("$a.set:1~question.$a.input:again~output.write:$a"), "")
        << "the name of a variable is replaced by its number, and nobody answers for that";
    EXPECT_EQ(Run("question.$file.file.open:t~output.write:$file @~$f.set:@.foldernow~"
                  "output.write:$f"),
              "name.fcs @|" + folder_.Path("sub/") + "|");
    EXPECT_EQ(Run("question.$d.folder.open:t~output.write:$d"), folder_.Path("sub/") + "|");
    EXPECT_EQ(Run("question.go.continue:t~output.write:on~question.stop.continue:t~"
                  "output.write:off"),
              "on|");
    EXPECT_FALSE(ended_);
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(Run("message:a[enter]b~question.printer.set~printpreview.print"), "");
    EXPECT_EQ(log_.str(), "Message: a\rb\n");
    EXPECT_TRUE(ended_);
}

TEST_F(ToolRunTest, QuestionsOpenDialogs) {
    DialogToolUser user(platform.dialogs, "of the window");
    ToolRun run(main, {user});
    platform.dialogs.texts = {"twelve", folder_.Path("in.fcs"), folder_.Path("out.txt"),
                              folder_.Path("data") + "/"};
    platform.dialogs.answers = {true, false};
    EXPECT_FALSE(run.AjaOhjelma(
        "question.$a.input:How many?\nquestion.$b.file.open:Which?\n"
        "question.$c.file.save:Where?\nquestion.$d.folder.open:there\n"
        "message:$a\nmessage:$d\nquestion.go.continue:On?\nquestion.no.continue:Off?\n"
        "message:never\n"));
    const auto& asked = platform.dialogs.questions;
    ASSERT_EQ(asked.size(), 6U);
    EXPECT_EQ(asked[0].text, "How many?");
    EXPECT_EQ(asked[1].text, "(*.*)|*.*");
    EXPECT_EQ(asked[1].title, "Which?");
    EXPECT_EQ(asked[2].title, "Where?");
    EXPECT_EQ(asked[3].title, "Select folder");
    EXPECT_EQ(platform.dialogs.lastFolder, "there");
    EXPECT_EQ(asked[4].text, "On?");
    EXPECT_EQ(asked[5].text, "Off?");
    ASSERT_FALSE(platform.dialogs.messages.empty());
    EXPECT_EQ(platform.dialogs.messages[0].text, "twelve");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Message");
    EXPECT_EQ(platform.dialogs.messages[1].text, folder_.Path("data") + "/");
    for (const auto& message : platform.dialogs.messages) {
        EXPECT_NE(message.text, "never");
    }
}

TEST_F(ToolRunTest, AFolderIsAnsweredByItselfOrByAFileInIt) {
    const std::string folder = folder_.Path();
    for (const std::string& answer :
         {folder, folder.substr(0, folder.size() - 1), folder + "any.fcs"}) {
        answers_["d"] = answer;
        EXPECT_EQ(Run("question.$d.folder.open:~output.write:$d"), folder + "|") << answer;
    }
}

TEST(ToolListTest, InstalledToolsRunFromTheMenu) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path("scripts"));
    folder.Write("scripts/a.b.tsrscript", "message:plain\r\n");
    folder.Write("scripts/Packed.TSRPACK", TeePaketti("message:packed\r\n"));
    folder.Write("scripts/notes.txt", "message:no\r\n");
    std::filesystem::create_directory(folder.Path("scripts/folder.tsrscript"));
    ScriptedPlatform platform;
    platform.programFolder = folder.Path();
    PaaIkkuna main(platform.Services());
    Skripti window(main);
    ToolList tools(main, window);
    main.Kumppanit().tools = &tools;
    main.Kaynnista();
    const std::vector<MenuItem>& items = platform.mainForm.menus[4].items;
    ASSERT_EQ(items.size(), 2U);
    for (const MenuItem& item : items) {
        EXPECT_TRUE(item.enabled);
        platform.mainForm.events->Command(item.command);
        ASSERT_EQ(platform.dialogs.messages.size(), 1U);
        EXPECT_EQ(platform.dialogs.messages[0].title, "Message");
        EXPECT_EQ(platform.dialogs.messages[0].text, item.caption == "a" ? "plain" : "packed");
        platform.dialogs.messages.clear();
    }
    std::filesystem::remove_all(folder.Path("scripts"));
    platform.mainForm.events->Command(items[0].command);
    EXPECT_EQ(platform.dialogs.messages.at(0).title, "Tools") << "gone since the start";
}

TEST(ToolPackTest, PacksComeBackWhole) {
    const TemporaryFolder folder;
    std::string text = "do:3\r\n# \xc3\xa4\r\n";
    for (int code = 0; code < 256; ++code) {
        text += static_cast<char>(code);
    }
    const std::string pack = TeePaketti(text);
    EXPECT_TRUE(pack.starts_with("TsrScriptPackVer1"));
    EXPECT_EQ(pack.find("do:3"), std::string::npos);
    EXPECT_EQ(PuraPaketti(pack), text);
    EXPECT_EQ(PuraPaketti("TsrScriptPackVer2" + text), "");
    EXPECT_EQ(PuraPaketti("TsrScriptPackVer1"), "");
    EXPECT_EQ(LueTyokalu(folder.Write("a.TSRPACK", TeePaketti("end\n"))).text, "end\n");
    EXPECT_EQ(LueTyokalu(folder.Write("a.tsrscript", "end \xb5\n")).text, "end \xc2\xb5\n");
    EXPECT_TRUE(LueTyokalu(folder.Write("empty.tsrscript", "")).Valid);
    EXPECT_EQ(LueTyokalu(folder.Path("missing.tsrscript")).refusal, "No such file or directory");
    EXPECT_EQ(LueTyokalu(folder.Path()).refusal, "it is a folder");
    EXPECT_EQ(LueTyokalu("/dev/zero").refusal, "it is no regular file");
    EXPECT_FALSE(LueTyokalu("/dev/zero").Valid);
    EXPECT_TRUE(OnkoTyokalu("x.y.TsrTool") && OnkoPakattu("x.tsrtool") && !OnkoTyokalu("x.txt"));
}

}  // namespace
}  // namespace tessarin
