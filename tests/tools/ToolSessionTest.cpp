// What tools read of the session and change in it.
#include "ToolFixture.h"

namespace tessarin {
namespace {

// A query and its answer in the session of the test below.
struct Case {
    const char* query;
    const char* answer;
};

constexpr Case kQueries[] = {Case{"@.w.1.filename", "tube.fcs"},
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
                             {"@.fastdraw.limit", "50000"}};

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
    Run("update.population:all~update.window:all");
    for (const Case& c : kQueries) {
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
          "@.w.1.modeller.height.5", "@.w.1.quadrant.ul"}) {
        EXPECT_EQ(Fails(std::string("$x.set:") + bad), Fault(1)) << bad;
    }
    for (const char* unknown :
         {"@", "@home", "@.w.1.quadrant.xx.number", "@.w.1.filname", "@.p.1.colour"}) {
        EXPECT_EQ(Run(std::string("output.write:") + unknown), std::string(unknown) + "|");
        EXPECT_TRUE(ended_) << "no fault, and the value stays: " << unknown;
    }
}

// Lines that look at pictures, or change what they show.
constexpr const char* kLooks[] = {
    "",
    "w.1.file.load:500.fcs~w.2.file.load:300.fcs",
    "w.1.saveimage:saved.bmp",
    "output.write:@.w.1.population.1.xmean~output.write:@.w.2.histogram.height.4000",
    "autoupdate:off~p.1.color.red:20",
    "autoupdate:off~p.1.color.red:20~w.2.file.load:300.fcs",
    "f.1.parameter.1.log:true",
    "f.2.cell.1.1.value:900",
    "w.1.axis.x:2",
    "fastdraw.limit:1",
    "w.1.size.x:3000~w.1.file.load:100.fcs~w.1.size.x:4000",
    "create.histogram:1",
    "message:seen",
    "w.1.file.load:nothing.fcs",
    "update.window:all",
    "autoupdate:off~p.1.position.1.x:9000~update.population:all"};

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
    for (const char* lines : kLooks) {
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
}

TEST_F(ToolRunTest, CommandsThatCannotBeCarriedOutAreFaults) {
    OpenPlots();
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
    struct Told {
        const char* line;
        const char* why;
    };
    for (const Told& c :
         {Told{"w.9.zero", "There is no window 9"},
          {"w.51.zero", "51 is not from 1 to 50"},
          {"update.window:9", "There is no window 9"},
          {"w.1.zero", "A window of its kind cannot do that"},
          {"w.text.size.x:1", "'text' is no number"},
          {"w.1.axis:3", "A word is missing"},
          {"f.2.cell.1.1.value:3", "There is no file 2"},
          {"p.1.color.red:256", "256 is not from 0 to 255"},
          {"$x.set:@.f.1.cell.5.1.value", "5 is not from 1 to 4"},
          {"$x.set:@.w.9.filename", "There is no window 9"},
          {"$x.set:@.f.3.name", "There is no file 3"},
          {"fastdraw.limit:0", "The limit is at least 1"},
          {"$x.calc:1/0", "The expression divides by zero"},
          {"$x.calc:abc", "The expression holds a word that is not known; a text stands in quotes"},
          {":55", "The line has no first word"}}) {
        EXPECT_EQ(Reason(c.line), std::string(c.why) + ": " + c.line);
    }
    EXPECT_EQ(Reason("   "), "The line has no first word.");
    EXPECT_EQ(Fails("w.1.nothing:5~w.1.statistics.visible:perhaps~w.1.quadrant.visible:no"), "");
}

}  // namespace
}  // namespace tessarin
