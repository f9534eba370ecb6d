// The main window on a scripted platform: menus, windows, selection, files and the end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "core/FCSReader.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/WindowList.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

using MainWindowTest = ProgramTest;

TEST_F(MainWindowTest, MenuTreeStandsWhole) {
    EXPECT_EQ(platform.mainForm.title, "Tessarin v. 1.2.1");
    const auto& menus = platform.mainForm.menus;
    ASSERT_EQ(menus.size(), 6U);
    const std::vector<std::pair<std::string, std::size_t>> expected = {
        {"&File", 18}, {"&Edit", 6}, {"View", 4}, {"&Create", 9}, {"&Tools", 1}, {"&Help", 2}};
    std::set<std::string> shortcuts;
    for (std::size_t i = 0; i < menus.size(); ++i) {
        EXPECT_EQ(menus[i].caption, expected[i].first);
        EXPECT_EQ(menus[i].items.size(), expected[i].second) << menus[i].caption;
        for (const MenuItem& item : menus[i].items) {
            EXPECT_TRUE(item.shortcut.empty() || shortcuts.insert(item.shortcut).second)
                << item.shortcut << " stands twice";
        }
    }
    EXPECT_EQ(shortcuts, (std::set<std::string>{"Ctrl+A", "Ctrl+C", "Ctrl+D", "Ctrl+H", "Ctrl+I",
                                                "Ctrl+N", "Ctrl+O", "Ctrl+P", "F1"}));
    EXPECT_TRUE(platform.mainForm.Item("CreateDotPlot").enabled);
    EXPECT_FALSE(platform.mainForm.Item("Printtaa").enabled);
    EXPECT_EQ(platform.mainForm.Item("SkriptiLista").caption, "SkriptiLista");
    EXPECT_FALSE(platform.mainForm.Item("SkriptiLista").enabled);
    EXPECT_FALSE(platform.mainForm.Item("CreateBendPlot").enabled) << "until there are any";
}

TEST_F(MainWindowTest, PanelListsEverySlot) {
    const auto& rows = platform.mainForm.rows;
    ASSERT_EQ(rows.size(), 32U);
    EXPECT_EQ(platform.mainForm.selectedRows, (std::vector<int>{1, 17}));
    Populaatiot(2).Defined = true;
    Populaatiot(2).Name = "Lymphocytes";
    Populaatiot(2).Transparent = true;
    Populaatiot(3).Name = "left over";
    Populaatiot(17).Transparent = true;
    main.PiirraKaikki();
    EXPECT_EQ(rows[1].caption, "Lymphocytes");
    EXPECT_EQ(rows[1].label, "T");
    EXPECT_EQ(rows[2].caption, "Not defined");
    EXPECT_EQ(rows[16].label, "C");
    EXPECT_EQ(Populaatiot(3).Name, "");
    EXPECT_TRUE(Populaatiot(17).Transparent) << "a definition keeps it";
    EXPECT_EQ(rows[0].color, (Rgb{255, 50, 0}));
    EXPECT_EQ(rows[31].color, (Rgb{60, 80, 120}));
    EXPECT_EQ(main.Paneeli().NaytaValikonPopulaatio(1), 2);
    EXPECT_EQ(main.Paneeli().NaytaValikonPopulaatio(2), 0);
}

TEST_F(MainWindowTest, PanelSlidesUnlessFrozen) {
    MainFormEvents& user = *platform.mainForm.events;
    EXPECT_EQ(platform.mainForm.panelWidth, Twips{150});
    user.PanelMouseMove();
    EXPECT_EQ(platform.mainForm.panelWidth, Twips{4000});
    user.BackgroundMouseMove();
    EXPECT_EQ(platform.mainForm.panelWidth, Twips{150});
    user.PanelMouseMove();
    user.FreezePanel(true);
    NewDotPlot().Move(5, 5);
    EXPECT_EQ(platform.mainForm.panelWidth, Twips{4000});
    user.FreezePanel(false);
    LastForm().Move(5, 5);
    EXPECT_EQ(platform.mainForm.panelWidth, Twips{150});
}

TEST_F(MainWindowTest, FiftyWindowsAndNoMore) {
    for (int i = 1; i <= MaxWindows; ++i) {
        NewDotPlot();
    }
    EXPECT_TRUE(platform.dialogs.messages.empty());
    Choose("CreateDotPlot");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "You can create only 50 windows at a time.");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Max number of windows");
    EXPECT_EQ(platform.mainForm.children.size(), 50U);

    platform.mainForm.children[2]->Close();
    EXPECT_FALSE(Ikkunat(3).Used);
    EXPECT_EQ(platform.mainForm.children.size(), 49U);
    EXPECT_EQ(NewDotPlot().caption, "[S] (3): Dot Plot - No File") << "the lowest free slot";
    EXPECT_EQ(ActiveWindow, 3);
}

