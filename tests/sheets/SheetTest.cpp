// Analysis sheets: what is saved comes back, and what is broken breaks nothing.
#include <sys/stat.h>

#include "SheetFixture.h"
#include "sheets/SheetPath.h"
#include "tests/support/OrdinaryUser.h"

namespace tessarin {
namespace {

TEST_F(SheetTest, WhatIsSavedComesBack) {
    LayOut();
    IkkunaPaikassa(3)->UnloadWindow();  // leaves a gap between the windows
    const std::string saved = Save("FileSaveView", "a.tessarin");
    const auto before = Pictures();
    const Populaatio region = Populaatiot(1);
    ASSERT_TRUE(platform.dialogs.messages.empty());

    PalautaAlkutila();
    Populaatiot(7).Defined = true;  // of the session that goes
    NewDotPlot();
    Load(folder_.Path("a.tessarin"));
    EXPECT_EQ(Pictures(), before);
    EXPECT_EQ(Save("FileSaveView", "b.tessarin"), saved);
    EXPECT_EQ(Populaatiot(1).X, region.X) << "to the last bit";
    EXPECT_EQ(Populaatiot(1).Y, region.Y);
    EXPECT_FALSE(Populaatiot(7).Defined);
    EXPECT_FALSE(Ikkunat(3).Used) << "windows keep their numbers";
    EXPECT_TRUE(Ikkunat(4).Selected && !Ikkunat(1).Selected) << "the last one alone";
    EXPECT_FALSE(Loading);
    ChoosePopup(*PlotForms()[1], 18);
    const auto& entries = platform.popups.lastEntries;
    EXPECT_EQ(entries[1].caption, "Close statistics");
    EXPECT_EQ(entries[2].caption, "Hide quadrant");
    EXPECT_EQ(entries[6].caption, "Show all regions");
    EXPECT_EQ(entries[13].caption, "Small dots");

    // A name without ending gets one; a file that is there is asked about.
    platform.dialogs.answers = {false};
    Save("FileSaveView", "a");
    EXPECT_EQ(platform.dialogs.questions.back().title, "File already exists");
}

TEST_F(SheetTest, WhatCannotBeSavedSaysWhy) {
    const std::string path = folder_.Path("a.tessarin");
    Save("FileSaveView", "a.tessarin");
    const std::string saved = Bytes(path);
    Save("FileSaveView", "missing/a.tessarin");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "An error occured during the saving!");
    EXPECT_EQ(platform.mainForm.status, "'" + folder_.Path("missing/a.tessarin") +
                                            "' could not be written: No such file or directory");
    NewDotPlot();
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder_.Path(), fs::perms(0555));
    {
        const OrdinaryUser user;  // may write to the file, but make none in its folder
        platform.dialogs.texts.push_back(path);
        Choose("FileSaveView");
    }
    fs::permissions(folder_.Path(), fs::perms(0755));
    EXPECT_EQ(platform.dialogs.messages.size(), 1U) << "no box for a missing right";
    EXPECT_EQ(platform.mainForm.status, "'" + path +
                                            "' could not be written: Permission denied. "
                                            "Nothing is autosaved for the rest of this session.");
    EXPECT_EQ(Bytes(path), saved);
}

TEST_F(SheetTest, LinesStandInTheirOrder) {
    LayOut();
    EXPECT_EQ(Info(1).size(), 22U);
    EXPECT_EQ(Info(2).size(), 34U);
    EXPECT_EQ(Info(3).size(), 20U);
    EXPECT_EQ(Info(4).size(), 31U);
    EXPECT_EQ(Info(1)[0], "location.x:150");
    EXPECT_EQ(Info(1)[7], "show:1");
    EXPECT_EQ(Info(2)[12], "density.resolution:512");
    EXPECT_EQ(Info(2)[22], "statistics.x:1230");
    EXPECT_EQ(Info(2)[26], "statistics.column.3.visible:0");
    EXPECT_EQ(Info(4)[7], "fill.red:1");
    EXPECT_EQ(Info(4)[11], "yscale:250");
    EXPECT_EQ(Info(4)[12], "smoothing:0");
    const std::string text = Save("FileSaveView", "a.tessarin");
    std::size_t at = 0;
    for (const char* part :
         {"# Tessarin Analysis sheet\n\ngeneral.version:1.2.1\n", "\n# Populations\ngeneral.max",
          "numberofpopulations:16\npopulation.1.name:Poly-1\npopulation.1.type:Polygon\n",
          "corners:3\npopulation.1.created:1\npopulation.1.title.x:-250\n", "transparent:0\n",
          "corner.1.x:", "corner.1.y:", "population.3.type:Histogram\n", "\n# Definitions\ngeneral",
          "definition.20.name:Poly-1 and not Histo-3\n", "\n# Files\nfile.1.path:", "one.fcs\n",
          "\n# Windows\nwindow.1.type:DotPlot\nwindow.1.location.x:150\n", "window.4.type:Histo",
          "\n# Print view\nprintview.visible:0\n\n# File info\nfileinfo.visible:0\n"}) {
        at = text.find(part, at);
        ASSERT_NE(at, std::string::npos) << part;
    }
}

