// The statistics of a dot plot and the window that shows them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <random>
#include <sstream>
#include <utility>

#include "mainwindow/WindowList.h"
#include "plots/DotStatistics.h"
#include "plots/EventText.h"
#include "plots/HistogramStatistics.h"
#include "tests/support/PlotFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "windows/Statistics.h"

namespace tessarin {
namespace {

class StatisticsTest : public PlotTest {
  protected:
    ScriptedTable& OpenStatistics() {
        IkkunaPaikassa(1)->Stats()->AvaaTaiSuljeStatistics("open");
        return Grid();
    }
    void ChooseStatItem(ScriptedTable& grid, int item) {
        platform.popups.choices.push_back({item, -1});
        grid.onRightPress();
    }
    // What a tool reads of a row.
    void ExpectStatistics(const std::string& area,
                          const std::vector<std::pair<std::string, double>>& values) {
        for (const auto& [kind, value] : values) {
            const auto told = IkkunaPaikassa(1)->Stats()->AnnaStatistiikka(area, kind);
            EXPECT_NEAR(told.value_or(-1), value, 1e-9) << area << " " << kind;
        }
    }
    using Row = std::vector<std::string>;
};

TEST_F(StatisticsTest, CountsSharesAndMeans) {
    Open({{"a", false, 1000, {0, 100, 200.5F}}, {"b", false, 1000, {-10, 10, 30}}});
    DefinePolygon(2, "Two", {1, 1, 1}, {1, 2});
    DefinePolygon(MaxPopulations, "Elsewhere", {1, 1, 1}, {1});
    Populaatiot(MaxPopulations).AxisY = 1;
    DefinePolygon(5, "Across", {1, 1, 1}, {1});
    Populaatiot(5).AxisX = 2;
    DefinePolygon(6, "Marker", {1, 1, 1}, {1});
    Populaatiot(6).Type = "Histogram";
    DefinePolygon(4, "Nobody", {1, 1, 1}, {});
    DefinePolygon(kPopulationSlots, "Two and not Nobody", {1, 1, 1}, {2});
    const ScriptedTable& grid = OpenStatistics();
    EXPECT_EQ(TableForms().back()->caption, "(1) Statistics: tube.fcs");
    EXPECT_EQ(grid.table.rows[0].cells,
              (Row{"", "Number", "% of vis", "X mean", "Y mean", "X geomean", "Y geomean"}));
    // Means 100.1666 and 10; geometric: 0 and -10 count as 1, so the cube roots of
    // 1 * 100 * 200.5 = 20050, 27.1668, and of 1 * 10 * 30 = 300, 6.6943. All cut, not rounded.
    EXPECT_EQ(grid.Row("Visible"), (Row{"Visible", "3", "100", "100.16", "10", "27.16", "6.69"}));
    // Two events of three; x 0 and 100, geometric 10; y -10 and 10, geometric the root of 10.
    EXPECT_EQ(grid.Row("Two"), (Row{"Two", "2", "66.66", "50", "0", "10", "3.16"}));
    EXPECT_EQ(grid.Row("Nobody"), (Row{"Nobody", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(grid.Row("Two and not Nobody")[1], "1");
    EXPECT_EQ(grid.table.Rows(), 5) << "no row for a region of other channels";
    EXPECT_EQ(TableForms().back()->width.count, 6 * 1200 + 1500 + 100 + 3 * 15)
        << "three pixels more than told, as the frame is wider here";
    EXPECT_EQ(TableForms().back()->height.count, 5 * 240 + 380 + 6 * 15);

    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(4);
    EXPECT_EQ(grid.Row("Visible"), (Row{"Visible", "0", "100", "0", "0", "0", "0"}));
    EXPECT_EQ(grid.Row("Two")[2], "0");
    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(2);
    EXPECT_EQ(grid.Row("Two and not Nobody")[2], "50");
    // 0, 100 and -10, 10 are left; in geometric means what is not above 0 counts as 1.
    ExpectStatistics("0", {{"number", 2},
                           {"vis", 100},
                           {"xmean", 50},
                           {"ymean", 0},
                           {"xgeomean", 10},
                           {"ygeomean", std::sqrt(10)}});
    ExpectStatistics("32", {{"number", 1}, {"vis", 50}, {"xmean", 100}});
    for (const char* none : {"zz", "-1", "33", ""}) {
        EXPECT_EQ(IkkunaPaikassa(1)->Stats()->AnnaStatistiikka(none, "number"), std::nullopt);
    }
    EXPECT_EQ(IkkunaPaikassa(1)->Stats()->AnnaStatistiikka("0", "median"), std::nullopt);
}

// The statistics of population 2 of file 1, event by event.
struct PlainSums {
    long double count = 0;
    std::array<long double, 4> sums{};  // values of both channels, then their logarithms
    long double squares = 0;            // distances from the mean of channel 1

    PlainSums(const Tiedosto& file, int16_t gate, int32_t step) {
        std::vector<int32_t> events;
        for (int32_t event = 1; event <= file.EventCount; event += step) {
            const bool shown = gate == 0 || file.Membership(event, gate) == 1;
            if (shown && file.Membership(event, 2) == 1) {
                events.push_back(event);
            }
        }
        count = static_cast<long double>(events.size());
        for (const int32_t event : events) {
            for (const std::size_t channel : {0U, 1U}) {
                const long double value = file.Data(event, static_cast<int>(channel) + 1);
                sums[channel] += value;
                sums[channel + 2] += value > 0 ? std::log10(value) : 0;
            }
        }
        for (const int32_t event : events) {
            squares += std::pow(file.Data(event, 1) - sums[0] / count, 2.0L);
        }
    }
    double Mean(std::size_t sum) const { return static_cast<double>(sums[sum] / count); }
};

TEST_F(StatisticsTest, SpreadIsOfMeansAboveZeroAlone) {
    const auto spread = [](const std::vector<float>& values) {
        PutFile(1, "tube.fcs", {{"a", false, 1000, values}});
        std::vector<HistoRivi> rows(kPopulationSlots + 1);
        LaskeHistoTilastot({Tiedostot(1), 1}, rows);
        return rows[0].CV;
    };
    EXPECT_EQ(spread({5, 15}), 0.5);
    EXPECT_EQ(spread({-5, -15}), 0);
    EXPECT_EQ(spread({-5, 5}), 0) << "nothing is divided by 0";
}

// Sums are taken by blocks and vectors.
TEST_F(StatisticsTest, AgreeWithASumOverEveryEvent) {
    constexpr int32_t kEvents = 5003;
    std::mt19937 random(9);
    std::vector<float> values(kEvents);
    std::ranges::generate(values, [&] { return static_cast<float>(random() % 100000) / 8 - 500; });
    values[4000] = INFINITY;  // a member of nothing
    Tiedosto& file =
        PutFile(1, "many.fcs", {{"a", false, 1000, values}, {"b", false, 1000, values}});
    std::ranges::reverse(file.Data.OmaSarake(2));
    for (const int16_t slot : std::array<int16_t, 2>{1, 2}) {
        DefinePolygon(slot, "P" + std::to_string(slot), {1, 1, 1}, {});
        std::ranges::generate(file.Membership.OmaSarake(slot), [&] { return random() % 3 == 0; });
        file.Membership.Aseta(4001, slot, 0);
        file.Membership.Aseta(kEvents - 4000, slot, 0);
    }
    for (const auto& [gate, step] : {std::pair<int16_t, int32_t>(0, 1), {0, 7}, {1, 1}, {1, 7}}) {
        const PlainSums plain(file, gate, step);
        Tilastot statistics;
        LaskeTilastot({file, 1, 2, gate, step}, statistics);
        const TilastoRivi& row = statistics.Rivit[2];
        EXPECT_EQ(row.Lukumaara, plain.count);
        EXPECT_NEAR(row.XKeski, plain.Mean(0), 1e-9);
        EXPECT_NEAR(row.YKeski, plain.Mean(1), 1e-9);
        EXPECT_NEAR(row.XGeo, std::pow(10.0, plain.Mean(2)), 1e-9);
        EXPECT_NEAR(row.YGeo, std::pow(10.0, plain.Mean(3)), 1e-9);

        Populaatiot(2).Type = "Histogram";
        std::vector<HistoRivi> rows(kPopulationSlots + 1);
        LaskeHistoTilastot({file, 1, gate, step}, rows);
        Populaatiot(2).Type = "Polygon";
        EXPECT_EQ(rows[2].Lukumaara, plain.count);
        EXPECT_EQ(rows[2].XKeski, row.XKeski);
        const auto spread = static_cast<double>(std::sqrt(plain.squares / plain.count));
        EXPECT_NEAR(rows[2].CV, spread / plain.Mean(0), 1e-12);
    }
}

TEST_F(StatisticsTest, QuadrantsDivideOnTheGrid) {
    ScriptedForm& form =
        Open({{"a", false, 1000, {100, 900, 900, 500}}, {"b", false, 1000, {900, 900, 100, 500}}});
    const ScriptedTable& grid = OpenStatistics();
    ChoosePopup(form, 2);
    EXPECT_EQ(grid.Row("Upper Left")[1], "1");
    EXPECT_EQ(grid.Row("Upper Right")[1], "1");
    EXPECT_EQ(grid.Row("Lower Left"), (Row{"Lower Left", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(grid.Row("Lower Right"),
              (Row{"Lower Right", "2", "50", "700", "300", "670.82", "223.6"}))
        << "an event on the lines goes right and down";
    EXPECT_EQ(grid.table.rows[2].cells[0], "") << "an empty row before them";
    ExpectStatistics("ul", {{"vis", 25}, {"xmean", 100}});
    ExpectStatistics("ur", {{"vis", 25}, {"xmean", 900}, {"ymean", 900}});
    ExpectStatistics("ll", {{"vis", 0}, {"xmean", 0}});
    ExpectStatistics("lr", {{"vis", 50}, {"xmean", 700}});
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("x", 0);
    IkkunaPaikassa(1)->Quadrant()->AsetaRegion("y", 0);
    EXPECT_EQ(grid.Row("Lower Right")[2], "100");
}

TEST_F(StatisticsTest, ThinnedInFastDrawModeAndSaysSo) {
    FastDrawLimit = 50;
    Open({{"a", false, 1000, std::vector<float>(120, 1)},
          {"b", false, 1000, std::vector<float>(120, 1)}});
    const ScriptedTable& grid = OpenStatistics();
    EXPECT_EQ(grid.table.rows[0].cells[0], "FAST DRAW");
    EXPECT_EQ(grid.Row("Visible")[1], "40");
}

TEST_F(StatisticsTest, ItemsHeadersAndText) {
    Open({{"a", false, 1000, {5}}, {"b", false, 1000, {5}}});
    Tiedostot(1).Otsikko.SampleId = "S1";
    Tiedostot(1).Otsikko.Comment = "first\rsecond";
    ScriptedTable& grid = OpenStatistics();
    for (const int item : {2, 3, 4, 5, 6}) {
        ChooseStatItem(grid, item);
    }
    EXPECT_EQ(grid.table.Cols(), 2);
    ChooseStatItem(grid, 1);
    EXPECT_EQ(grid.table.Cols(), 2) << "the last visible item stays";
    ChooseStatItem(grid, 3);
    ChooseStatItem(grid, 8);
    ChooseStatItem(grid, 10);
    EXPECT_TRUE(grid.table.rows[0].merged);
    EXPECT_EQ(grid.table.rows[0].cells, (Row{"File name", "tube.fcs ", "tube.fcs "}));
    EXPECT_EQ(grid.table.rows[1].cells[1], "first, second ");
    ChooseStatItem(grid, 0);
    EXPECT_EQ(platform.popups.lastEntries[0].caption, "Copy to clipboard");
    EXPECT_TRUE(platform.popups.lastEntries[8].checked);
    EXPECT_FALSE(platform.popups.lastEntries[9].checked);
    const std::string text =
        "File name\ttube.fcs \t\nComments\tfirst, second \t\n\tNumber\tX mean\nVisible\t1\t5";
    EXPECT_EQ(platform.clipboard.text, text);
    IkkunaPaikassa(1)->Quadrant()->NaytaTaiPiilotaKvadrantti("open");
    const StatisticsTableOwner& window = *IkkunaPaikassa(1)->StatsTable();
    EXPECT_TRUE(window.AnnaKokoStatistiikka("1-rivinen-otsikko")
                    .starts_with("[W 1] Visible Number\t[W 1] Visible X mean\t[W 1] Upper Left "));
    EXPECT_EQ(window.AnnaKokoStatistiikka("1-rivinen-tieto"), "1\t5\t0\t0\t0\t0\t1\t5\t0\t0\t")
        << "the one event lies lower left";
    EXPECT_EQ(window.AnnaKokoStatistiikka("other"), "");
    EXPECT_TRUE(window.AnnaKokoStatistiikka("monirivinen")
                    .ends_with("Lower Left\t1\t5\nLower Right\t0\t0"));
}

TEST_F(StatisticsTest, OpensClosesAndIsCopied) {
    ScriptedForm& form = Open({{"a", false, 1000, {5}}, {"b", false, 1000, {5}}});
    ChoosePopup(form, 1);
    ASSERT_EQ(TableForms().size(), 1U);
    EXPECT_TRUE(IkkunatStat(1).Used);
    Choose("CopyImages");  // the statistics window is the active child now
    EXPECT_TRUE(platform.clipboard.text.starts_with("\tNumber"));
    EXPECT_EQ(ClipSource, 1);
    form.Activate();
    Choose("CopyImages");
    EXPECT_EQ(platform.clipboard.text, "");
    EXPECT_GT(platform.clipboard.image.width, 0);
    TableForms()[0]->Close();
    EXPECT_FALSE(IkkunatStat(1).Used);
    EXPECT_EQ(IkkunaPaikassa(1)->Stats()->OnkoStatistiikkaKaytossa(), false);
    Choose("CopyImages");
    ChoosePopup(form, 1);
    EXPECT_EQ(platform.popups.lastEntries[1].caption, "Open statistics");
    ChoosePopup(form, 1);
    EXPECT_EQ(platform.popups.lastEntries[1].caption, "Close statistics");
    ChoosePopup(form, 1);
    form.Close();
    EXPECT_TRUE(TableForms().empty()) << "it goes with its plot";
    EXPECT_FALSE(IkkunatStat(1).Used);
}

TEST_F(StatisticsTest, TheWindowFollowsColumnsThatAreDrawnWider) {
    Open({{"a", false, 1000, {1}}, {"b", false, 1000, {2}}});
    ScriptedTable& grid = OpenStatistics();
    ScriptedForm& window = *TableForms()[0];
    const Twips width = window.width;
    const auto wider = [&] { return PixelsFromTwips(window.width) - PixelsFromTwips(width); };
    grid.Widen(60);
    EXPECT_EQ(wider(), 60);
    main.PiirraKaikki();
    EXPECT_EQ(wider(), 60);
    grid.Widen(-75);
    EXPECT_EQ(wider(), -15);
    grid.Widen(5000);
    EXPECT_EQ(PixelsFromTwips(window.left) + PixelsFromTwips(window.width), window.AreaWidth());
}

TEST_F(StatisticsTest, SavesEventsAsText) {
    FastDrawLimit = 1;
    ScriptedForm& form =
        Open({{"a", false, 1000, {0.1F, 2, 1e10F}}, {"b", false, 1000, {-3, 0, 1}}});
    DefinePolygon(1, "g", {1, 1, 1}, {1, 3});
    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(1);
    const TemporaryFolder folder;
    const std::string path = folder.Path("events.txt");
    platform.dialogs.texts = {path, path};
    ChoosePopup(form, 16);
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    EXPECT_EQ(text.str(), "0.1\t-3\n1E+10\t1\n") << "fast draw does not thin it";
    platform.dialogs.answers = {false};
    ChoosePopup(form, 16);
    EXPECT_EQ(platform.dialogs.questions.back().title, "File already exists");
    platform.dialogs.texts = {folder.Path("nowhere/at/all.txt")};
    ChoosePopup(form, 16);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace tessarin