TEST_F(MainWindowTest, SelectionFollowsActivationAndShift) {
    ScriptedForm& first = NewDotPlot();
    ScriptedForm& second = NewDotPlot();
    EXPECT_FALSE(Ikkunat(1).Selected) << "a new window is the only selected one";
    EXPECT_EQ(first.caption, "(1): Dot Plot - No File");
    first.KeyDown(kKeyShift);
    first.Activate();
    EXPECT_TRUE(Ikkunat(1).Selected && Ikkunat(2).Selected);
    first.KeyUp(kKeyShift);
    first.Activate();
    EXPECT_TRUE(Ikkunat(1).Selected && !Ikkunat(2).Selected);
    EXPECT_EQ(second.caption, "(2): Dot Plot - No File");
    Choose("SelectAll");
    EXPECT_EQ(second.caption, "[S] (2): Dot Plot - No File");
    Loading = true;
    second.Activate();
    EXPECT_TRUE(Ikkunat(1).Selected) << "no change while a sheet is loaded";
    EXPECT_EQ(ActiveWindow, 1);
}

TEST_F(MainWindowTest, LimitsTakeWholeNumbersAboveZero) {
    struct Case {
        std::string answer;
        int32_t limit;
    };
    for (const Case& c :
         {Case{"1234", 1234}, Case{"77.9", 77}, Case{"", 50000}, Case{"0", 50000},
          Case{"-5", 50000}, Case{"0.9", 50000}, Case{"many", 50000}, Case{"1e99", 2147483647}}) {
        FastDrawLimit = 50000;
        platform.dialogs.texts = {c.answer};
        Choose("AsetaFastDrawLimit");
        EXPECT_EQ(FastDrawLimit, c.limit) << c.answer;
    }
    EXPECT_EQ(platform.dialogs.questions[0].title, "Set limit");
    EXPECT_EQ(platform.dialogs.questions[0].text, "Set the fast draw limit");
    EXPECT_EQ(platform.dialogs.lastPreset, "50000");
    platform.dialogs.texts = {"500"};
    Choose("AsetaLadattavienPisteidenMaara");
    EXPECT_EQ(MaxLoadedEvents, 500);
    EXPECT_EQ(platform.dialogs.questions.back().text,
              "Set the max number of events which will be loaded");
}

TEST_F(MainWindowTest, BumperMovesDotsAtOnceAndMembersLater) {
    PutFile(1, "neg.fcs", {{"a", false, 1000, {-500}}, {"b", false, 1000, {500}}});
    CurrentFile = 1;
    int evaluations = 0;
    AsetaArvioija("Polygon", [&](int16_t) { ++evaluations; });
    Populaatiot(1).Defined = true;
    Populaatiot(1).Type = "Polygon";
    const RecordingKuva& picture = NewDotPlot().surface;
    const int redraws = picture.redraws;
    Choose("KaytaNegAbsJuttua");
    EXPECT_TRUE(KaytaNegAbsJuttua);
    EXPECT_TRUE(platform.mainForm.checked["KaytaNegAbsJuttua"]);
    EXPECT_EQ(picture.redraws, redraws + 1);
    EXPECT_EQ(evaluations, 0);
    EXPECT_GE(platform.loop.yields, int{MaxWindows});
    Choose("KaytaNegAbsJuttua");
    EXPECT_FALSE(KaytaNegAbsJuttua);
}

TEST_F(MainWindowTest, AWindowMayCloseWhileAllAreDrawn) {
    PutFile(1, "a.fcs", {{"a", false, 1000, {1}}, {"b", false, 1000, {1}}});
    CurrentFile = 1;
    NewDotPlot();
    NewDotPlot();
    platform.loop.atNextYield = [this] { platform.mainForm.children[1]->Close(); };
    main.PiirraKaikki();
    EXPECT_FALSE(Ikkunat(2).Used);
    EXPECT_TRUE(Tiedostot(1).Valid) << "the other window still shows the file";
    LastForm().Close();
    EXPECT_FALSE(Tiedostot(1).Valid) << "the last window takes its file along";
}