TEST_F(SheetTest, SheetsFromElsewhere) {
    const std::string data = DataFile("sub.fcs", 3);
    const std::string path = folder_.Write(
        "old.tessarin",
        "general.version:0.9.7\r\ngeneral.date:1,1\r\nfile.5.path:" + data +
            "\r\npopulation.2.name:Zelle \xb5\r\npopulation.2.corner.1.x:12,5\r\n"
            "population.3.name:with # sign\r\npopulation.3.type:Polygon\r\n"
            "population.2.type:Poly:gon\r\n# window.9.type:DotPlot\r\nwindow.7.type:DotPlot\r\n"
            "window.7.file:5\r\nwindow.7.location.x:30,4\r\nwindow.7.fastdraw.enabled:1\r\n"
            "window.7.background:0\r\nwindow.7.dot.size:3\r\nwindow.7.density.resolution:64\r\n"
            "window.7.no colon\r\nwindow.8.type:Histogram\r\nwindow.8.file:6");
    Load(path);
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(Populaatiot(2).Name, "Zelle \xc2\xb5");
    EXPECT_EQ(Populaatiot(2).X[1], 12.5F);
    EXPECT_EQ(Populaatiot(3).Name, "") << "the line was a comment";
    EXPECT_TRUE(Populaatiot(3).Defined);
    EXPECT_EQ(Populaatiot(2).Type, "Poly") << "a value ends at the next colon";
    EXPECT_FALSE(Ikkunat(9).Used);
    EXPECT_EQ(Ikkunat(7).FileIndex, 5);
    EXPECT_EQ(Info(7)[0], "location.x:30");
    EXPECT_EQ(Info(7)[15], "fastdraw.enabled:1") << "also for a small file";
    EXPECT_EQ(Info(7)[18], "dot.size:1");
    EXPECT_TRUE(platform.mainForm.children[0]->surface.HasText("FAST DRAW MODE"));
    EXPECT_EQ(platform.mainForm.children[0]->surface.PixelAt(2, 2), Grey(255).Pixel());
    EXPECT_EQ(Ikkunat(8).FileIndex, 0) << "a slot without file";
    EXPECT_EQ(platform.mainForm.children[1]->caption, "[S] (8): Histogram - No File");

    fs::remove(data);
    Load(path);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text,
              "The file '" + data + "'\nwas not in its original location.");
    EXPECT_EQ(Ikkunat(7).FileIndex, 0);
}

TEST_F(SheetTest, PlacesOutOfReachAreMovedInAndSavedAsTheyWere) {
    const std::string path = folder_.Write(
        "large.tessarin", "file.1.path:" + DataFile("a.fcs", 3) +
                              "\nwindow.1.type:DotPlot\nwindow.1.file:1\n"
                              "window.1.location.x:40007\nwindow.1.location.y:20003\n"
                              "window.1.size.x:3000\nwindow.1.size.y:3000\n"
                              "window.1.statistics.enabled:1\nwindow.1.statistics.x:-30000\n"
                              "window.1.statistics.y:4503\nwindow.2.type:Histogram\n"
                              "window.2.file:1\nwindow.2.location.x:1501\n"
                              "window.2.location.y:-31\nwindow.2.statistics.enabled:1\n");
    const auto expectPlaces = [this] {
        const ScriptedForm& far = *PlotForms()[0];
        EXPECT_EQ(far.left.count, (1000 - 200) * 15);
        EXPECT_EQ(far.top.count, (700 - 200) * 15);
        EXPECT_EQ(TableForms()[0]->left, Twips{0});
        EXPECT_EQ(TableForms()[0]->top, Twips{4500});
        const ScriptedForm& near = *PlotForms()[1];
        EXPECT_EQ(near.left, Twips{1501});
        EXPECT_EQ(near.top, Twips{-31}) << "its title can be reached";
    };
    Load(path);
    expectPlaces();
    const ScriptedForm& plot = *PlotForms()[1];
    const ScriptedForm& table = *TableForms()[1];
    EXPECT_GE(PixelsFromTwips(table.left), PixelsFromTwips(plot.left) + PixelsFromTwips(plot.width))
        << "one without a place stands beside its plot";
    const std::string saved = Save("FileSaveView", "again.tessarin");
    for (const char* line : {"window.1.location.x:40007\nwindow.1.location.y:20003\n",
                             "window.1.statistics.x:-30000\nwindow.1.statistics.y:4503\n",
                             "window.2.location.x:1501\nwindow.2.location.y:-31\n"}) {
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    }
    Load(folder_.Path("again.tessarin"));
    expectPlaces();
    EXPECT_EQ(Save("FileSaveView", "third.tessarin"), saved);
}

