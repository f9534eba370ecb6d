// Packages: a sheet and its files in one.
#include <set>

#include "SheetFixture.h"

namespace tessarin {
namespace {

using PackageTest = SheetTest;

TEST_F(PackageTest, PackagesCarryTheirFiles) {
    fs::create_directory(folder_.Path("other"));
    const std::string one = Bytes(DataFile("tube.fcs", 1));
    const std::string two = Bytes(DataFile("other/tube.fcs", 2));
    main.AvaaTiedosto(folder_.Path("tube.fcs"));
    main.AvaaTiedosto(folder_.Path("other/tube.fcs"));
    const std::string package = Save("MenuSaveAnalysisPackage", "p.tessarin");
    EXPECT_TRUE(package.ends_with("\n\ncontent:" + one + two));
    EXPECT_NE(package.find("general.style:package\n"), std::string::npos);
    EXPECT_NE(package.find("file.2.length:" + std::to_string(two.size()) + "\n"),
              std::string::npos);

    const std::string there = folder_.Path("moved/");
    fs::create_directory(there);
    fs::copy(folder_.Path("p.tessarin"), there);
    fs::remove_all(folder_.Path("other"));
    std::ofstream(there + "tube.fcs.part") << "mine";
    Load(there + "p.tessarin");
    EXPECT_EQ(Bytes(there + "tube.fcs.part"), "mine") << "a stranger's file";
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(Bytes(there + "tube.fcs"), one);
    EXPECT_EQ(Bytes(there + "tube-2.fcs"), two) << "two files of one name do not mix";
    EXPECT_EQ(Tiedostot(2).Path(), there + "tube-2.fcs");
    EXPECT_EQ(Ikkunat(2).FileIndex, 2);
    const auto written = fs::last_write_time(there + "tube.fcs");
    Load(there + "p.tessarin");
    EXPECT_EQ(fs::last_write_time(there + "tube.fcs"), written);
    EXPECT_TRUE(platform.dialogs.messages.empty());

    std::ofstream(there + "tube.fcs", std::ios::binary) << one.substr(0, one.size() - 1) << 'x';
    Load(there + "p.tessarin");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U) << "other contents are told";
    EXPECT_EQ(Bytes(there + "tube.fcs").back(), 'x') << "and never overwritten";

    // A file that has changed or gone since cannot be packed; the old package stays.
    const std::string old = Bytes(there + "p.tessarin");
    fs::remove(there + "tube-2.fcs");
    platform.dialogs.texts.push_back(there + "p.tessarin");
    Choose("MenuSaveAnalysisPackage");
    EXPECT_EQ(platform.dialogs.messages.size(), 2U);
    EXPECT_EQ(Bytes(there + "p.tessarin"), old);
}

TEST_F(PackageTest, PackagesStayInTheirFolder) {
    const std::string there = folder_.Path("in/");
    fs::create_directory(there);
    const std::vector<std::pair<std::string, std::string>> lies = {
        {"../out.fcs", "3"}, {"/tmp/tessarin-out.fcs", "3"},
        {"..", "3"},         {"a\\b.fcs", "3"},
        {"", "3"},           {std::string("n\0.fcs", 6), "3"},
        {"long.fcs", "400"}, {"less.fcs", "-3"},
        {"nan.fcs", "nan"},  {"huge.fcs", "9e18"}};
    std::string text = "general.version:1.2.1\ngeneral.style:package\n";
    for (const auto& [name, length] : lies) {
        text += "file.1.name:" + name + "\nfile.1.length:" + length + "\n";
    }
    std::ofstream(there + "p.tessarin", std::ios::binary)
        << text << "window.1.type:DotPlot\ncontent:" << std::string(60, 'z');
    Load(there + "p.tessarin");
    EXPECT_EQ(platform.dialogs.messages.size(), lies.size());
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(there)) {
        names.insert(entry.path().filename().string());
    }
    EXPECT_EQ(names, (std::set<std::string>{"p.tessarin", "out.fcs", "tessarin-out.fcs", "b.fcs"}))
        << "by their last parts, or not at all";
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1);
    EXPECT_TRUE(Ikkunat(1).Used);
}

TEST_F(PackageTest, APackageAsksBeforeItWritesWhatNobodyExpects) {
    const std::string tube = Bytes(DataFile("tube.fcs", 1));
    const std::string there = folder_.Path("in/");
    fs::create_directory(there);
    const auto pack = [&](const std::string& lines, const std::string& content) {
        std::ofstream(there + "p.tessarin", std::ios::binary)
            << "general.version:1.2.1\ngeneral.style:package\n"
            << lines << "content:" << content;
    };
    const std::string length = std::to_string(tube.size());
    pack("file.1.name:..bashrc\nfile.1.length:" + length + "\nfile.2.name:bashrc\nfile.2.length:" +
             length + "\nfile.3.name:other.fcs\nfile.3.length:" + length + "\n",
         tube + tube + tube);
    std::ofstream(there + "other.fcs") << "mine";
    NewDotPlot();
    platform.dialogs.answers = {false};
    Load(there + "p.tessarin");
    EXPECT_EQ(platform.dialogs.questions.back().text,
              "The package 'p.tessarin' writes its files beside itself, and not all as you may "
              "expect:\n'..bashrc' would be called 'bashrc-2'.\nAnother file 'other.fcs' is there "
              "already. It would stay as it is, and be shown.\nDo you want to open it?");
    EXPECT_EQ(std::distance(fs::directory_iterator(there), {}), 2) << "nothing was written";
    EXPECT_TRUE(Ikkunat(1).Used) << "and the session is as it was";
    Load(there + "p.tessarin");
    EXPECT_EQ(Tiedostot(1).Path(), there + "bashrc-2");
    EXPECT_EQ(Tiedostot(2).Path(), there + "bashrc");
    EXPECT_EQ(std::distance(fs::directory_iterator(there), {}), 4);
    EXPECT_EQ(Bytes(there + "other.fcs"), "mine");
    EXPECT_EQ(platform.mainForm.status,
              "Files of the package have other names here: '..bashrc' is 'bashrc-2'");

    std::string many;
    for (int i = 0; i < 1001; ++i) {
        many += "file.30.name:" + std::to_string(i) + "\nfile.30.length:0\n";
    }
    pack(many, "");
    platform.dialogs.answers = {false};
    Load(there + "p.tessarin");
    EXPECT_NE(platform.dialogs.questions.back().text.find("It holds 1001 files."),
              std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(there), {}), 4);
}

}  // namespace
}  // namespace tessarin