TEST_F(MainWindowTest, ExitAsksFirst) {
    PutFile(1, "a.fcs", {{"a", false, 1000, {1}}, {"b", false, 1000, {1}}});
    CurrentFile = 1;
    NewDotPlot();
    platform.dialogs.answers = {false};
    Choose("FileExit");
    EXPECT_FALSE(platform.loop.quit);
    EXPECT_TRUE(Ikkunat(1).Used);
    EXPECT_EQ(platform.dialogs.questions[0].title, "Exit the program");
    EXPECT_EQ(platform.dialogs.questions[0].text,
              "Do you really want to exit? All unsaved data will be lost.");
    platform.mainForm.events->CloseRequested();
    EXPECT_TRUE(platform.loop.quit);
    EXPECT_TRUE(Closing);
    EXPECT_TRUE(platform.mainForm.children.empty());
}

TEST_F(MainWindowTest, HelpAboutAndCopy) {
    Choose("AvaaHelp");
    EXPECT_EQ(platform.browser.opened, std::vector<std::string>{"file://program/guide/index.html"});
    Choose("AvaaAboutLaatikko");
    EXPECT_TRUE(platform.mainForm.about[1].starts_with("Version 1.2.1, released "));
    platform.clipboard.text = "old";
    NewDotPlot();
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "");
    EXPECT_EQ(platform.clipboard.image.width, LastForm().surface.Width());
    EXPECT_EQ(ClipSource, 1);
}

class FileLoadingTest : public ProgramTest {
  protected:
    // A file of two channels and `events` events, 16-bit integers, all of value 7.
    std::string Write(const std::string& name, int events = 3, const std::string& mode = "L") {
        FcsBuilder file("I", 16, "1,2,3,4", 2, events);
        file.Set("$MODE", mode);
        for (int i = 0; i < events * 2; ++i) {
            file.AddInteger(7);
        }
        return folder_.Write(name, file.Bytes());
    }

    void OpenFcs(const std::string& path) {
        platform.dialogs.texts = {path};
        Choose("FileOpenFCS");
    }

    TemporaryFolder folder_;
};

TEST_F(FileLoadingTest, OpensIntoANewWindowOrTheSelectedOnes) {
    const std::string a = Write("a.fcs");
    const std::string b = Write("b.fcs", 4);
    OpenFcs("");
    EXPECT_TRUE(platform.mainForm.children.empty());
    EXPECT_EQ(platform.dialogs.questions[0].title, "Open FCS file");
    OpenFcs(a);
    ASSERT_EQ(platform.mainForm.children.size(), 1U);
    EXPECT_EQ(LastForm().caption, "[S] (1): Dot Plot - a.fcs");
    EXPECT_EQ(CurrentFile, 1);
    NewDotPlot();  // shows the current file at once
    EXPECT_EQ(Ikkunat(2).FileIndex, 1);
    OpenFcs(b);  // only window 2 is selected
    EXPECT_EQ(Ikkunat(1).FileIndex, 1);
    EXPECT_EQ(Ikkunat(2).FileIndex, 2);
    Choose("SelectAll");
    OpenFcs(b);
    EXPECT_EQ(Ikkunat(1).FileIndex, 2) << "shared, not read again";
    EXPECT_FALSE(Tiedostot(1).Valid) << "no window shows it any more";
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

TEST_F(FileLoadingTest, SavesFcsAndProtectsTheOriginals) {
    Choose("FileSaveFCS");
    Choose("FileSaveFCSEiKysymysta");
    EXPECT_TRUE(platform.dialogs.questions.empty()) << "no window, nothing to save";
    const std::string original = Write("a.fcs", 5);
    OpenFcs(original);
    const auto save = [&](const std::string& command, const std::string& path) {
        platform.dialogs.texts = {path};
        platform.dialogs.messages.clear();
        Choose(command);
        return platform.dialogs.messages.empty() ? "" : platform.dialogs.messages[0].title;
    };
    EXPECT_EQ(save("FileSaveFCSEiKysymysta", ""), "File protection");
    EXPECT_TRUE(platform.dialogs.messages[0].text.starts_with("The current FCS file has been "));
    const std::string own = folder_.Path("own.fcs");
    EXPECT_EQ(save("FileSaveFCS", own), "");
    EXPECT_EQ(Tiedostot(1).Path(), original) << "the window goes on showing what it showed";
    EXPECT_EQ(save("FileSaveFCS", folder_.Path("missing/x.fcs")), "Save as FCS file");
    platform.dialogs.answers = {false};
    EXPECT_EQ(save("FileSaveFCS", original), "");
    EXPECT_EQ(platform.dialogs.questions.back().title, "File already exists");

    OpenFcs(own);
    Tiedostot(Ikkunat(1).FileIndex).RawData.Aseta(2, 1, 99);
    EXPECT_EQ(save("FileSaveFCSEiKysymysta", ""), "");
    EXPECT_EQ(LueFCS(own).Data(2, 1), 99) << "its own file is overwritten";
    MaxLoadedEvents = 3;
    Tiedostot(Ikkunat(1).FileIndex) = LueFCS(own);
    EXPECT_EQ(save("FileSaveFCSEiKysymysta", ""), "File protection") << "two events not loaded";
    EXPECT_EQ(save("FileSaveFCS", folder_.Path("./own.fcs")), "File protection");
    EXPECT_EQ(save("FileSaveFCS", folder_.Path("three.fcs")), "");
    EXPECT_EQ(std::filesystem::file_size(own), 3000U + 5 * 2 * 4);
}

TEST_F(FileLoadingTest, RefusedFilesChangeNothing) {
    const std::string good = Write("good.fcs");
    const std::string bad = folder_.Write("bad.fcs", "FCS3.1 and so on");
    OpenFcs(bad);
    EXPECT_TRUE(platform.mainForm.children.empty()) << "no empty window is left behind";
    OpenFcs(good);
    NewDotPlot();
    Choose("SelectAll");
    platform.dialogs.messages.clear();
    OpenFcs(bad);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U) << "once, not for each window";
    EXPECT_EQ(platform.dialogs.messages[0].text, "The file was not valid flow cytometry file");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Load error");
    EXPECT_EQ(Tiedostot(1).FileName, "good.fcs");
    EXPECT_EQ(Ikkunat(1).FileIndex, 1);
    EXPECT_FALSE(TiedostonLukuToimenPiteet(main, bad, 0, 1));
    EXPECT_TRUE(Tiedostot(1).Valid) << "a named slot keeps its file too";
}

