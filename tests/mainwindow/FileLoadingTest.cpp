// Files come into windows: opening, dropping, stepping, saving, and what is refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "core/FCSReader.h"
#include "core/TemporaryName.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/FolderList.h"
#include "mainwindow/WindowList.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

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

    std::filesystem::resize_file(own, 3000 + 2 * 2 * 4 + 1);
    MaxLoadedEvents = 10;
    Tiedostot(Ikkunat(1).FileIndex) = LueFCS(own);
    EXPECT_EQ(save("FileSaveFCSEiKysymysta", ""), "");
    EXPECT_EQ(LueFCS(own).EventCount, 2) << "the three that were made up are not written";
    EXPECT_EQ(platform.mainForm.status,
              "Only the 2 events that 'own.fcs' holds whole were saved, not the 3 made up behind "
              "them.");
    Tiedostot(Ikkunat(1).FileIndex).EventCount = 1;
    EXPECT_EQ(save("FileSaveFCSEiKysymysta", ""), "File protection") << "a whole one is left out";
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
    EXPECT_EQ(platform.mainForm.status, "bad.fcs: version FCS3.1 is not read");
    EXPECT_EQ(Tiedostot(1).FileName, "good.fcs");
    EXPECT_EQ(Ikkunat(1).FileIndex, 1);
    EXPECT_FALSE(TiedostonLukuToimenPiteet(main, bad, 0, 1));
    EXPECT_TRUE(Tiedostot(1).Valid) << "a named slot keeps its file too";
    std::filesystem::permissions(good, std::filesystem::perms::none);
    const OrdinaryUser user;
    main.AvaaTiedosto(good);
    EXPECT_EQ(platform.mainForm.status, "good.fcs: Permission denied");
}

TEST_F(FileLoadingTest, TwentyFilesAndNoMore) {
    for (int i = 1; i <= MaxFiles; ++i) {
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

TEST_F(FileLoadingTest, EachOfSeveralOddFilesHasALine) {
    std::vector<std::string> told;
    main.onRemark = [&told](const std::string& remark) { told.push_back(remark); };
    const auto names = [this] {
        std::vector<std::string> first;
        for (const std::string& line : platform.mainForm.statusLines) {
            first.push_back(line.substr(0, line.find(':')));
        }
        return first;
    };
    using Names = std::vector<std::string>;
    const std::string a = Write("a", 3, "C");
    const std::string b = Write("b", 4, "C");
    const std::string plain = Write("plain", 5);
    platform.mainForm.events->FilesDropped({a, b, plain});
    EXPECT_EQ(names(), (Names{"a", "b"})) << "the one that is not odd wipes none of them";
    EXPECT_EQ(platform.mainForm.statusKind, StatusKind::kOddFiles);
    EXPECT_EQ(told.size(), 2U);
    AktivoiIkkuna(main, 3);
    EXPECT_EQ(names(), Names{});
    AktivoiIkkuna(main, 1);
    EXPECT_EQ(names(), (Names{"b", "a"})) << "that of the active window is the one that shows";
    main.Huomauta("done");
    EXPECT_EQ(platform.mainForm.statusLines, Names{"done"});
    EXPECT_EQ(platform.mainForm.statusKind, StatusKind::kRemark);

    PlotForms()[1]->Close();
    main.AvaaTiedostot({plain, a});
    EXPECT_EQ(names(), Names{"a"}) << "a file that is gone is told of no more";
    main.AvaaTiedosto(plain);
    EXPECT_EQ(names(), Names{});
}

TEST_F(FileLoadingTest, FileDialogsStartAtTheFileOfTheActiveWindow) {
    const auto start = [this](const std::string& command) {
        platform.dialogs.lastFolder = "none asked";
        platform.dialogs.texts.clear();
        Choose(command);
        return platform.dialogs.lastFolder;
    };
    EXPECT_EQ(start("FileOpenFCS"), "");
    OpenFcs(Write("a.fcs"));
    NewDotPlot();
    for (const char* command : {"FileOpenFCS", "FileOpenTXT", "FileSaveFCS", "FileOpenView"}) {
        EXPECT_EQ(start(command), folder_.Path()) << command;
    }
    ChoosePopup(LastForm(), 10);
    EXPECT_EQ(platform.dialogs.lastFolder, folder_.Path());
    platform.dialogs.texts = {folder_.Path("a.fcs")};
    Choose("FileSaveFCS");
    EXPECT_EQ(platform.dialogs.lastSafe, SafeAnswer::kNo) << "Enter must overwrite nothing";
    Ikkunat(2).FileIndex = 0;
    EXPECT_EQ(start("FileOpenFCS"), "");
}

TEST_F(FileLoadingTest, StepsThroughTheFolderWithoutGoingRound) {
    for (int i = 1; i <= 4; ++i) {
        Write("tube" + std::to_string(i), i);
    }
    folder_.Write("notes.txt", "no data");
    std::filesystem::create_directory(folder_.Path("FCS3.0"));
    const std::vector<std::string> files = TeeLista(folder_.Path());
    ASSERT_EQ(files.size(), 4U);
    EXPECT_EQ(files[0], "tube1") << "in the order of their names";
    OpenFcs(folder_.Path(files[1]));
    EXPECT_TRUE(platform.mainForm.Item("FileNextFile").enabled);
    EXPECT_TRUE(platform.mainForm.Item("FileSaveFCS").enabled);
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
    EXPECT_EQ(platform.mainForm.status, "This is the last data file of its folder.");
    Choose("SelectAll");
    Choose("FilePreviousFile");
    EXPECT_EQ(shown(1), files[1]);
    EXPECT_EQ(shown(2), files[2]);
    std::filesystem::remove(folder_.Path(files[1]));
    EXPECT_FALSE(EdellinenTiedosto(main, 1)) << "a file that is gone is in no list";
    EXPECT_TRUE(SeuraavaTiedosto(main, 1));
    EXPECT_EQ(shown(1), TeeLista(folder_.Path())[0]);
    EXPECT_TRUE(TeeLista("nowhere/").empty());
    for (int i = 0; i < 2; ++i) {
        Choose("FilePreviousFile");
    }
    EXPECT_EQ(platform.mainForm.status, "This is the first data file of its folder.");
    platform.mainForm.children[0]->Close();
    platform.mainForm.children[0]->Close();
    EXPECT_FALSE(platform.mainForm.Item("FileNextFile").enabled);
}

TEST_F(FileLoadingTest, AFolderIsLookedThroughAgainWhenItHasChanged) {
    const std::string folder = folder_.Path();
    const auto resting = [&](std::chrono::seconds age) {
        std::filesystem::last_write_time(folder,
                                         std::filesystem::file_time_type::clock::now() - age);
        return TeeLista(folder).size();
    };
    folder_.Write("a", "");  // as a cytometer leaves it that is still measuring
    folder_.Write(TemporaryName("a", 1), "FCS3.0 that a kill left behind");
    EXPECT_EQ(resting(std::chrono::hours(1)), 0U);
    std::ofstream(folder_.Path("a")) << "FCS3.0";
    EXPECT_EQ(TeeLista(folder).size(), 1U) << "written on in place";
    folder_.Write("b", "FCS2.0");
    EXPECT_EQ(TeeLista(folder).size(), 2U);
    const auto tick = std::filesystem::last_write_time(folder);
    folder_.Write("c", "FCS2.0");
    std::filesystem::last_write_time(folder, tick);
    EXPECT_EQ(TeeLista(folder).size(), 3U) << "within the same tick of the clock";
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
    EXPECT_EQ(platform.mainForm.status, "empty.txt: it is empty");
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
