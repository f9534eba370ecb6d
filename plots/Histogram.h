// The one-parameter window: the events of its file counted into bins along a channel, as bars.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plots/HistogramBins.h"
#include "plots/HistogramStatistics.h"
#include "plots/MarkerGesture.h"
#include "plots/PlotWindow.h"

namespace tessarin {

class Histogram : public PlotWindow {
  public:
    explicit Histogram(PaaIkkuna& main);

    // The window contract.
    std::optional<std::string> AnnaKanava(std::string_view axis) const override;
    bool AsetaKanava(std::string_view axis, int16_t channel) override;
    std::optional<double> AnnaStatistiikka(std::string_view area,
                                           std::string_view kind) const override;
    std::optional<std::vector<double>> LahetaHistogram() const override { return Histo; }
    std::optional<int32_t> LahetaMax() const override;
    std::optional<bool> LahetaLog() const override;
    std::optional<std::string> LahetaNimi() const override;
    std::optional<int16_t> LahetaKanavaID() const override { return KanavaX; }
    std::optional<int32_t> LahetaScale() const override { return YSkaala; }
    std::optional<int32_t> AnnaHistonKorkeinKohta(std::string_view mode,
                                                  int16_t marker) const override;
    std::optional<int32_t> AnnaHistonKorkeus(int32_t& x) const override;
    void UnloadWindow() override;

  private:
    void ReplaceMissingChannels(const Tiedosto& file) override;
    void CountEvents(const Tiedosto& file) override;
    void DrawPlot(const Tiedosto& file, const PlotArea& area) override;
    void DrawAxes(const Tiedosto& file, const PlotArea& area);
    void DrawMarkers(const PlotArea& area);
    void DrawTopOfScale(const PlotArea& area);
    void RedrawFollowers() override;
    bool DrawsWhileLoading() const override { return true; }

    RegionEle& Ele() override { return ele_; }
    RegionView EleenNakyma() const override {
        return {"Histogram", ID, KanavaX, 0, VainTaallaLuodut};
    }
    void RegionMuuttui(int16_t slot) override;
    int16_t AxisAt(const PlotArea& area, PixelPoint mouse) const override;

    ChannelData UsedData(const Tiedosto& file) const;
    void ComputeStatistics(const Tiedosto& file) override;
    GridTable TableOf(const Tiedosto& file, bool copy) const override;

    std::vector<SheetKey> Keys() override;
    void TakeBackground(uint8_t shade) override;

    // Pop-up items of its own.
    void SetScale();
    void SetSmoothing();
    void AskNumber(const std::string& title, std::string_view zero, int32_t& value);
    void ChangeColor();
    void ToggleOutline();
    void SetOutlineCaption();
    void CopyBins();
    static std::span<const PopupItem> Items();

    /// The channel in the window's file; one without name and range when there is no file.
    Kanava Channel() const;
    /// The bin at a grid place, within the bins there are.
    std::size_t BinAt(float grid) const;

    int16_t KanavaX = 1;        // the channel
    int32_t Resoluutio = 1024;  // number of bins
    std::vector<double> Histo;  // counts after smoothing, bins 0 to Resoluutio; empty at first
    int32_t Tasoitus = 2;       // smoothing width in bins, 0 for none
    int32_t YSkaala = 0;        // top of the y scale as a count, 0 for automatic
    float Korkein = 1;          // the top in use at the last redraw
    Rgb Tayttovari{255, 0, 0};  // colour of the bars
    bool Reunus = true;         // outline
    MarkkeriEle ele_{*this};
    std::vector<HistoRivi> HistoRivit;
};

}  // namespace tessarin