TEST_F(FileLoadingTest, TwentyFilesAndNoMore) {
    for (int i = 1; i <= MaxFiles; ++i) {
        platform.mainForm.events->FilesDropped({});
        AvaaUuteenIkkunaan(main, Write("f" + std::to_string(i) + ".fcs", i), LukuTapa::kFcs);
    }
    EXPECT_TRUE(platform.dialogs.messages.empty());
    OpenFcs(Write("one-more.fcs", 21));
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text,
              "Loading failed: There can be only 20 files open at a time.");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Too many files open");
    EXPECT_EQ(Ikkunat(20).FileIndex, 20) << "the selected window keeps its file";
}

TEST_F(FileLoadingTest, NewFilesGetTheirMembersAndOddOnesAWord) {
    std::vector<int> order;
    AsetaArvioija("Polygon", [&](int16_t slot) { order.push_back(slot); });
    AsetaMaaritelmanArvioija([&](int16_t slot) { order.push_back(slot); });
    for (const int slot : {20, 5, 2}) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Type = "Polygon";
    }
    OpenFcs(Write("odd.fcs", 3, "C"));
    EXPECT_EQ(order, (std::vector<int>{2, 5, 20}));
    EXPECT_TRUE(platform.mainForm.status.starts_with("odd.fcs: "));
    OpenFcs(Write("plain.fcs"));
    EXPECT_EQ(platform.mainForm.status, "");
    EXPECT_EQ(platform.pointer.history.back(), MousePointer::kNormal);

    main.AvaaTiedosto(Write("odd2.fcs", 3, "C"));
    EXPECT_TRUE(platform.mainForm.status.starts_with("odd2.fcs: "));
    AktivoiIkkuna(main, 1);
    EXPECT_EQ(platform.mainForm.status, "");
    AktivoiIkkuna(main, 2);
    EXPECT_TRUE(platform.mainForm.status.starts_with("odd2.fcs: ")) << "its window is active again";
    main.Huomauta("something else");
    AktivoiIkkuna(main, 1);
    EXPECT_EQ(platform.mainForm.status, "something else");
    AktivoiIkkuna(main, 2);
    EXPECT_TRUE(platform.mainForm.status.starts_with("odd2.fcs: "));
}

