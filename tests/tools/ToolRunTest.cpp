// The tool language: lines, variables, conditions, loops, commands, queries, and every way to stop.
#include "tools/ToolRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/Text.h"
#include "mainwindow/WindowList.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/AnswerToolUser.h"
#include "tools/Skripti.h"
#include "tools/ToolList.h"
#include "tools/ToolPack.h"

namespace tessarin {
namespace {

class ToolRunTest : public ProgramTest {
  protected:
    /// Runs lines; "~" stands for a line end. What `output.write` wrote comes back, with "|" for
    /// each line end.
    std::string Run(const std::string& lines) {
        const std::string path = folder_.Path("report");
        std::filesystem::remove(path);
        AnswerToolUser user(answers_, platform.dialogs, nullptr, log_);
        platform.dialogs.messages.clear();
        ToolSurroundings surroundings{user};
        surroundings.showVariables = [this](const std::string& list) { shown_ = list; };
        surroundings.unseen = unseen_;
        ToolRun run(main, surroundings);
        const std::string head = "folder.set:" + folder_.Path() + "~output.set:report~";
        ended_ = run.AjaOhjelma(KorvaaTeksti(head + lines + "~", "~", "\r\n"));
        EXPECT_FALSE(SkriptiKaynnissa);
        std::ifstream in(path, std::ios::binary);
        return KorvaaTeksti(std::string{std::istreambuf_iterator<char>(in), {}}, "\r\n", "|");
    }
    /// The message that the run stopped with; empty when it did not.
    std::string Fails(const std::string& lines) {
        Run(lines);
        EXPECT_EQ(ended_, platform.dialogs.messages.empty()) << lines;
        return ended_ ? "" : platform.dialogs.messages.back().text;
    }
    static std::string Fault(int line) {
        return "There is an error in the code on line " + std::to_string(line + 2) + ". Aborting.";
    }
    /// Window 1 is a dot plot and window 2 a histogram on a file of four events.
    void OpenPlots() {
        PutFile(1, "tube.fcs",
                {{"a", false, 1000, {100, 200, 300, 800}}, {"b", true, 10000, {1, 10, 100, 1000}}});
        Tiedostot(1).Otsikko.SampleId = "S 1";
        CurrentFile = 1;
        NewDotPlot();
        Choose("CreateHistogram");
    }

