// The main window on a scripted platform: menus, windows, selection, files and the end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "core/FCSReader.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/FolderList.h"
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
                                                "Ctrl+N", "Ctrl+O", "Ctrl+P", "Ctrl+S", "F1"}));
    EXPECT_FALSE(platform.mainForm.Item("FileNextFile").enabled) << "there is no file to step from";
    EXPECT_FALSE(platform.mainForm.Item("FileSaveFCS").enabled);
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

}  // namespace
}  // namespace tessarin
