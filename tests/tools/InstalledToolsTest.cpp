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
        std::sort(rows.begin() + 1, rows.end());
        return {rows.begin() + 1, rows.end()};
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

    ASSERT_TRUE(Run("Quadrants of a folder"));
    EXPECT_EQ(Report("quadrants.txt"),
              (std::vector<Row>{{"a.fcs", "0", "40", "60", "0"}, {"b.fcs", "0", "40", "60", "0"}}));
}

// A name is a number to a tool when it reads as one, and a folder may be the wrong one.
TEST_F(InstalledToolsTest, NamesStayApartAndAnEmptyFolderIsLeftAlone) {
    std::filesystem::create_directory(folder_.Path("wells"));
    for (const char* name : {"1.1", "1.10", "01.1", "1E5"}) {
        std::filesystem::copy_file(folder_.Path("a.fcs"), folder_.Path("wells/") + name);
    }
    answers_["folder"] = folder_.Path("wells/any");
    ASSERT_TRUE(Run("Statistics of a folder"));
    std::set<std::string> names;
    for (const Row& row : Report("wells/statistics.txt")) {
        names.insert(row[0]);
    }
    EXPECT_EQ(names.size(), 4U);
    EXPECT_TRUE(names.contains("1.1"));
    std::filesystem::remove(folder_.Path("wells/statistics.txt"));
    ASSERT_TRUE(Run("Pictures of all windows"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Path("wells")), {}), 8);

    std::filesystem::create_directory(folder_.Path("empty"));
    answers_["folder"] = folder_.Path("empty/any");
    answers_["window"] = "1";
    answers_["marker"] = answers_["region"] = "5";
    for (const char* tool :
         {"Statistics of a folder", "Statistics of every population", "Quadrants of a folder",
          "Text tables of a folder", "Pictures of all windows", "Marker to the highest peak",
          "Region follows its cloud"}) {
        log_.str("");
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
    answers_["who"] = "Me";
    answers_["what"] = "Test: one";
    answers_["file"] = folder_.Path("report.txt");
    ASSERT_TRUE(Run("Report with questions"));
    EXPECT_NE(log_.str().find("The report is written."), std::string::npos);
    const auto report = Report("report.txt");
    EXPECT_NE(std::find(report.begin(), report.end(), Row{"By", "Me"}), report.end());
    answers_["ready"] = "cancel";
    EXPECT_FALSE(Run("Report with questions"));

    ASSERT_TRUE(Run("Text tables of a folder"));
    const auto table = Report("b.fcs.txt");
    ASSERT_EQ(table.size(), 100U);
    EXPECT_EQ(table.front(), (Row{"400", "400"}));
    EXPECT_EQ(table.back(), (Row{"804", "804"}));
}

}  // namespace
}  // namespace tessarin
