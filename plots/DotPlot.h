// The two-parameter window: each event of its file is a dot, or one count in a density picture.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "plots/DensityLayer.h"
#include "plots/PlotWindow.h"
#include "plots/PolygonGesture.h"
#include "plots/QuadrantCross.h"
#include "plots/Tilastot.h"

namespace tessarin {

class DotPlot : public PlotWindow {
  public:
    explicit DotPlot(PaaIkkuna& main);

    // The window contract.
    std::optional<std::string> AnnaKanava(std::string_view axis) const override;
    bool AsetaKanava(std::string_view axis, int16_t channel) override;
    std::optional<double> AnnaStatistiikka(std::string_view area,
                                           std::string_view kind) const override;
    bool NaytaTaiPiilotaKvadrantti(std::string_view what) override;
    std::optional<bool> OnkoKvadranttiKaytossa() const override {
        return kvadrantti_.KvadranttiKaytossa;
    }
    bool AsetaRegion(std::string_view axis, double value) override;
    std::optional<std::string> AnnaKvadrantinKoordinaatit(std::string_view axis) const override;

    void Kuva_MouseMove(const MouseEvent& mouse) override;
    void Kuva_MouseUp(const MouseEvent& mouse) override;
    void Kuva_MouseLost() override;

  private:
    void ReplaceMissingChannels(const Tiedosto& file) override;
    void DrawPlot(const Tiedosto& file, const PlotArea& area) override;
    void DrawAxes(const Tiedosto& file, const PlotArea& area);
    void DrawEvents(const Tiedosto& file, const PlotArea& area);
    void DrawRegions(const PlotArea& area);
    bool ThinsWhileResized() const override { return true; }

    RegionEle& Ele() override { return ele_; }
    RegionView EleenNakyma() const override {
        return {"Polygon", ID, KanavaX, KanavaY, VainTaallaLuodut};
    }
    void RegionMuuttui(int16_t slot) override;
    int16_t AxisAt(const PlotArea& area, PixelPoint mouse) const override;
    void PressLeft(PixelPoint mouse) override;

    PlotData UsedData(const Tiedosto& file, int32_t step) const;
    void ComputeStatistics(const Tiedosto& file) override;
    GridTable TableOf(const Tiedosto& file, bool copy) const override;

    std::vector<SheetKey> Keys() override;
    void TakeBackground(uint8_t shade) override;

    // Pop-up items of its own.
    void ToggleQuadrant();
    void SetQuadrantCaption();
    void ToggleDensity();
    void SetDensityCaption();
    void ToggleColours();
    void SetColoursCaption();
    void ToggleDotSize();
    void SetDotSizeCaption();
    void SaveData();
    static std::span<const PopupItem> Items();

    TiheysKuva density_;
    int16_t KanavaX = 1;  // channels on the axes
    int16_t KanavaY = 2;
    uint8_t PisteenKoko = 1;  // dots of 1 or 2 pixels
    bool MoniVari = true;     // colour dots by population
    bool Tiheys = false;      // density picture instead of dots
    int16_t TiheysResoluutio = 512;
    Kvadrantti kvadrantti_;
    MonikulmioEle ele_{*this};
    Tilastot tilastot_;
};

}  // namespace tessarin
