// The statistics of a histogram.
#include <gtest/gtest.h>

#include "HistogramFixture.h"

namespace tessarin {
namespace {

class HistogramStatisticsTest : public HistogramTest {
  protected:
    void PutMarkers() {
        PutFile(1, "tube.fcs",
                {{"FL1", false, 1000, {10, 30, 0, 500}}, {"FL2", false, 1000, {1, 2, 3, 4}}});
        Populaatio& marker = Populaatiot(3);
        marker.Defined = true;
        marker.Name = "Low";
        marker.Type = "Histogram";
        marker.AxisX = 1;
        marker.Created = 2;  // of another window
        marker.X[1] = 100;
        marker.X[2] = 300;
        Populaatiot(MaxPopulations) = marker;
        Populaatiot(MaxPopulations).AxisX = 2;
        Populaatiot(4) = marker;
        Populaatiot(4).Type = "Polygon";
        Populaatiot(kPopulationSlots).Defined = true;
        Populaatiot(kPopulationSlots).Name = "Low";
        Populaatiot(5) = marker;
        Populaatiot(5).Name = "None";
        Populaatiot(5).X[1] = 301;
        Populaatiot(5).X[2] = 301;
        TarkistaPopulaatiot();
    }
};

TEST_F(HistogramStatisticsTest, StatisticsWithSpread) {
    PutMarkers();
    ChoosePopup(form_, 1);
    const ScriptedTable& grid = Grid();
    using Row = std::vector<std::string>;
    EXPECT_EQ(TableForms().back()->caption, "(1) Statistics: tube.fcs");
    EXPECT_EQ(grid.table.rows[0].cells,
              (Row{"", "Number", "% of vis", "X mean", "X geomean", "CV"}));
    // 10, 30, 0, 500: mean 135, squares of the distances 125^2 + 105^2 + 135^2 + 365^2 = 178100;
    // the root of a quarter of that is 211.0094, by 135 1.56303. Geometric: 0 counts as 1, and
    // the fourth root of 150000 is 19.6799.
    EXPECT_EQ(grid.Row("Visible"), (Row{"Visible", "4", "100", "135", "19.67", "156.3"}));
    // 10 and 30: mean 20, distance 10 each, so 0.5; geometric the root of 300.
    EXPECT_EQ(grid.Row("Low"), (Row{"Low", "2", "50", "20", "17.32", "50"}));
    EXPECT_EQ(grid.Row("None"), (Row{"None", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(grid.table.rows.back().cells[1], "2") << "a definition";
    EXPECT_EQ(grid.table.Rows(), 5) << "no row for a marker of another channel";
    EXPECT_EQ(TableForms().back()->width.count, 5 * 1200 + 1500 + 100 + 3 * 15)
        << "three pixels more than told, as the frame is wider here";
    const StatisticsOwner& window = *IkkunaPaikassa(1)->Stats();
    EXPECT_EQ(window.AnnaStatistiikka("3", "cv"), 50);
    EXPECT_EQ(window.AnnaStatistiikka("3", "vis"), 50);
    EXPECT_EQ(window.AnnaStatistiikka("32", "number"), 2);
    EXPECT_EQ(window.AnnaStatistiikka("0", "xmean"), 135);
    EXPECT_EQ(window.AnnaStatistiikka("0", "vis"), 100);
    EXPECT_NEAR(window.AnnaStatistiikka("0", "cv").value_or(0), 156.303, 1e-3);
    EXPECT_NEAR(window.AnnaStatistiikka("0", "xgeomean").value_or(0), 19.6799, 1e-4);
    for (const char* none : {"-1", "33", ""}) {
        EXPECT_EQ(window.AnnaStatistiikka(none, "number"), std::nullopt);
    }
    EXPECT_EQ(window.AnnaStatistiikka("ul", "number"), std::nullopt);
    EXPECT_EQ(window.AnnaStatistiikka("0", "ymean"), std::nullopt);
}

TEST_F(HistogramStatisticsTest, FollowColumnsGateAndChannel) {
    PutMarkers();
    ChoosePopup(form_, 1);
    const ScriptedTable& grid = Grid();
    platform.popups.choices.push_back({7, -1});
    Grid().onRightPress();
    EXPECT_EQ(platform.popups.lastEntries[5].caption, "CV");
    EXPECT_EQ(grid.table.rows[0].cells[0], "File name");
    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(3);
    EXPECT_EQ(grid.Row("Visible")[1], "2");
    IkkunaPaikassa(1)->Channels()->AsetaKanava("x", 2);
    EXPECT_EQ(grid.table.Rows(), 5) << "the header row, and the marker on that channel";
    ChoosePopup(form_, 1);
    EXPECT_TRUE(TableForms().empty());
}

}  // namespace
}  // namespace tessarin
