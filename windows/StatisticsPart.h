// The statistics of a window: opening and closing their own window, and filling it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/WindowRoles.h"
#include "windows/FrameWindow.h"
#include "windows/Statistics.h"

namespace tessarin {

/// What a kind of window counts, and how it shows that.
class StatisticsContent {
  public:
    virtual ~StatisticsContent() = default;
    /// The items of its statistics window as they are at first.
    virtual std::vector<TilastoValinta> TilastonValinnat() const = 0;
    /// Works out the statistics of the file in the window.
    virtual void LaskeTilasto(const Tiedosto& file) = 0;
    /// Lays out what was worked out; with `copy` a header row has its value in one cell only.
    virtual GridTable TilastonTaulukko(const Tiedosto& file, const Statistics& window,
                                       bool copy) const = 0;
    /// One number of what was worked out; see `StatisticsOwner::AnnaStatistiikka`.
    virtual std::optional<double> TilastonLuku(std::string_view area,
                                               std::string_view kind) const = 0;
};

/// A part of windows with statistics. The statistics window stands in `IkkunatStat`, in the slot
/// of its owner.
class StatisticsPart : public StatisticsOwner, public StatisticsTableOwner, private StatisticsHost {
  public:
    StatisticsPart(FrameWindow& window, StatisticsContent& content)
        : window_(window), content_(content) {}

    // StatisticsOwner and StatisticsTableOwner.
    void AvaaTaiSuljeStatistics(std::string_view what) override;
    bool OnkoStatistiikkaKaytossa() const override { return Avoinna() != nullptr; }
    std::optional<double> AnnaStatistiikka(std::string_view area,
                                           std::string_view kind) const override {
        return content_.TilastonLuku(area, kind);
    }
    std::string AnnaKokoStatistiikka(std::string_view format) const override;
    void LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) override;

    /// Computes and shows the table anew, if its window is open.
    void PaivitaStatistiikka() override;
    /// The owner goes, and its statistics window with it.
    void Sulje() { VaihdaIkkuna(false); }

    /// "Open statistics", or the opposite.
    WindowMenuItem Item();
    /// Open or closed, and while it is open its place and which of `items` are on.
    void AddKeys(SheetTable& keys, int items);

  private:
    /// The open window; nullptr when there is none.
    Statistics* Avoinna() const;
    void VaihdaIkkuna(bool open);
    SheetKey EnabledKey();
    SheetFamily PlaceKey(std::string_view axis, Twips (FramePlace::*read)() const);
    SheetFamily ColumnKey(int items);

    // StatisticsHost.
    int16_t TilastonIkkuna() const override { return window_.AnnaID(); }
    const Form& OmistajanLomake() const override { return window_.Lomake(); }
    GridTable TilastoKopio() override;
    void SuljeStatistiikka() override { AvaaTaiSuljeStatistics("close"); }
    bool OnkoTilastoEsikatselussa() const override;
    void AsetaTilastoEsikatseluun(bool shown) override;

    FrameWindow& window_;
    StatisticsContent& content_;
};

}  // namespace tessarin