TEST_F(SheetTest, EachOddFileOfASheetHasALine) {
    std::string text;
    const std::array<std::string, 3> names = {"first", "plain", "last"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        FcsBuilder file("I", 16, "1,2,3,4", 1, 1);
        file.Set("$MODE", names[i] == "plain" ? "L" : "C");
        file.AddInteger(7);
        text += "file." + std::to_string(i + 1) + ".path:" + folder_.Write(names[i], file.Bytes()) +
                "\n" + "window." + std::to_string(i + 1) + ".type:DotPlot\nwindow." +
                std::to_string(i + 1) + ".file:" + std::to_string(i + 1) + "\n";
    }
    Load(folder_.Write("odd.tessarin", text));
    ASSERT_EQ(platform.mainForm.statusLines.size(), 2U);
    EXPECT_TRUE(platform.mainForm.statusLines[0].starts_with("first: "));
    EXPECT_TRUE(platform.mainForm.status.starts_with("last: "));
    Load(folder_.Write("none.tessarin", "general.version:1\n"));
    EXPECT_TRUE(platform.mainForm.statusLines.empty()) << "its files are gone";
}

TEST_F(SheetTest, WhatIsNoSheetLeavesTheSession) {
    LayOut();
    const std::string saved = Save("FileSaveView", "a.tessarin");
    const auto expectStays = [&](const std::string& path, const std::string& title) {
        const std::size_t told = platform.dialogs.messages.size();
        Load(path);
        ASSERT_EQ(platform.dialogs.messages.size(), told + 1) << path;
        EXPECT_EQ(platform.dialogs.messages.back().title, title);
        EXPECT_EQ(Save("FileSaveView", "b.tessarin"), saved) << path;
    };
    expectStays(folder_.Path("missing.tessarin"), "Load error");
    expectStays(folder_.Path(), "Load error");
    EXPECT_TRUE(platform.dialogs.messages.back().text.ends_with(": it is a folder"));
    ASSERT_EQ(mkfifo(folder_.Path("pipe.tessarin").c_str(), 0600), 0);
    expectStays(folder_.Path("pipe.tessarin"), "Load error");
    expectStays(folder_.Write("empty.tessarin", ""), "Load error");
    expectStays(
        folder_.Write("words.tessarin", std::string(3000, '\0') + "not:a sheet\n# window.1:"),
        "Load error");
    expectStays(folder_.Write("new.tessarin", "general.version:1.3.0\nwindow.1.type:DotPlot\n"),
                "Wrong version");
    EXPECT_TRUE(platform.dialogs.messages.back().text.starts_with(
        "The analysis sheet you trying to open has been created with newer version of Tessarin "
        "than you have.\nPlease, download the newest version from the address "));
    expectStays(folder_.Write("newer.tessarin", "general.version:2.0.0\nwindow.1.type:DotPlot\n"),
                "Wrong version");
}

