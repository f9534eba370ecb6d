// What a dot plot and a histogram have in common: a file, a gate, a surface, regions on it, a
// statistics window, and the pop-up items that both offer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Muuttujat.h"
#include "mainwindow/AnalysisWindow.h"
#include "plots/FastDraw.h"
#include "plots/PlotArea.h"
#include "plots/PopupCaptions.h"
#include "plots/RegionGesture.h"
#include "plots/StatisticsCompanion.h"
#include "sheets/SheetKeys.h"

namespace tessarin {

class PaaIkkuna;

class PlotWindow : public AnalysisWindow, protected RegionHost, protected StatisticsOwner {
  public:
    ~PlotWindow() override;

    // The window contract.
    void Alusta(int16_t id) override;
    void Piirra() override;
    void PiirraLykatty() override;
    void LatauksenJalkeen() override;
    int16_t AnnaID() const override { return ID; }
    void MenuValintaReaktio(int item) override;
    void CopyToClipboard() override;
    void UnloadWindow() override;
    Form& Lomake() override { return *form_; }
    std::optional<std::string> AnnaOtsikko() const override { return Otsikko; }
    bool NaytaPopulaatio(int16_t population) override;
    bool AsetaPiirtoMoodi(std::string_view mode) override;
    std::optional<bool> OnkoPreviewissa() const override { return Previewissa; }
    bool AsetaPreviewissa(bool shown) override;
    std::optional<bool> OnkoStatPreviewissa() const override { return StatPreviewissa; }
    bool AsetaStatPreviewissa(bool shown) override;
    bool AvaaTaiSuljeStatistics(std::string_view what) override;
    std::optional<bool> OnkoStatistiikkaKaytossa() const override { return tilasto_.OnkoAuki(); }
    std::optional<std::string> AnnaKokoStatistiikka(std::string_view format) const override;
    bool LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) override;
    std::optional<std::vector<std::string>> SaveInfo() override;
    bool LoadInfo(std::string_view line) override;

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

  protected:
    /// What a pop-up item cannot do without; it is disabled while that is missing.
    enum class Needs { kNothing, kFile, kPreviewPage };

    /// One item of the pop-up: its caption at start and what choosing it does; nullptr for a
    /// separator.
    struct PopupItem {
        std::string_view caption;
        void (PlotWindow::*action)() = nullptr;
        Needs needs = Needs::kNothing;
    };

    /// An action of a kind of plot, as the table of its items takes it.
    template <class Window>
    static auto Action(void (Window::*action)()) {
        return static_cast<void (PlotWindow::*)()>(action);
    }

    /// Where in the pop-up of every plot its common items stand.
    enum : int {
        kStatisticsItem = 1,
        kRegionLinesItem = 5,
        kOnlyHereItem = 6,
        kFastDrawItem = 14,
        kPreviewItem = 18,
    };

    /// How a kind of plot differs in words and place.
    struct PlotKind {
        std::string_view title;        ///< in the window's title: "Dot Plot"
        std::string_view region;       ///< what its regions are called in the pop-up: "region"
        std::string_view imageFilter;  ///< of the dialog that saves its picture
        std::span<const PopupItem> items;
        RememberedSize& size;  ///< last size of a window of this kind
    };

    PlotWindow(PaaIkkuna& main, const PlotKind& kind);

    // What each kind does its own way.
    /// Replaces channels left over from a file with more of them.
    virtual void ReplaceMissingChannels(const Tiedosto& file) = 0;
    /// What tools and other windows may ask of the picture, before it is drawn.
    virtual void CountEvents(const Tiedosto& /*file*/) {}
    /// All that stands on the cleared surface.
    virtual void DrawPlot(const Tiedosto& file, const PlotArea& area) = 0;
    virtual RegionEle& Ele() = 0;
    /// The axis whose channel list a right press at that place opens: 1 x, 2 y, 0 none.
    virtual int16_t AxisAt(const PlotArea& area, PixelPoint mouse) const = 0;
    virtual GridTable TableOf(const Tiedosto& file, bool copy) const = 0;
    /// Works out the statistics of the events in the window.
    virtual void ComputeStatistics(const Tiedosto& file) = 0;
    /// After a full redraw, once the statistics are up to date.
    virtual void RedrawFollowers() {}
    virtual bool DrawsWhileLoading() const { return false; }
    virtual bool ThinsWhileResized() const { return false; }
    /// The key lines of its settings, in order. The keys of the statistics window are among them
    /// while that is open.
    virtual std::vector<SheetKey> Keys() = 0;
    /// The background took a shade of grey from a sheet.
    virtual void TakeBackground(uint8_t shade) = 0;

