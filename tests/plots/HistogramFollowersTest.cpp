// Who takes the bins of a histogram, and when what follows it is worked out.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "HistogramFixture.h"
#include "mainwindow/WindowRegistry.h"
#include "plots/HistogramBins.h"
#include "windows/FrameWindow.h"

namespace tessarin {
namespace {

using HistogramFollowersTest = HistogramTest;

TEST_F(HistogramFollowersTest, GivesItsBinsToOthers) {
    AnalysisWindow& window = *IkkunaPaikassa(1);
    const BinOwner& bins = *window.Bins();
    ChoosePopup(form_, 16);
    std::string expected;
    for (int bin = 1; bin <= 1024; ++bin) {
        expected += bin == 512 ? "10\n" : (bin == 256 ? "2\n" : "0\n");
    }
    EXPECT_EQ(platform.clipboard.text, expected);
    EXPECT_EQ(bins.LahetaHistogram()[512], 10);
    EXPECT_EQ(bins.LahetaMax(), 1000);
    EXPECT_EQ(bins.LahetaLog(), false);
    EXPECT_EQ(bins.LahetaNimi(), "FL1");
    EXPECT_EQ(bins.LahetaKanavaID(), 1);
    EXPECT_EQ(bins.LahetaScale(), 0);
    Populaatiot(1).X[1] = 1000;
    Populaatiot(1).X[2] = 4000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 2500);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("abskorkeus", 1), 2);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("suhtkorkeus", 1), 2000);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("other", 1), 0);
    Populaatiot(1).X[2] = 5000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("abskorkeus", 1), 10) << "the bin at its end";
    Populaatiot(MaxPopulations) = Populaatiot(1);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", MaxPopulations), 5000);
    Populaatiot(1).X[2] = 2000;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 0) << "no bin wins";
    Populaatiot(1).X[2] = 1e30F;
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 1), 5000);
    EXPECT_EQ(bins.AnnaHistonKorkeinKohta("paikka", 99), 0);
    for (const auto& [left, right] : {std::pair{10010.0F, 12000.0F}, {-900.0F, -20.0F}}) {
        Populaatiot(1).X[1] = left;
        Populaatiot(1).X[2] = right;
        for (const char* mode : {"paikka", "abskorkeus", "suhtkorkeus"}) {
            EXPECT_EQ(bins.AnnaHistonKorkeinKohta(mode, 1), 0) << left << " lies beyond the axis";
        }
    }
    int32_t place = 5000;
    EXPECT_EQ(bins.AnnaHistonKorkeus(place), 10000);
    EXPECT_EQ(place, 512) << "the argument becomes the bin";
    place = -5;
    EXPECT_EQ(bins.AnnaHistonKorkeus(place), 0);
    window.Channels()->AsetaKanava("x", 2);
    EXPECT_EQ(window.Channels()->AnnaKanava("x"), "2");
    EXPECT_EQ(bins.LahetaNimi(), "FL2");
    EXPECT_TRUE(form_.surface.HasText("FL2"));
    PutFile(1, "narrow.fcs", {{"only", false, 1000, {1}}});
    window.Piirra();
    EXPECT_EQ(window.Channels()->AnnaKanava("x"), "1")
        << "a channel that the file lacks falls back";
    Tiedostot(1) = Tiedosto();
    EXPECT_EQ(bins.LahetaNimi(), "");
    ChoosePopup(form_, 18);
    EXPECT_FALSE(platform.popups.lastEntries[16].enabled) << "no bins to copy";
}

// A window that shows histograms, as far as those need to know.
class Follower : public FrameWindow, private SourceOwner {
  public:
    explicit Follower(PaaIkkuna& main) : FrameWindow(main, {.emptyTitle = "Follower"}) {}
    SourceOwner* Sources() override { return this; }
    void Piirra() override { ++redraws; }
    int redraws = 0;

  private:
    std::vector<WindowMenuItem> Items() override { return {}; }
    void AddKeys(SheetTable& /*keys*/) override {}
    void DrawPicture(const PlotArea& /*area*/) override {}
    bool AsetaHistogram(int16_t /*line*/, int16_t /*window*/) override { return true; }
};

TEST_F(HistogramFollowersTest, WhatFollowsIsWorkedOutOutsideGesturesAndLoading) {
    RekisteroiIkkunaLaji(
        {"Follower", "", false, [](PaaIkkuna& to) { return std::make_shared<Follower>(to); }});
    LuoIkkunaPaikkaan(main, "Follower", MaxWindows);
    PoistaIkkunaLaji("Follower");
    auto& follower = dynamic_cast<Follower&>(*IkkunaPaikassa(MaxWindows));
    NewDotPlot();
    DrawMarker();
    ChoosePopup(form_, 1);
    GridTable& table = Grid().table;
    follower.redraws = 0;
    const auto expect = [&](bool worked, const std::string& when) {
        EXPECT_EQ(follower.redraws > 0, worked) << when;
        EXPECT_EQ(!table.rows.empty(), worked) << when;
        follower.redraws = 0;
        table.rows.clear();
    };
    IkkunaPaikassa(1)->Piirra();
    expect(true, "redrawn");
    form_.Press(80, 200);
    form_.Move(90, 200);
    IkkunaPaikassa(1)->Piirra();
    expect(false, "while a marker is moved");
    form_.Release(90, 200);
    expect(true, "moved");
    Loading = true;
    const int drawn = form_.surface.redraws;
    IkkunaPaikassa(1)->Piirra();
    EXPECT_EQ(form_.surface.redraws, drawn + 1) << "the picture comes at once";
    expect(false, "while a sheet is loaded");
    Loading = false;
    form_.Close();
    EXPECT_EQ(follower.redraws, 1) << "nothing to follow";
}

}  // namespace
}  // namespace tessarin
