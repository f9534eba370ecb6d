// The two-parameter window: each event of its file is a dot, or one count in a density picture.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "plots/DotLook.h"
#include "plots/DotStatistics.h"
#include "plots/QuadrantPart.h"
#include "windows/ChannelAxes.h"
#include "windows/FileView.h"
#include "windows/FrameWindow.h"
#include "windows/PagePart.h"
#include "windows/RegionPart.h"
#include "windows/StatisticsPart.h"

namespace tessarin {

class DotPlot : public FrameWindow, private RegionSite, private StatisticsContent {
  public:
    explicit DotPlot(PaaIkkuna& main);

    void LatauksenJalkeen() override { view_.LatauksenJalkeen(); }
    void UnloadWindow() override;

    GateOwner* Gate() override { return &view_; }
    ChannelOwner* Channels() override { return &axes_; }
    StatisticsOwner* Stats() override { return &statistics_; }
    StatisticsTableOwner* StatsTable() override { return &statistics_; }
    QuadrantOwner* Quadrant() override { return &quadrant_; }
    PageItem* Page() override { return &page_; }

  private:
    // FrameWindow.
    std::vector<WindowMenuItem> Items() override;
    void AddKeys(SheetTable& keys) override;
    void Prepare() override;
    void DrawPicture(const PlotArea& area) override;
    void FinishRedraw() override { statistics_.PaivitaStatistiikka(); }
    void SizeChanged(const PlotArea& before) override { regions_->KokoMuuttui(before); }
    void TakeBackground(uint8_t shade) override;
    void PressArmed(const MouseEvent& mouse) override { regions_->Piirra(mouse); }
    void PressRight(PixelPoint mouse) override;
    void PressLeft(const MouseEvent& mouse) override;
    void Moved(const MouseEvent& mouse) override;
    void Released(PixelPoint mouse) override;
    void MouseLost() override;

    // RegionSite.
    RegionView Regionit() const override { return {"Polygon", ID, axes_(1), axes_(2)}; }
    PlotArea Alue() const override { return Area(); }
    void RegionMuuttui(int16_t slot) override;

    // StatisticsContent.
    std::vector<TilastoValinta> TilastonValinnat() const override;
    void LaskeTilasto(const Tiedosto& file) override;
    GridTable TilastonTaulukko(const Tiedosto& file, const Statistics& window,
                               bool copy) const override;
    std::optional<double> TilastonLuku(std::string_view area, std::string_view kind) const override;

    PlotData UsedData(const Tiedosto& file, int32_t step) const;
    void SaveData();

    FileView view_{*this};
    ChannelAxes axes_{*this, view_, {{"x", 1}, {"y", 2}}};
    DotLook dots_{*this};
    DensityLook density_{*this, dots_, false};
    QuadrantPart quadrant_{*this};
    std::unique_ptr<RegionPart> regions_;
    StatisticsPart statistics_{*this, *this};
    PagePart page_{*this};
    Tilastot tilastot_;
};

}  // namespace tessarin