    // Keys that both kinds have, where each wants them.
    void AddPlaceKeys(std::vector<SheetKey>& keys);
    SheetKey ShowKey() { return Lukuavain("show", NaytettavaPopulaatio); }
    void AddRegionKeys(std::vector<SheetKey>& keys);
    SheetKey FastDrawKey();
    SheetKey BackgroundKey();
    /// Print view and statistics, with so many items of the statistics window.
    void AddViewKeys(std::vector<SheetKey>& keys, int items);

    /// The file in the window; nullptr when there is none.
    const Tiedosto* File() const;
    Kuva& Surface() { return form_->Surface(); }
    bool IsBeingResized() const;
    /// Whether the mouse is where the title of the x axis stands.
    static bool IsUnderXAxis(const PlotArea& area, PixelPoint mouse);
    void DrawFastMark(const PlotArea& area);

    // Pop-up items that every plot has.
    void ToggleStatistics();
    void ToggleRegionLines();
    void ToggleOnlyHere();
    void CopyImage();
    void SaveImage();
    void InvertBackground();
    void ToggleFastDraw();
    void TogglePreview();

    // What a gesture asks.
    Kuva& EleenPinta() override { return Surface(); }
    Rgb EleenVari() const override { return tausta_.Line(); }
    void AsetaEle(bool running) override { EleKaynnissa = running; }
    bool OnkoEle() const override { return EleKaynnissa; }
    void PiirraIkkuna() override { Piirra(); }
    void PiirraKaikkiIkkunat() override;
    int16_t UudenRegioninPaikka() const override;

    // What the statistics window asks.
    int16_t TilastonIkkuna() const override { return ID; }
    void PaivitaStatistiikka() override;
    GridTable TilastoKopio() override;
    void SuljeStatistiikka() override { AvaaTaiSuljeStatistics("close"); }
    bool OnkoTilastoEsikatselussa() const override { return StatPreviewissa; }
    void AsetaTilastoEsikatseluun(bool shown) override { StatPreviewissa = shown; }

    virtual void PressLeft(PixelPoint mouse);

    PaaIkkuna& main_;
    PopupTekstit tekstit_;
    int16_t ID = 0;
    int16_t NaytettavaPopulaatio = 0;  // the gate: a population slot, 0 for all events
    Tausta tausta_;
    NopeaPiirto nopea_;
    bool AlueViivat = true;  // regions and their names
    bool VainTaallaLuodut = false;
    TilastoKumppani tilasto_;
    bool EleKaynnissa = false;  // a gesture runs here; statistics and autosave wait

  private:
    void AsetaKoko();
    std::string Title(std::string_view file) const;
    void DrawPicture(const Tiedosto& file);
    void ClearSurface(const Tiedosto& file, const PlotArea& area);
    void DropUndefinedGate();
    void FinishDrawing();
    void PressRight(PixelPoint mouse);
    void ShowChannelList(const Tiedosto& file, int16_t axis);
    void ShowMenu();
    bool IsItemEnabled(int item) const;
    void SetFastDrawCaption();
    void SetRegionCaptions();
    SheetKey FormKey(std::string key, double most, Twips (Form::*read)() const,
                     std::function<void(Form& form, Twips value)> set);
    SheetKey StatisticsPlaceKey(std::string_view axis, Twips (GridForm::*read)() const);

    PlotKind kind_;
    std::unique_ptr<Form> form_;
    bool ready_ = false;    // set up; a change of size before that is not the user's
    bool lykatty_ = false;  // the picture of the last redraw was put off
    std::string Otsikko;    // title
    bool Previewissa = false;
    bool StatPreviewissa = false;
};

}  // namespace tessarin
