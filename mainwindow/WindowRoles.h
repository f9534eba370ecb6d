// What a kind of window may have as a whole or lack as a whole: its roles in the contract.
//
// A kind that has a role gives it from the window contract, any other gives null, so that a tool's
// line that needs it is a fault instead of doing nothing without a word. Words that select ("x",
// "open", "fast") are short and small; those that a role does not know are ignored.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tessarin {

/// Shows the members of one population only.
class GateOwner {
  public:
    virtual ~GateOwner() = default;
    /// `NaytaPopulaatio` means show a population: gates on that slot, 0 for all events.
    virtual void NaytaPopulaatio(int16_t population) = 0;
    /// `Portti` means gate: that slot.
    virtual int16_t Portti() const = 0;
};

/// Shows channels of a file on axes.
class ChannelOwner {
  public:
    virtual ~ChannelOwner() = default;
    /// Number of the channel on an axis, as text; empty for an axis that the kind has not.
    virtual std::string AnnaKanava(std::string_view axis) const = 0;
    virtual void AsetaKanava(std::string_view axis, int16_t channel) = 0;
    /// "fast" or "full".
    virtual void AsetaPiirtoMoodi(std::string_view mode) = 0;
};

/// Computes statistics and shows them in a window of their own.
class StatisticsOwner {
  public:
    virtual ~StatisticsOwner() = default;
    /// "open", "close"; any other word toggles.
    virtual void AvaaTaiSuljeStatistics(std::string_view what) = 0;
    virtual bool OnkoStatistiikkaKaytossa() const = 0;
    /// `KertooAuki` means tells that it is open: whether tools that ask are told so.
    virtual bool KertooAuki() const { return true; }
    /// One number of those last computed: area is a row number or a quadrant ("ul", "ur", "ll",
    /// "lr"), kind such as "number" or "xmean". Nothing for words that the kind does not know.
    virtual std::optional<double> AnnaStatistiikka(std::string_view area,
                                                   std::string_view kind) const = 0;
};

/// Gives its statistics table as text and lets tools move it.
class StatisticsTableOwner {
  public:
    virtual ~StatisticsTableOwner() = default;
    /// The open table as text; see `Statistics::AnnaKokoStatistiikka`. Empty while it is closed.
    virtual std::string AnnaKokoStatistiikka(std::string_view format) const = 0;
    /// Moves the open statistics window along "x" or "y", in twips.
    virtual void LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) = 0;
};

/// Has a cross that divides its plot into quadrants.
class QuadrantOwner {
  public:
    virtual ~QuadrantOwner() = default;
    /// "open", "close"; any other word toggles.
    virtual void NaytaTaiPiilotaKvadrantti(std::string_view what) = 0;
    virtual bool OnkoKvadranttiKaytossa() const = 0;
    /// Moves the cross along "x" or "y" to a grid value, y from the top.
    virtual void AsetaRegion(std::string_view axis, double value) = 0;
    /// Place of the cross along "x" or "y" with one leading blank, y from the bottom.
    virtual std::string AnnaKvadrantinKoordinaatit(std::string_view axis) const = 0;
};

/// Counts events into bins along a channel. `Laheta` means send: what windows made of histograms
/// take from one.
class BinOwner {
  public:
    virtual ~BinOwner() = default;
    /// The bins as last drawn, from bin 0; empty before that. Good until the next redraw.
    virtual std::span<const double> LahetaHistogram() const = 0;
    /// Range, scale, name and number of the channel; 0, False and empty without a file.
    virtual int32_t LahetaMax() const = 0;
    virtual bool LahetaLog() const = 0;
    virtual std::string LahetaNimi() const = 0;
    virtual int16_t LahetaKanavaID() const = 0;
    /// Top of the y scale as a count; 0 for automatic.
    virtual int32_t LahetaScale() const = 0;
    /// Of the highest bin within a marker: "paikka" its place on the grid, "abskorkeus" its count,
    /// "suhtkorkeus" that in ten-thousandths of the y scale. 0 for another word.
    virtual int32_t AnnaHistonKorkeinKohta(std::string_view mode, int16_t marker) const = 0;
    /// Height of the bin at grid place `x` in ten-thousandths of the y scale, 0 outside the bins;
    /// `x` becomes the bin.
    virtual int32_t AnnaHistonKorkeus(int32_t& x) const = 0;
};

/// Has curves laid over its bins.
class CurveOwner {
  public:
    virtual ~CurveOwner() = default;
    /// Height of the sum of curves at grid place `x`, in ten-thousandths of the plot's height.
    virtual int32_t AnnaSummanKorkeus(double x) const = 0;
    /// `SiirraKayraa` means move the curve: sets "korkeus" (height), "nimi" (name), "paikka"
    /// (place), "tasanne" (plateau), "hajontavasen" or "hajontaoikea" (deviation left, right).
    /// False for a number that no curve has, or text that is no number where one is needed.
    virtual bool SiirraKayraa(std::string_view what, int16_t curve, const std::string& value) = 0;
    /// "luo" makes a curve of that name, "poista" removes it. False for a number that no curve has.
    virtual bool LuoTaiPoista(std::string_view what, int16_t curve, const std::string& name) = 0;
};

/// Shows a cloud in space.
class SpaceView {
  public:
    virtual ~SpaceView() = default;
    /// Turns the picture about "x" or "y" by so many degrees.
    virtual void MuutaRotaatiota(std::string_view axis, double degrees) = 0;
    /// Brings the viewer nearer by so much.
    virtual void MuutaEtaisyytta(double amount) = 0;
    /// `Nollaa` means put to zero: the turn and the distance.
    virtual void Nollaa() = 0;
    /// Background picture: "paalla" (on) or "poissa" (off).
    virtual void AsetaTaustaKuvanTila(std::string_view state) = 0;
};

/// Is made of the bins of other windows, and is redrawn when one of them was.
class SourceOwner {
  public:
    virtual ~SourceOwner() = default;
    /// Line `line` shows histogram window `window`, 0 for none. False for a line that the kind has
    /// not.
    virtual bool AsetaHistogram(int16_t line, int16_t window) = 0;
};

/// Can stand on the print preview page.
class PageItem {
  public:
    virtual ~PageItem() = default;
    virtual bool OnkoPreviewissa() const = 0;
    virtual void AsetaPreviewissa(bool shown) = 0;
    /// The same for its statistics; kinds without any are never there.
    virtual bool OnkoStatPreviewissa() const { return false; }
    virtual void AsetaStatPreviewissa(bool /*shown*/) {}
};

}  // namespace tessarin