TEST_F(SheetTest, HostileLinesArePassedOver) {
    std::string text = "general.version:1.2\n";
    for (const char* slot : {"0", "-1", "17", "99999999999", "x", "", "1e3", "2.5"}) {
        for (const char* line :
             {"population.$.name:P", "population.$.corners:50", "definition.$.name:P",
              "file.$.path:/nowhere", "window.$.type:DotPlot", "window.$.axis.x:3",
              "window.$.show:-7"}) {
            text += KorvaaTeksti(line, "$", slot) + "\n";
        }
    }
    text +=
        "population.4.corners:51\npopulation.4.corners:-1\npopulation.4.corner.51.x:1\n"
        "population.4.corner.0.x:1\npopulation.4.corner.1.x:1e300\npopulation.4.axis.x:99999\n"
        "population.4.color.red:256\npopulation.4.transparent:2\npopulation.4.type:Polygon\n"
        "window.3.axis.x:5\nwindow.3.type:Histogram\nwindow.2.type:Teapot\nwindow.2.show:1\n"
        "window.5.type:Histogram\nwindow.5.yscale:-3\nwindow.5.smoothing:-1\nwindow.5.size.x:nan\n"
        "window.5.size.y:99999999999\nwindow.5.axis.x:-5\nwindow.5.show:500\nwindow.5.file:-4\n"
        "window.5.statistics.x:5\nwindow.5.statistics.column.1.visible:1\nwindow.5\nwindow\n.\n:\n"
        "window.6.type:DotPlot\nwindow.5.type:DotPlot\nwindow.5.location.x:75\nprintview.a:1\n"
        "population.6.type:Histogram\npopulation.6.corners:1\npopulation.6.corner.2.x:75\n"
        "window.6.quadrant.x:1e99\nfileinfo.visible:1\ngeneral.style:nothing\n";
    Load(folder_.Write("hostile.tessarin", text));
    EXPECT_EQ(std::count_if(Ikkunat.begin(), Ikkunat.end(), [](const auto& i) { return i.Used; }),
              3);
    EXPECT_TRUE(Ikkunat(17).Used) << "the one number of a window that makes sense";
    EXPECT_EQ(Populaatiot(4).Corners, 0);
    EXPECT_FALSE(Populaatiot(4).Transparent);
    EXPECT_EQ(Populaatiot(6).Corners, 2) << "a marker has two ends, and both are saved";
    EXPECT_EQ(Info(5)[0], "location.x:75") << "a second type line for a window is none";
    EXPECT_EQ(Info(5)[12], "smoothing:2");
    EXPECT_EQ(Ikkunat(5).FileIndex, 0);
    EXPECT_EQ(platform.mainForm.status,
              "Windows of kinds that are not known here were left out: Teapot");
    main.AvaaTiedosto(DataFile("one.fcs", 1));
    main.PiirraKaikki();
}

TEST_F(SheetTest, ALineWithoutColonOrSenseSetsNothing) {
    LayOut();
    IkkunaPaikassa(4)->Page()->AsetaPreviewissa(true);
    const std::string saved = Save("FileSaveView", "a.tessarin");
    std::string text = saved;
    for (const std::string_view line : Split(saved, '\n')) {
        const bool isSetting = (line.starts_with("window.") || line.starts_with("population.") ||
                                line.starts_with("definition.")) &&
                               line.find(".type:") == std::string::npos;
        const std::string key(line.substr(0, line.find(':')));
        if (isSetting) {
            text += key + "\n";
        }
        if (isSetting && !key.ends_with(".name")) {  // a name may be any text, and none
            text += key + ":\n" + key + ":nonsense\n" + key + ":1e300\n";
        }
    }
    Load(folder_.Write("b.tessarin", text));
    EXPECT_EQ(Save("FileSaveView", "c.tessarin"), saved);
}

TEST_F(SheetTest, AnyNameOfAFileComesBack) {
    const std::vector<std::string> names = {"caf\xe9.fcs", "two\nlines.fcs", "cr\r.fcs",
                                            "100%.fcs",    "#1: a.fcs",      "\xc3\xa9%e9.fcs"};
    for (const std::string& name : names) {
        main.AvaaTiedosto(DataFile(name, 1));
    }
    const std::string sheet = Save("FileSaveView", "a.tessarin");
    EXPECT_NE(sheet.find("path:percent:" + folder_.Path() + "caf%E9.fcs\n"), std::string::npos);
    EXPECT_NE(sheet.find("path:" + folder_.Path() + "100%.fcs\n"), std::string::npos)
        << "an ordinary name stands as it is";
    Save("MenuSaveAnalysisPackage", "p.tessarin");
    const std::string there = folder_.Path("in\xff/");
    fs::create_directory(there);
    fs::copy(folder_.Path("p.tessarin"), there);
    for (const std::string& folder : {folder_.Path(), there}) {
        PalautaAlkutila();
        Load(folder + (folder == there ? "p.tessarin" : "a.tessarin"));
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_EQ(Tiedostot(static_cast<int>(i) + 1).Path(), folder + names[i]);
        }
    }
    EXPECT_TRUE(platform.dialogs.messages.empty());
    for (const std::string path : {"percent:a", "a%", "\n%4", "\xff%zz%41", ""}) {
        EXPECT_EQ(PathFromLine(PathToLine(path)), path);
    }
    EXPECT_EQ(PathFromLine("percent:%4"), "%4") << "written by hand";
}

}  // namespace
}  // namespace tessarin
