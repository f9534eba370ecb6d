// The ends of what a sheet holds: the last row of each table, the windows that there is one of,
// the edges of a package, and what the user may do while a sheet comes.
#include "SheetFixture.h"

namespace tessarin {
namespace {

using SheetLimitsTest = SheetTest;

int CountWindows() {
    return static_cast<int>(
        std::ranges::count_if(Ikkunat, [](const Ikkuna& window) { return window.Used; }));
}

TEST_F(SheetLimitsTest, TheLastOfEachTableComesBack) {
    const std::string data = DataFile("one.fcs", 1);
    const std::vector<std::string> lines = {
        "file.20.path:" + data,         "population.16.name:P",
        "population.16.type:Polygon",   "population.16.corners:50",
        "population.16.corner.50.x:75", "definition.32.name:not P",
        "window.50.type:DotPlot",       "window.50.file:20"};
    std::string text =
        "definition.16.name:a population has no definition\n"
        "population.16.corner.1.2.3:more numbers than any key has\n";
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    Load(folder_.Write("a.tessarin", text + "population.16.axis.x:1\npopulation.16.axis.y:2\n"));
    EXPECT_EQ(Tiedostot(20).Path(), data);
    EXPECT_EQ(Tiedostot(20).Membership(1, 32), 1);
    EXPECT_TRUE(Ikkunat(50).Selected);
    Populaatiot(1).Defined = true;
    Populaatiot(1).Name = "two\nlines\r";
    const std::string saved = Save("FileSaveView", "b.tessarin");
    for (const std::string& line : lines) {
        EXPECT_NE(saved.find("\n" + line + "\n"), std::string::npos) << line;
    }
    EXPECT_NE(saved.find("population.1.name:two lines \n"), std::string::npos);
    EXPECT_EQ(saved.find("definition.16"), std::string::npos);
    EXPECT_NE(Save("MenuSaveAnalysisPackage", "p.tessarin").find("\nfile.20.name:one.fcs\n"),
              std::string::npos);
    Load(folder_.Write("c.tessarin", "window.1.type:DotPlot\n"));
    EXPECT_FALSE(Tiedostot(20).Valid || Populaatiot(16).Defined || Populaatiot(32).Defined);
    EXPECT_EQ(CountWindows(), 1);
    EXPECT_TRUE(Ikkunat(1).Selected);
}

class Section : public SheetSection {
  public:
    std::string_view SheetName() const override { return "fileinfo"; }
    bool OnkoNakyvissa() const override { return shown; }
    void AsetaNakyvyys(bool show) override { shown = show; }
    std::vector<std::string> SaveInfo() const override { return {"column:3", "x:7"}; }
    void LoadInfo(std::string_view line) override { taken.emplace_back(line); }
    void SheetLoaded() override { ++loads; }
    bool shown = true;
    std::vector<std::string> taken;
    int loads = 0;
};

TEST_F(SheetLimitsTest, WindowsThatThereIsOneOfHaveTheirLines) {
    Section info;
    main.Kumppanit().sections = {&info};
    const std::string end = "\n# File info\nfileinfo.visible:1\nfileinfo.column:3\nfileinfo.x:7\n";
    EXPECT_NE(Save("FileSaveView", "a.tessarin").find(end), std::string::npos);
    Load(
        folder_.Write("b.tessarin", "fileinfo.column:5\nfileinfo.visible:0\nfileinfo.visible:2\n"));
    EXPECT_FALSE(info.shown);
    EXPECT_EQ(info.taken, (std::vector<std::string>{"fileinfo.column:5"}));
    EXPECT_EQ(info.loads, 1);
    EXPECT_NE(Save("FileSaveView", "c.tessarin").find("fileinfo.visible:0\n"), std::string::npos);
    Load(folder_.Path("a.tessarin"));
    EXPECT_TRUE(info.shown);
    main.Kumppanit().sections.clear();
}

TEST_F(SheetLimitsTest, EventsDuringLoadingFindNoHalfSession) {
    LayOut();
    Save("FileSaveView", "a.tessarin");
    platform.loop.atNextYield = [this] {
        EXPECT_TRUE(Loading);
        const int windows = CountWindows();
        for (const char* command : {"CreateDotPlot", "CreateHistogram", "FileExit"}) {
            Choose(command);
            EXPECT_EQ(CountWindows(), windows) << command;
        }
        platform.mainForm.events->CloseRequested();
        EXPECT_FALSE(store_.LataaNakyma(folder_.Path("a.tessarin")));
        platform.mainForm.events->FilesDropped({folder_.Path("one.fcs")});
        EXPECT_EQ(CountWindows(), windows);
        platform.mainForm.children[0]->Close();
    };
    Load(folder_.Path("a.tessarin"));
    EXPECT_FALSE(Ikkunat(1).Used) << "a window may go while others come";
    EXPECT_EQ(PlotForms().size(), 3U);
    EXPECT_FALSE(Closing);
}

TEST_F(SheetLimitsTest, NamesPathsAndVersionsOfAllKinds) {
    for (const auto& [slot, name] : {std::pair{2, "a:b"}, {3, "c#d"}, {4, "not:defined"}}) {
        Populaatiot(slot).Defined = slot < 4;
        Populaatiot(slot).Name = name;
    }
    Save("FileSaveView", "a.tessarin");
    EXPECT_EQ(platform.mainForm.status,
              "A sheet cannot keep names with ':' or '#' whole: a:b, c#d");
    Choose("FileSaveView");  // and Cancel
    EXPECT_TRUE(platform.dialogs.messages.empty());
    const std::string data = DataFile("one.fcs", 1);
    Load(folder_.Write("b.tessarin",
                       "general.version:1\nfile.1.path:" + KorvaaTeksti(data, "/", "\\") + "\n"));
    EXPECT_EQ(Tiedostot(1).Path(), data) << "backslashes are understood";
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_FALSE(store_.LataaNakyma(folder_.Write("c.tessarin", "general.version:2\n")));
    EXPECT_EQ(platform.dialogs.messages.back().title, "Wrong version");
}

TEST_F(SheetLimitsTest, PackagesOfEmptyFilesAndStrangeNames) {
    const std::string tube = Bytes(DataFile("tube.fcs", 1));
    const std::string there = folder_.Path("in/");
    fs::create_directory(there);
    // Twice: the second finds the first where it would be written.
    const std::string first = "file.30.name:first.txt\nfile.30.length:0\n";
    const std::string files = first + first +
                              "file.1.name:tube.fcs\n"
                              "file.1.length:" +
                              std::to_string(tube.size()) +
                              "\nfile.30.name:sub/last.txt\nfile.30.length:0\n"
                              "window.2.type:Teapot\nwindow.3.type:Kettle\n# no content: here\n";
    // Text is read in pieces of 65536 bytes; the mark may lie across two of them.
    for (const std::size_t inFirst : {0U, 1U, 7U, 8U}) {
        const std::string begin = "general.style:package\n" + files + "# ";
        const char* const lineEnd = inFirst == 1 ? "\r" : "\n";
        const std::string filler(65536 - inFirst - begin.size() - 1, 'x');
        std::ofstream(there + "p.tessarin", std::ios::binary)
            << begin << filler << lineEnd << "content:" << tube;
        fs::remove(there + "tube.fcs");
        Load(there + "p.tessarin");
        EXPECT_EQ(Bytes(there + "tube.fcs"), tube) << inFirst;
        EXPECT_EQ(Tiedostot(1).Path(), there + "tube.fcs");
    }
    EXPECT_EQ(fs::file_size(there + "first.txt"), 0U);
    EXPECT_EQ(fs::file_size(there + "last.txt"), 0U);
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(platform.mainForm.status,
              "Windows of kinds that are not known here were left out: Kettle, Teapot; Files of "
              "the package have other names here: 'sub/last.txt' is 'last.txt'");

    for (const int count : {10, 12}) {
        std::string many = "general.style:package\n";
        for (int i = 0; i < count; ++i) {
            many += "file.30.name:s/" + std::to_string(i) + "\nfile.30.length:0\n";
        }
        folder_.Write("many.tessarin", many + "content:");
        platform.dialogs.answers = {false};
        EXPECT_FALSE(store_.LataaNakyma(folder_.Path("many.tessarin")));
        const std::string& asked = platform.dialogs.questions.back().text;
        EXPECT_EQ(asked.find("'s/10'"), std::string::npos);
        EXPECT_NE(asked.find("\n's/9' would be called '9'."), std::string::npos);
        EXPECT_EQ(asked.find("\nand 2 more\n") != std::string::npos, count == 12);
    }
}

}  // namespace
}  // namespace tessarin
