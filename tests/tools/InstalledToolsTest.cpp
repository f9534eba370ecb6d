// The tools that ship with the program, each on a folder whose numbers are worked out here.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "core/FCSReader.h"
#include "core/Text.h"
#include "mainwindow/WindowList.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/RealData.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/AnswerToolUser.h"
#include "tools/ToolPack.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

// Two files of two linear channels of range 1000: "a.fcs" has 60 events around 300 and 40 around
// 700 on both, "b.fcs" the same 100 higher.
class InstalledToolsTest : public ProgramTest {
  protected:
    InstalledToolsTest() {
        FastDrawLimit = 10;  // which must not change a number
        for (const auto& [name, shift] : {std::pair{"a.fcs", 0U}, {"b.fcs", 100U}}) {
            FcsBuilder file("I", 16, "1,2,3,4", 2, 100);
            file.Change("$P1R=1000;$P2R=1000;SAMPLE ID=S");
            for (uint32_t i = 0; i < 100; ++i) {
                const uint32_t x = (i < 60 ? 300 : 700) + i % 5 + shift;
                file.AddInteger(x);
                file.AddInteger(x);
            }
            folder_.Write(name, file.Bytes());
        }
        answers_["folder"] = folder_.Path("any");
    }
    bool Run(const std::string& tool) {
        AnswerToolUser user(answers_, platform.dialogs, nullptr, log_);
        return Run(tool, user);
    }
    bool Run(const std::string& tool, ToolUser& user) {
        log_.str("");
        const Tyokalu read = LueTyokalu(SourceFile("scripts/" + tool + ".tsrscript"));
        EXPECT_TRUE(read.Valid) << tool;
        const bool ended = ToolRun(main, {user}).AjaOhjelma(read.text);
        EXPECT_EQ(FastDrawLimit, 10) << "the user's limit is put back";
        return ended;
    }
    /// The lines of a report behind its heads, in the order of their names, cut at tabs.
    std::vector<std::vector<std::string>> Report(const std::string& name) {
        std::ifstream in(folder_.Path(name), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        std::vector<std::vector<std::string>> rows;
        for (const std::string_view line : Split(text, '\n')) {
            if (!line.empty()) {
                const auto cells = Split(TrimBlanks(line), '\t');
                rows.emplace_back(cells.begin(), cells.end());
            }
        }
        EXPECT_FALSE(rows.empty()) << name << " is missing or empty";
        if (rows.empty()) {
            return rows;
        }
        std::sort(rows.begin() + 1, rows.end());
        return {rows.begin() + 1, rows.end()};
    }
    /// What a tool says at its end of a report in the folder.
    std::string Says(const std::string& report) const {
        return "Message: The report is " + folder_.Path(report) + "\n";
    }
    static void Define(int16_t slot, const std::string& type, const std::vector<float>& x,
                       const std::vector<float>& y) {
        Populaatio& row = Populaatiot(slot);
        row.Defined = true;
        row.Name = type + std::to_string(slot);
        row.Type = type;
        row.AxisX = 1;
        row.AxisY = 2;
        row.Corners = static_cast<int16_t>(x.size());
        std::copy(x.begin(), x.end(), row.X.begin() + 1);
        std::copy(y.begin(), y.end(), row.Y.begin() + 1);
    }

    TemporaryFolder folder_;
    AnswerToolUser::Answers answers_;
    std::ostringstream log_;
    using Row = std::vector<std::string>;
};

TEST_F(InstalledToolsTest, TablesOfAFolder) {
    // All: 60 * 302 + 40 * 702 by 100 = 462, as the fifths 0 to 4 add 2 on average.
    ASSERT_TRUE(Run("Statistics of a folder"));
    auto rows = Report("statistics.txt");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(Row(rows[0].begin(), rows[0].begin() + 5),
              (Row{"a.fcs", "100", "100", "462", "462"}));
    EXPECT_EQ(Row(rows[1].begin(), rows[1].begin() + 5),
              (Row{"b.fcs", "100", "100", "562", "562"}));

    // A square over values 250 to 450 of both: 60 events of either file, around 302 or 402.
    Define(2, "Polygon", {2500, 4500, 4500, 2500}, {5500, 5500, 7500, 7500});
    Define(5, "Histogram", {0, 10000}, {5000});
    Populaatiot(17).Defined = true;
    Populaatiot(17).Name = "Polygon2 and Histogram5";
    ASSERT_TRUE(Run("Statistics of every population"));
    rows = Report("populations.txt");
    ASSERT_EQ(rows.size(), 6U) << "a row for everything on the channel, in either file";
    EXPECT_EQ(Row(rows[1].begin(), rows[1].begin() + 5),
              (Row{"a.fcs", "Polygon2", "60", "60", "302"}));
    EXPECT_EQ(Row(rows[5].begin(), rows[5].begin() + 5),
              (Row{"b.fcs", "Polygon2 and Histogram5", "60", "60", "402"}));
}

// A cross in the middle is nobody's threshold: the user must have put it somewhere.
TEST_F(InstalledToolsTest, QuadrantsNeedACross) {
    NewDotPlot();
    ASSERT_TRUE(Run("Quadrants of a folder"));
    EXPECT_NE(log_.str().find("no quadrant cross"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("quadrants.txt")));

    QuadrantOwner& cross = *IkkunaPaikassa(1)->Quadrant();
    cross.NaytaTaiPiilotaKvadrantti("open");
    cross.AsetaRegion("x", 4500);  // among the upper events of b.fcs and above all but those of a
    cross.AsetaRegion("y", 10000 - 4500);
    ASSERT_TRUE(Run("Quadrants of a folder"));
    EXPECT_EQ(log_.str(), Says("quadrants.txt"));
    EXPECT_EQ(Report("quadrants.txt"),
              (std::vector<Row>{{"a.fcs", "0", "40", "60", "0"}, {"b.fcs", "0", "40", "60", "0"}}));
    cross.AsetaRegion("x", 7510);  // between the second and the third fifth of the upper ones of a
    EXPECT_TRUE(Run("Quadrants of a folder"));
}

// Three events of seven are no whole hundredths, and neither are their means.
TEST_F(InstalledToolsTest, NumbersHaveTheDigitsOfTheTable) {
    FcsBuilder file("I", 16, "1,2,3,4", 2, 7);
    file.Change("$P1R=1000;$P2R=1000");
    for (const uint32_t x : {100U, 100U, 201U, 500U, 600U, 700U, 801U}) {
        file.AddInteger(x).AddInteger(x + 1);
    }
    std::filesystem::create_directory(folder_.Path("odd"));
    folder_.Write("odd/c.fcs", file.Bytes());
    answers_["folder"] = folder_.Path("odd/any");
    Define(1, "Polygon", {0, 3000, 3000, 0}, {7000, 7000, 10000, 10000});
    ASSERT_TRUE(Run("Statistics of every population"));
    EXPECT_EQ(log_.str(), Says("odd/populations.txt"));
    const auto rows = Report("odd/populations.txt");
    // 3 of 7 are 42.857 percent, 401 by 3 is 133.66, the third root of 2010000 is 126.20.
    EXPECT_EQ(rows.at(0), (Row{"c.fcs", "Polygon1", "3", "42.85", "133.66", "126.2"}));
    const auto& shown = Grid().Row("Polygon1");
    EXPECT_EQ(Row(shown.begin() + 1, shown.begin() + 4),
              Row(rows[0].begin() + 2, rows[0].begin() + 5));

    answers_["region"] = "1";
    answers_["corners"] = "4";
    ASSERT_TRUE(Run("Region follows its cloud"));
    EXPECT_EQ(log_.str(), Says("odd/cloud.txt"));
    EXPECT_EQ(Report("odd/cloud.txt").at(0)[4], "42.85");
    answers_["window"] = "2";
    answers_["marker"] = "2";
    Choose("CreateHistogram");
    Define(2, "Histogram", {0, 3000}, {5000});
    ASSERT_TRUE(Run("Marker to the highest peak"));
    EXPECT_EQ(log_.str(), Says("odd/peaks.txt"));
    const Row peaks = Report("odd/peaks.txt").at(0);
    for (const std::string& number : peaks) {
        const std::size_t point = number.find('.');
        EXPECT_TRUE(point == std::string::npos || number.size() - point <= 3 || number == "c.fcs")
            << number;
    }
}

// A name is a number to a tool when it reads as one, and a folder may be the wrong one.
TEST_F(InstalledToolsTest, NamesStayApartAndAnEmptyFolderIsLeftAlone) {
    std::filesystem::create_directory(folder_.Path("wells"));
    const std::set<std::string> given = {"1.1", "1.10", "01.1", "1E5", "060909.005"};
    for (const std::string& name : given) {
        std::filesystem::copy_file(folder_.Path("a.fcs"), folder_.Path("wells/") + name);
    }
    answers_["folder"] = folder_.Path("wells/any");
    ASSERT_TRUE(Run("Statistics of a folder"));
    EXPECT_EQ(log_.str(), Says("wells/statistics.txt"));
    Define(1, "Polygon", {0, 10000, 10000, 0}, {0, 0, 10000, 10000});
    Populaatiot(1).Name = "007";
    ASSERT_TRUE(Run("Statistics of every population"));
    IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("open");
    ASSERT_TRUE(Run("Quadrants of a folder"));
    for (const char* report : {"statistics.txt", "populations.txt", "quadrants.txt"}) {
        std::set<std::string> names;
        for (const Row& row : Report(std::string("wells/") + report)) {
            names.insert(row[0]);
            EXPECT_TRUE(std::string_view(report) != "populations.txt" || row[1] == "007") << row[1];
        }
        EXPECT_EQ(names, given) << report;
        std::filesystem::remove(folder_.Path(std::string("wells/") + report));
    }
    ASSERT_TRUE(Run("Pictures of all windows"));
    EXPECT_EQ(log_.str(), "Message: The pictures lie in " + folder_.Path("wells/") + "\n");
    ASSERT_TRUE(Run("Text tables of a folder"));
    EXPECT_EQ(log_.str(), "Message: The tables lie in " + folder_.Path("wells/") + "\n");
    for (const std::string& name : given) {
        EXPECT_TRUE(std::filesystem::exists(folder_.Path("wells/" + name + "-1.bmp"))) << name;
        EXPECT_TRUE(std::filesystem::exists(folder_.Path("wells/" + name + ".txt"))) << name;
    }

    std::filesystem::create_directory(folder_.Path("empty"));
    answers_["folder"] = folder_.Path("empty/any");
    answers_["window"] = "1";
    answers_["marker"] = answers_["region"] = "5";
    for (const char* tool :
         {"Statistics of a folder", "Statistics of every population", "Quadrants of a folder",
          "Text tables of a folder", "Pictures of all windows", "Marker to the highest peak",
          "Region follows its cloud"}) {
        EXPECT_TRUE(Run(tool)) << tool;
        EXPECT_EQ(log_.str(), "Message: There is no data file in that folder.\n") << tool;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path("empty")));
}