    TemporaryFolder folder_;
    AnswerToolUser::Answers answers_;
    std::ostringstream log_;
    std::string shown_;
    bool ended_ = false;
    bool unseen_ = false;
};

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

TEST_F(ToolRunTest, QueriesReadTheSession) {
    OpenPlots();
    Populaatiot(3) = {};
    EXPECT_EQ(Run("create.histogram:2"), "") << "in place of the old one";
    Run("w.1.axis.x:1~w.2.axis.x:1~w.2.statistics.visible:true~w.1.statistics.visible:true~"
        "w.1.quadrant.visible:true~w.1.quadrant.position.x:2500~w.1.quadrant.position.y:4000");
    EXPECT_TRUE(ended_);
    Populaatio& marker = Populaatiot(2);
    marker.Defined = true;
    marker.Type = "Histogram";
    marker.Name = "M";
    marker.AxisX = 1;
    marker.X[1] = 1500;
    marker.X[2] = 3500;
    Populaatiot(1) = marker;
    Populaatiot(1).Type = "Polygon";
    Populaatiot(1).AxisY = 2;
    Populaatiot(1).Y[4] = 9000.5F;
    struct Case {
        const char* query;
        const char* answer;
    };
    Run("update.population:all~update.window:all");
    for (const Case& c : {Case{"@.w.1.filename", "tube.fcs"},
                          {"@.window.1.fileid", "1"},
                          {"@.w.2.sampleid", "S 1"},
                          {"@.w.2.folder", "folder/"},
                          {"@.w.1.axis.x", "1"},
                          {"@.w.1.axis.y", "2"},
                          {"@.w.2.axis.y", ""},
                          {"@.w.2.type", "Histogram"},
                          {"@.w.9.exists", "false"},
                          {"@.w.9.type", ""},
                          {"@.w.1.exists", "true"},
                          {"@.w.2.quadrant.exists", "false"},
                          {"@.w.1.quadrant.exists", "true"},
                          {"@.w.9.statistics.exists", "false"},
                          {"@.w.2.statistics.exists", "true"},
                          {"@.w.1.quadrant.position.x", "2500"},
                          {"@.w.1.quadrant.position.y", "4000"},
                          {"@.w.2.population.2.number", "2"},
                          {"@.w.2.population.2.xmean", "250"},
                          {"@.w.2.population.0.median", "0"},
                          {"@.w.2.population.2.cv", "20"},
                          {"@.w.1.population.0.xmean", "350"},
                          // Right of the cross and above lie 300, 100 and 800, 1000.
                          {"@.w.1.quadrant.ur.number", "2"},
                          {"@.w.1.quadrant.ur.vis", "50"},
                          {"@.w.1.quadrant.ur.xmean", "550"},
                          {"@.w.1.quadrant.ll.ygeomean", "3.16"},
                          {"@.w.2.histogram.height.9000", "0"},
                          {"@.p.2.axis.x", "1"},
                          {"@.population.2.position.1.x", "1500"},
                          {"@.p.1.position.4.y", "999"},
                          {"@.p.2.name", "M"},
                          {"@.p.2.exists", "true"},
                          {"@.p.3.type", ""},
                          {"@.f.1.exists", "true"},
                          {"@.file.2.exists", "false"},
                          {"@.f.1.name", "tube.fcs"},
                          {"@.f.1.parameters", "2"},
                          {"@.f.1.cells", "4"},
                          {"@.f.1.parameter.2.name", "b"},
                          {"@.f.1.parameter.2.max", "10000"},
                          {"@.f.1.parameter.2.log", "true"},
                          {"@.f.1.cell.4.1.value", "800"},
                          {"@.fastdraw.limit", "50000"}}) {
        EXPECT_EQ(Run(std::string("output.write:") + c.query), std::string(c.answer) + "|")
            << c.query;
        EXPECT_TRUE(ended_) << c.query;
    }
    EXPECT_EQ(Run("$w.set:2~$p.set:2~output.write:@.w.$w.population.$p.vis"), "50|");
    EXPECT_NE(Run("output.write:@.w.2.statistics.contents.multiline").find("M\t2\t50\t250"),
              std::string::npos);
    for (const char* bad :
         {"@.w.9.filename", "@.w.51.exists", "@.w.x.type", "@.w.1", "@.f.2.name", "@.f.21.exists",
          "@.f.1.cell.5.1.value", "@.f.1.parameter.3.name", "@.p.33.name", "@.p.0.exists",
          "@.p.1.position.51.x", "@.w.2.quadrant.position.x", "@.w.1.histogram.height.5",
          "@.w.1.modeller.height.5", "@.w.1.quadrant.ul", "@"}) {
        EXPECT_EQ(Fails(std::string("$x.set:") + bad), Fault(1)) << bad;
    }
}

// A run that nobody watches leaves pictures out, and nobody can tell.
TEST_F(ToolRunTest, PicturesThatNobodySeesAreThereWhenAskedFor) {
    for (const uint32_t value : {100U, 300U, 500U}) {
        FcsBuilder file("I", 16, "1,2,3,4", 2, 3);
        for (const uint32_t step : {0U, 100U, 100U}) {
            file.AddInteger(value + step).AddInteger(value + 2 * step);
        }
        folder_.Write(std::to_string(value) + ".fcs", file.Bytes());
    }
    const auto startAnew = [] {
        VapautaIkkuna(1);
        VapautaIkkuna(2);
        OletusKoko("DotPlot") = {};
        FastDrawLimit = 50000;
        Populaatio& region = Populaatiot(1);
        region.Defined = true;
        region.Type = "Polygon";
        region.AxisX = 1;
        region.AxisY = 2;
        region.Red = 200;
        region.Corners = 4;
        region.X = region.Y = {};
        region.X[2] = region.X[3] = region.Y[3] = region.Y[4] = 6000;
    };
    const auto surface = [](int16_t window) -> RecordingKuva& {
        return dynamic_cast<RecordingKuva&>(IkkunaPaikassa(window)->Lomake().Surface());
    };
    // What can be seen after the lines: the report, a saved picture, and both windows.
    const auto seen = [&](const std::string& lines) {
        startAnew();
        std::filesystem::remove(folder_.Path("saved.bmp"));
        const std::string report =
            Run("create.dotplot:1~create.histogram:2~w.1.file.load:100.fcs~w.2.file.load:100.fcs~"
                "w.1.statistics.visible:true~" +
                lines + "~output.write:@.w.1.filename");
        EXPECT_TRUE(ended_) << lines;
        std::ifstream saved(folder_.Path("saved.bmp"), std::ios::binary);
        return std::tuple(report, std::string{std::istreambuf_iterator<char>(saved), {}},
                          surface(1).Image().pixels, surface(2).Image().pixels);
    };
    const std::string step = "w.1.file.load:300.fcs~w.2.file.load:500.fcs~";
    for (const char* lines :
         {"", "w.1.file.load:500.fcs~w.2.file.load:300.fcs", "w.1.saveimage:saved.bmp",
          "output.write:@.w.1.population.1.xmean~output.write:@.w.2.histogram.height.4000",
          "autoupdate:off~p.1.color.red:20",
          "autoupdate:off~p.1.color.red:20~w.2.file.load:300.fcs", "f.1.parameter.1.log:true",
          "f.2.cell.1.1.value:900", "w.1.axis.x:2", "fastdraw.limit:1",
          "w.1.size.x:3000~w.1.file.load:100.fcs~w.1.size.x:4000", "create.histogram:1",
          "message:seen", "w.1.file.load:nothing.fcs", "update.window:all",
          "autoupdate:off~p.1.position.1.x:9000~update.population:all"}) {
        const std::string all = step + lines;
        unseen_ = false;
        const auto watched = seen(all);
        unseen_ = true;
        EXPECT_TRUE(seen(all) == watched) << all;
    }
    const std::string through = "w.1.file.move:first~do:9~w.1.file.move:next~loop";
    unseen_ = false;
    seen(through);
    const int watched = surface(1).redraws;
    unseen_ = true;
    seen(through);
    EXPECT_EQ(surface(1).redraws, watched - 2) << "of three steps only the last";
}

TEST_F(ToolRunTest, CommandsChangeTheSession) {
    OpenPlots();
    Run("p.3.color.red:1~population.3.color.green:2~p.3.color.blue:255~fastdraw.limit:77~"
        "f.1.parameter.1.log:true~f.1.parameter.2.log:false~f.1.parameter.2.log:maybe~"
        "f.1.cell.2.1.value:222.5~w.1.drawmode:fast~w.1.size.x:3000~window.1.size.y:3300~"
        "w.1.position.x:45~w.1.position.y:60~w.1.saveimage:picture.bmp~create.xyz:2");
    ASSERT_TRUE(ended_);
    EXPECT_EQ(Populaatiot(3).Color(), (Rgb{1, 2, 255}));
    EXPECT_EQ(FastDrawLimit, 77);
    EXPECT_TRUE(Tiedostot(1).Channels(1).IsLog);
    EXPECT_FALSE(Tiedostot(1).Channels(2).IsLog);
    EXPECT_EQ(Tiedostot(1).Data(2, 1), 222.5F);
    Form& form = IkkunaPaikassa(1)->Lomake();
    EXPECT_EQ(form.OuterWidth().count, 3000);
    EXPECT_EQ(form.OuterHeight().count, 3300);
    EXPECT_EQ(form.Top().count, 60);
    EXPECT_TRUE(std::filesystem::exists(folder_.Path("picture.bmp")));
    EXPECT_FALSE(Ikkunat(2).Used) << "an unknown kind only empties the slot";

    Run("w.1.axis.y:1~w.1.axis.x:2~w.1.quadrant.visible:true~w.1.quadrant.position.y:2500");
    EXPECT_EQ(Run("output.write:@.w.1.axis.x~output.write:@.w.1.axis.y~"
                  "output.write:@.w.1.quadrant.position.y"),
              "2|1|2500|");

    Populaatio& marker = Populaatiot(5);
    marker.Defined = true;
    marker.Type = "Histogram";
    marker.AxisX = 1;
    marker.X[1] = 100;
    marker.X[2] = 9000;
    Run("p.5.position.left:1500~p.5.position.left:10001~p.5.position.left:-1");
    EXPECT_EQ(marker.X[1], 1500);
    EXPECT_EQ(Tiedostot(1).Membership(2, 5), 1) << "222.5 of 1000, on a log axis now";
    Run("autoupdate:off~p.5.position.right:500~p.5.position.left:600");
    EXPECT_EQ(marker.X[2], 9000) << "not while updates are off";
    EXPECT_EQ(marker.X[1], 600);
    Run("autoupdate:off~autoupdate:sometimes~autoupdate:on~p.5.position.right:7000");
    EXPECT_EQ(marker.X[2], 7000);
    marker.Type = "Polygon";
    marker.Corners = 3;
    Run("p.5.position.2.x:10~p.5.position.2.y:20~p.5.position.left:3");
    EXPECT_EQ(marker.X[2], 10);
    EXPECT_EQ(marker.Y[2], 9980) << "y runs upwards in the language";
    EXPECT_EQ(marker.X[1], 600);
    for (const char* bad : {"p.0.color.red:1",
                            "p.1.color.red:256",
                            "p.1.color.red:x",
                            "p.1",
                            "p.5.position.51.x:5",
                            "p.5.position.1.x:left",
                            "w.9.zero",
                            "w.1.zero",
                            "w.1.rotate.x:5",
                            "w.1.axis:3",
                            "w.text.size.x:1",
                            "w.1.curve.1.height:4",
                            "f.2.cell.1.1.value:3",
                            "f.1.cell.0.1.value:1",
                            "f.1.parameter.3.log:true",
                            "create.dotplot:51",
                            "create.dotplot",
                            "fastdraw.limit:0",
                            "update.window:9",
                            "update.population:33",
                            "w.1.saveimage:no/such/folder.bmp",
                            "folder",
                            "output.set:no/such/report"}) {
        EXPECT_EQ(Fails(bad), Fault(1)) << bad;
    }
    EXPECT_EQ(Fails("w.1.nothing:5~w.1.statistics.visible:perhaps~w.1.quadrant.visible:no"), "");
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
              "There is an error in the code on line 1. Aborting.");
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
    DialogToolUser user(platform.dialogs);
    ToolRun run(main, {user});
    platform.dialogs.texts = {"twelve", folder_.Path("in.fcs"), folder_.Path("out.txt"),
                              folder_.Path("start")};
    platform.dialogs.answers = {true, false};
    EXPECT_FALSE(
        run.AjaOhjelma("question.$a.input:How many?\nquestion.$b.file.open:Which?\n"
                       "question.$c.file.save:Where?\nquestion.$d.folder.open:there\n"
                       "message:$a\nquestion.go.continue:On?\nquestion.no.continue:Off?\n"
                       "message:never\n"));
    const auto& asked = platform.dialogs.questions;
    ASSERT_EQ(asked.size(), 6U);
    EXPECT_EQ(asked[0].text, "How many?");
    EXPECT_EQ(asked[1].text, "(*.*)|*.*");
    EXPECT_EQ(asked[1].title, "Which?");
    EXPECT_EQ(asked[2].title, "Where?");
    EXPECT_EQ(asked[3].text, "*.*|*.*");
    EXPECT_EQ(asked[3].title, "Select folder");
    EXPECT_EQ(asked[4].text, "On?");
    EXPECT_EQ(asked[5].text, "Off?");
    ASSERT_FALSE(platform.dialogs.messages.empty());
    EXPECT_EQ(platform.dialogs.messages[0].text, "twelve");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Message");
    for (const auto& message : platform.dialogs.messages) {
        EXPECT_NE(message.text, "never");
    }
}

TEST(ToolListTest, InstalledToolsRunFromTheMenu) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path("scripts"));
    folder.Write("scripts/a.b.tsrscript", "message:plain\r\n");
    folder.Write("scripts/Packed.TSRPACK", TeePaketti("message:packed\r\n"));
    folder.Write("scripts/notes.txt", "message:no\r\n");
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
    EXPECT_FALSE(LueTyokalu(folder.Path("missing.tsrscript")).Valid);
    EXPECT_TRUE(OnkoTyokalu("x.y.TsrTool") && OnkoPakattu("x.tsrtool") && !OnkoTyokalu("x.txt"));
}

}  // namespace
}  // namespace tessarin