TEST_F(FileLoadingTest, StepsThroughTheFolderWithoutGoingRound) {
    for (int i = 1; i <= 4; ++i) {
        Write("tube" + std::to_string(i), i);
    }
    folder_.Write("notes.txt", "no data");
    std::filesystem::create_directory(folder_.Path("FCS3.0"));
    const std::vector<std::string> files = TeeLista(folder_.Path());
    ASSERT_EQ(files.size(), 4U);
    OpenFcs(folder_.Path(files[1]));
    const auto shown = [](int16_t window) { return Tiedostot(Ikkunat(window).FileIndex).FileName; };
    Choose("FileNextFile");
    EXPECT_EQ(shown(1), files[2]);
    EXPECT_EQ(std::count_if(Tiedostot.begin(), Tiedostot.end(),
                            [](const Tiedosto& file) { return file.Valid; }),
              1)
        << "the old file is freed";
    NewDotPlot();
    Choose("FileNextFile");  // window 2 alone is selected
    EXPECT_EQ(shown(1), files[2]);
    EXPECT_EQ(shown(2), files[3]);
    Choose("FileNextFile");
    EXPECT_EQ(shown(2), files[3]) << "there is no way round";
    Choose("SelectAll");
    Choose("FilePreviousFile");
    EXPECT_EQ(shown(1), files[1]);
    EXPECT_EQ(shown(2), files[2]);
    std::filesystem::remove(folder_.Path(files[1]));
    EXPECT_FALSE(EdellinenTiedosto(main, 1)) << "a file that is gone is in no list";
    EXPECT_TRUE(SeuraavaTiedosto(main, 1));
    EXPECT_EQ(shown(1), TeeLista(folder_.Path())[0]);
    EXPECT_TRUE(TeeLista("nowhere/").empty());
}

TEST_F(FileLoadingTest, AFolderIsLookedThroughAgainWhenItHasChanged) {
    const std::string folder = folder_.Path();
    const auto resting = [&](std::chrono::seconds age) {
        std::filesystem::last_write_time(folder,
                                         std::filesystem::file_time_type::clock::now() - age);
        return TeeLista(folder).size();
    };
    folder_.Write("a", "");  // as a cytometer leaves it that is still measuring
    EXPECT_EQ(resting(std::chrono::hours(1)), 0U);
    std::ofstream(folder_.Path("a")) << "FCS3.0";
    EXPECT_EQ(TeeLista(folder).size(), 1U) << "written on in place";
    folder_.Write("b", "FCS2.0");
    EXPECT_EQ(TeeLista(folder).size(), 2U);
    folder_.Write("c", "FCS2.0");
    EXPECT_EQ(TeeLista(folder).size(), 3U) << "within the same tick, perhaps";
    EXPECT_EQ(resting(std::chrono::hours(2)), 3U);
    std::filesystem::remove(folder_.Path("b"));
    EXPECT_EQ(TeeLista(folder).size(), 2U);
}

TEST_F(FileLoadingTest, TextTablesOpenLikeFiles) {
    platform.dialogs.texts = {folder_.Write("t.txt", "Name\tA\tB\r\nx\t1\t2,5\r\ny\t\tno\r\n")};
    platform.clipboard.text = "old";
    Choose("FileOpenTXT");
    EXPECT_EQ(platform.dialogs.questions.back().title, "Open Tabbed TXT file");
    EXPECT_EQ(LastForm().caption, "[S] (1): Dot Plot - t.txt");
    EXPECT_EQ(Tiedostot(1).Data(1, 2), 2.5F);
    EXPECT_EQ(platform.clipboard.text, "\tA\tB\t\nx\t1\t2.5\t\ny\t0\t0\t\n");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_TRUE(platform.dialogs.messages[0].text.starts_with("2 cells of t.txt"));
    platform.dialogs.texts = {folder_.Write("empty.txt", "")};
    Choose("FileOpenTXT");
    EXPECT_EQ(platform.dialogs.messages.back().title, "Load error");
    platform.mainForm.events->FilesDropped({folder_.Write("drop.TXT", "A\tB\n3\t4")});
    EXPECT_EQ(Tiedostot(Ikkunat(1).FileIndex).EventCount, 1) << "the last line needs no end";
}

TEST_F(FileLoadingTest, DroppedFilesOpenAsFromTheMenu) {
    const std::string a = Write("a.fcs");
    const std::string b = Write("b.fcs", 4);
    platform.mainForm.events->FilesDropped({a, b});
    ASSERT_EQ(platform.mainForm.children.size(), 2U) << "each its own window";
    EXPECT_EQ(Ikkunat(1).FileIndex, 1);
    EXPECT_EQ(Ikkunat(2).FileIndex, 2);
    platform.mainForm.events->FilesDropped({a});
    EXPECT_EQ(Ikkunat(2).FileIndex, 1) << "one goes to the selected window";
}

}  // namespace
}  // namespace tessarin