TEST_F(InstalledToolsTest, MarkersAndRegionsFollowTheirEvents) {
    Choose("CreateHistogram");
    Define(1, "Histogram", {1000, 1600}, {5000});
    answers_["window"] = "1";
    answers_["marker"] = "1";
    ASSERT_TRUE(Run("Marker to the highest peak"));
    const auto peaks = Report("peaks.txt");
    ASSERT_EQ(peaks.size(), 2U);
    // 300 of 1000 is bin 307 of 1024, which smoothing moves by up to two bins; then 600 wide.
    EXPECT_NEAR(std::stod(peaks[0][1]), 3000, 30);
    EXPECT_NEAR(std::stod(peaks[1][1]), 4000, 30);
    EXPECT_EQ(Row(peaks[1].begin() + 2, peaks[1].begin() + 4), (Row{"60", "402"}));

    IkkunaPaikassa(1)->UnloadWindow();
    // A square of 200 by 200 values that misses the middle of 302 by 60, and later 402.
    Define(3, "Polygon", {2600, 4600, 4600, 2600}, {5400, 5400, 7400, 7400});
    answers_["region"] = "3";
    answers_["corners"] = "4";
    ASSERT_TRUE(Run("Region follows its cloud"));
    const auto clouds = Report("cloud.txt");
    ASSERT_EQ(clouds.size(), 2U);
    EXPECT_NEAR(std::stod(clouds[0][1]), 2020, 2) << "302 in the middle";
    EXPECT_NEAR(std::stod(clouds[1][1]), 3020, 2);
    EXPECT_EQ(clouds[1][3], "60");

    // One as large as the plot goes where its middle should be only as far as the edges let it.
    Define(4, "Polygon", {100, 9700, 9700, 100}, {100, 100, 9700, 9700});
    answers_["region"] = "4";
    std::filesystem::remove(folder_.Path("cloud.txt"));
    ASSERT_TRUE(Run("Region follows its cloud"));
    EXPECT_EQ(Report("cloud.txt"), (std::vector<Row>{{"a.fcs", "0", "9600", "100", "100"},
                                                     {"b.fcs", "400", "10000", "100", "100"}}));
    const auto& corners = Populaatiot(4);
    EXPECT_EQ(corners.X[2] - corners.X[1], 9600);
    EXPECT_EQ(corners.Y[3] - corners.Y[1], 9600);
}

