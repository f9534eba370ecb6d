// The one-parameter window: the events of its file counted into bins along a channel, as bars.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plots/BinnedChannel.h"
#include "plots/HistogramStatistics.h"
#include "windows/ChannelAxes.h"
#include "windows/FileView.h"
#include "windows/FrameWindow.h"
#include "windows/PagePart.h"
#include "windows/RegionPart.h"
#include "windows/StatisticsPart.h"

namespace tessarin {

class Histogram : public FrameWindow,
                  private BinOwner,
                  private RegionSite,
                  private StatisticsContent {
  public:
    explicit Histogram(PaaIkkuna& main);

    void LatauksenJalkeen() override { view_.LatauksenJalkeen(); }
    void UnloadWindow() override;

    GateOwner* Gate() override { return &view_; }
    ChannelOwner* Channels() override { return &axes_; }
    StatisticsOwner* Stats() override { return &statistics_; }
    StatisticsTableOwner* StatsTable() override { return &statistics_; }
    BinOwner* Bins() override { return this; }
    PageItem* Page() override { return &page_; }

  private:
    // FrameWindow.
    std::vector<WindowMenuItem> Items() override;
    void AddKeys(SheetTable& keys) override;
    void Prepare() override;
    void DrawPicture(const PlotArea& area) override;
    void FinishRedraw() override;
    void SizeChanged(const PlotArea& before) override { regions_->KokoMuuttui(before); }
    void PressArmed(const MouseEvent& mouse) override { regions_->Piirra(mouse); }
    void PressRight(PixelPoint mouse) override;
    void PressLeft(const MouseEvent& mouse) override { regions_->Tartu({mouse.x, mouse.y}); }
    void Moved(const MouseEvent& mouse) override { regions_->Liiku({mouse.x, mouse.y}); }
    void Released(PixelPoint mouse) override { regions_->Paasta(mouse); }
    void MouseLost() override { regions_->Keskeyta(); }

    // BinOwner.
    std::span<const double> LahetaHistogram() const override { return bins_.Palkit(); }
    int32_t LahetaMax() const override { return Channel().Range; }
    bool LahetaLog() const override { return Channel().IsLog; }
    std::string LahetaNimi() const override { return Channel().Name; }
    int16_t LahetaKanavaID() const override { return axes_(1); }
    int32_t LahetaScale() const override { return bins_.Skaala(); }
    int32_t AnnaHistonKorkeinKohta(std::string_view mode, int16_t marker) const override;
    int32_t AnnaHistonKorkeus(int32_t& x) const override;

    // RegionSite.
    RegionView Regionit() const override { return {"Histogram", ID, axes_(1)}; }
    PlotArea Alue() const override { return Area(); }
    void RegionMuuttui(int16_t slot) override;

    // StatisticsContent.
    std::vector<TilastoValinta> TilastonValinnat() const override;
    void LaskeTilasto(const Tiedosto& file) override;
    GridTable TilastonTaulukko(const Tiedosto& file, const Statistics& window,
                               bool copy) const override;
    std::optional<double> TilastonLuku(std::string_view area, std::string_view kind) const override;

    ChannelData UsedData(const Tiedosto& file) const;
    /// The channel in the window's file; one without name and range when there is no file.
    Kanava Channel() const;
    void CopyBins();

    FileView view_{*this};
    ChannelAxes axes_{*this, view_, {{"x", 1}}};
    BinnedChannel bins_{*this, 2, {255, 0, 0}};
    bool Reunus = true;  // outline
    std::unique_ptr<RegionPart> regions_;
    StatisticsPart statistics_{*this, *this};
    PagePart page_{*this};
    std::vector<HistoRivi> HistoRivit;
};

}  // namespace tessarin
