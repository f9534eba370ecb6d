// The two-parameter window: each event of its file is a dot, or one count in a density picture.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "mainwindow/AnalysisWindow.h"
#include "platform/Dialogs.h"
#include "plots/DensityLayer.h"
#include "plots/FastDraw.h"
#include "plots/PlotArea.h"
#include "plots/PolygonGesture.h"
#include "plots/PopupCaptions.h"
#include "plots/QuadrantCross.h"
#include "plots/RegionOutlines.h"
#include "plots/StatisticsCompanion.h"
#include "plots/Tilastot.h"

namespace tessarin {

class PaaIkkuna;

class DotPlot : public AnalysisWindow, private PolygonHost, private StatisticsOwner {
  public:
    explicit DotPlot(PaaIkkuna& main);
    ~DotPlot() override;

    // The window contract.
    void Alusta(int16_t id) override;
    void Piirra() override;
    void LatauksenJalkeen() override;
    int16_t AnnaID() const override { return ID; }
    void MenuValintaReaktio(int item) override;
    void CopyToClipboard() override;
    void UnloadWindow() override;
    Form& Lomake() override { return *form_; }
    std::optional<std::string> AnnaOtsikko() const override { return Otsikko; }
    bool NaytaPopulaatio(int16_t population) override;
    std::optional<std::string> AnnaKanava(std::string_view axis) const override;
    bool AsetaKanava(std::string_view axis, int16_t channel) override;
    bool AsetaPiirtoMoodi(std::string_view mode) override;
    std::optional<bool> OnkoPreviewissa() const override { return Previewissa; }
    bool AsetaPreviewissa(bool shown) override;
    std::optional<bool> OnkoStatPreviewissa() const override { return StatPreviewissa; }
    bool AsetaStatPreviewissa(bool shown) override;
    bool AvaaTaiSuljeStatistics(std::string_view what) override;
    std::optional<bool> OnkoStatistiikkaKaytossa() const override { return tilasto_.OnkoAuki(); }
    std::optional<double> AnnaStatistiikka(std::string_view area,
                                           std::string_view kind) const override;
    std::optional<std::string> AnnaKokoStatistiikka(std::string_view format) const override;
    bool LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) override;
    bool NaytaTaiPiilotaKvadrantti(std::string_view what) override;
    std::optional<bool> OnkoKvadranttiKaytossa() const override {
        return kvadrantti_.KvadranttiKaytossa;
    }
    bool AsetaRegion(std::string_view axis, double value) override;
    std::optional<std::string> AnnaKvadrantinKoordinaatit(std::string_view axis) const override;

    // What the platform tells.
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_KeyDown(int keyCode) override;
    void Form_KeyUp(int keyCode) override;
    void Form_QueryUnload() override;
    void Kuva_MouseDown(const MouseEvent& mouse) override;
    void Kuva_MouseMove(const MouseEvent& mouse) override;
    void Kuva_MouseUp(const MouseEvent& mouse) override;
    void Kuva_MouseLost() override;

  private:
    /// The file in the window; nullptr when there is none.
    const Tiedosto* File() const;
    Kuva& Surface() { return form_->Surface(); }
    void AsetaKoko();

    // The steps of a redraw.
    void ReplaceMissingChannels(const Tiedosto& file);
    void UpdateTitle(const Tiedosto& file);
    void ClearSurface(const Tiedosto& file, const PlotArea& area);
    void DrawAxes(const Tiedosto& file, const PlotArea& area);
    void DropUndefinedGate();
    void DrawEvents(const Tiedosto& file, const PlotArea& area);
    void DrawRegions(const PlotArea& area);
    void DrawTitles(const Tiedosto& file, const PlotArea& area);
    void FinishDrawing();
    bool IsBeingResized() const;

    // What a polygon gesture asks.
    Kuva& EleenPinta() override { return Surface(); }
    PolygonView EleenNakyma() const override { return {ID, KanavaX, KanavaY, VainTaallaLuodut}; }
    Rgb EleenVari() const override { return tausta_.Line(); }
    void AsetaEle(bool running) override { EleKaynnissa = running; }
    bool OnkoEle() const override { return EleKaynnissa; }
    void PiirraIkkuna() override { Piirra(); }
    void PiirraKaikkiIkkunat() override;
    int16_t UudenRegioninPaikka() const override;
    void RegionMuuttui(int16_t slot) override;

    // What the statistics window asks.
    int16_t TilastonIkkuna() const override { return ID; }
    void PaivitaStatistiikka() override;
    GridTable TilastoKopio() override;
    void SuljeStatistiikka() override { AvaaTaiSuljeStatistics("close"); }
    bool OnkoTilastoEsikatselussa() const override { return StatPreviewissa; }
    void AsetaTilastoEsikatseluun(bool shown) override { StatPreviewissa = shown; }
    PlotData UsedData(const Tiedosto& file, int32_t step) const;
    GridTable Table(const Tiedosto& file, bool copy) const;

    void PressLeft(PixelPoint mouse);
    void PressRight(PixelPoint mouse);

    // The pop-up menus and what their items do.
    void ShowChannelList(int16_t axis);
    void ShowMenu();
    bool IsItemEnabled(int item) const;
    void ToggleQuadrant();
    void ToggleDensity();
    void ToggleRegionLines();
    void ToggleOnlyHere();
    void ToggleColours();
    void CopyImage();
    void SaveImage();
    void InvertBackground();
    void ToggleDotSize();
    void ToggleFastDraw();
    void TogglePreview();
    void ToggleStatistics();
    void SaveData();
    std::string AskSavePath(const FileQuestion& question);
    void SetFastDrawCaption();
    struct Item;
    static const std::array<Item, 18>& Items();
    static PopupTekstit CaptionsAtStart();

    PaaIkkuna& main_;
    std::unique_ptr<Form> form_;
    PopupTekstit tekstit_;
    bool ready_ = false;  // set up; a change of size before that is not the user's
    TiheysKuva density_;

    int16_t ID = 0;
    std::string Otsikko;  // title
    int16_t KanavaX = 1;  // channels on the axes
    int16_t KanavaY = 2;
    int16_t NaytettavaPopulaatio = 0;  // the gate: a population slot, 0 for all events
    Tausta tausta_;
    uint8_t PisteenKoko = 1;  // dots of 1 or 2 pixels
    bool MoniVari = true;     // colour dots by population
    bool Tiheys = false;      // density picture instead of dots
    int16_t TiheysResoluutio = 512;
    NopeaPiirto nopea_;
    bool AlueViivat = true;  // polygon outlines and names
    bool VainTaallaLuodut = false;
    Kvadrantti kvadrantti_;
    MonikulmioEle ele_{*this};
    TilastoKumppani tilasto_;
    Tilastot tilastot_;
    bool EleKaynnissa = false;  // a gesture runs here; statistics and autosave wait
    bool Previewissa = false;
    bool StatPreviewissa = false;
};

}  // namespace tessarin