TEST_F(InstalledToolsTest, PicturesTablesAndAReport) {
    NewDotPlot();
    Choose("CreateHistogram");
    ASSERT_TRUE(Run("Pictures of all windows"));
    for (const char* picture : {"a.fcs-1.bmp", "a.fcs-2.bmp", "b.fcs-1.bmp", "b.fcs-2.bmp"}) {
        EXPECT_TRUE(std::filesystem::exists(folder_.Path(picture))) << picture;
    }
    Tiedostot(Ikkunat(1).FileIndex).Otsikko.SampleId = "0012";
    platform.dialogs.texts = {"Me", "Test: one", folder_.Path("report.txt")};
    DialogToolUser screen(platform.dialogs);
    ASSERT_TRUE(Run("Report with questions", screen));
    for (const auto& asked : platform.dialogs.questions) {
        EXPECT_EQ(asked.text.find("[enter]"), std::string::npos) << asked.text;
    }
    EXPECT_EQ(platform.dialogs.messages.back().text, "The report is " + folder_.Path("report.txt"));
    const auto report = Report("report.txt");
    for (const Row& row : {Row{"By", "Me"}, {"File", "b.fcs"}, {"Sample", "0012"}}) {
        EXPECT_NE(std::find(report.begin(), report.end(), row), report.end()) << row[0];
    }
    platform.dialogs.answers = {false};
    platform.dialogs.texts = {"Me", "Test: two", folder_.Path("report.txt")};
    EXPECT_FALSE(Run("Report with questions", screen));
    VapautaIkkuna(1);
    EXPECT_TRUE(Run("Report with questions", screen));
    EXPECT_EQ(platform.dialogs.messages.back().text, "There is no window 1.");
    NewDotPlot();
    Ikkunat(1).FileIndex = 0;
    EXPECT_TRUE(Run("Report with questions", screen));
    EXPECT_EQ(platform.dialogs.messages.back().text, "Window 1 shows no file.");

    ASSERT_TRUE(Run("Text tables of a folder"));
    const auto table = Report("b.fcs.txt");
    ASSERT_EQ(table.size(), 100U);
    EXPECT_EQ(table.front(), (Row{"400", "400"}));
    EXPECT_EQ(table.back(), (Row{"804", "804"}));
}

}  // namespace
}  // namespace tessarin
