// The window contract: all that the main window and the tools know of an analysis window.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Ikkuna.h"
#include "mainwindow/CopySource.h"
#include "platform/Form.h"

namespace tessarin {

/// One analysis window. Selectors are short lower-case words ("x", "open", "fast"); a window
/// ignores those that it does not know.
///
/// The operations of the second group belong to some kinds only. Where a kind lacks one, its
/// answer is nothing (or false), which a caller can tell from an operation that did nothing.
class AnalysisWindow : public WindowObject, public FormEvents, public CopySource {
  public:
    // Every kind has these.

    /// Sets the window up in its slot; called once, right after it was made and shown.
    virtual void Alusta(int16_t id) = 0;
    /// Redraws the window. Draws nothing while it has no file or a sheet is being loaded.
    virtual void Piirra() = 0;
    /// `PiirraLykatty` means draw what was put off: the picture that the last `Piirra` left out
    /// because `LykkaaPiirto` was True then. Until then the surface is that of an earlier redraw;
    /// numbers, tables and titles are of the last one. Whoever puts pictures off has them drawn
    /// before anything that they show changes.
    virtual void PiirraLykatty() {}
    /// Adapts the window to a file that was just put into it.
    virtual void LatauksenJalkeen() = 0;
    /// Item `item`, from 1, of the window's pop-up menu was chosen.
    virtual void MenuValintaReaktio(int item) = 0;
    /// Frees the slot and closes the window; the caller keeps the object alive until it returns.
    virtual void UnloadWindow() = 0;
    /// `Lomake` means form: the child window that shows this one.
    virtual Form& Lomake() = 0;

    // Some kinds have these.

    /// The title without `SelectedPrefix`; nothing for kinds that cannot be selected.
    virtual std::optional<std::string> AnnaOtsikko() const { return std::nullopt; }
    /// Gates the window on a population slot, 0 for all events.
    virtual bool NaytaPopulaatio(int16_t /*population*/) { return false; }
    /// Number of the channel on axis "x" or "y"; empty text for another word.
    virtual std::optional<std::string> AnnaKanava(std::string_view /*axis*/) const {
        return std::nullopt;
    }
    virtual bool AsetaKanava(std::string_view /*axis*/, int16_t /*channel*/) { return false; }
    /// "fast" or "full".
    virtual bool AsetaPiirtoMoodi(std::string_view /*mode*/) { return false; }
    /// Whether the plot, and its statistics box, stand on the print preview page.
    virtual std::optional<bool> OnkoPreviewissa() const { return std::nullopt; }
    virtual bool AsetaPreviewissa(bool /*shown*/) { return false; }
    virtual std::optional<bool> OnkoStatPreviewissa() const { return std::nullopt; }
    virtual bool AsetaStatPreviewissa(bool /*shown*/) { return false; }
    /// Statistics window: "open", "close", any other word toggles.
    virtual bool AvaaTaiSuljeStatistics(std::string_view /*what*/) { return false; }
    virtual std::optional<bool> OnkoStatistiikkaKaytossa() const { return std::nullopt; }
    /// One number of the statistics last computed: area "ul", "ur", "ll", "lr" or a row number,
    /// kind "number", "vis", "xmean", "ymean", "xgeomean", "ygeomean" or "cv". Nothing for other
    /// words.
    virtual std::optional<double> AnnaStatistiikka(std::string_view /*area*/,
                                                   std::string_view /*kind*/) const {
        return std::nullopt;
    }
    /// The open statistics table as text; see `Statistics::AnnaKokoStatistiikka`.
    virtual std::optional<std::string> AnnaKokoStatistiikka(std::string_view /*format*/) const {
        return std::nullopt;
    }
    /// Moves the open statistics window along "x" or "y", in twips.
    virtual bool LiikutaStatistiikkaLaatikkoa(std::string_view /*axis*/, int32_t /*place*/) {
        return false;
    }
    /// Quadrant cross: "open", "close", any other word toggles.
    virtual bool NaytaTaiPiilotaKvadrantti(std::string_view /*what*/) { return false; }
    virtual std::optional<bool> OnkoKvadranttiKaytossa() const { return std::nullopt; }
    /// Moves the cross along "x" or "y" to a grid value, y from the top.
    virtual bool AsetaRegion(std::string_view /*axis*/, double /*value*/) { return false; }
    /// Place of the cross along "x" or "y" with one leading blank, y from the bottom.
    virtual std::optional<std::string> AnnaKvadrantinKoordinaatit(std::string_view /*axis*/) const {
        return std::nullopt;
    }
    /// The settings as key lines of a sheet, such as "axis.x:3"; which window they belong to is
    /// for the sheet to say.
    virtual std::optional<std::vector<std::string>> SaveInfo() { return std::nullopt; }
    /// Takes one whole line of a sheet, "window.5.axis.x:3"; one that says nothing here changes
    /// nothing.
    virtual bool LoadInfo(std::string_view /*line*/) { return false; }
    // `Laheta` means send: what windows that are made of histograms take from one.
    /// The bins as last drawn, from bin 0; empty before that.
    virtual std::optional<std::vector<double>> LahetaHistogram() const { return std::nullopt; }
    /// Range, scale and name of the channel; 0, False and empty without a file.
    virtual std::optional<int32_t> LahetaMax() const { return std::nullopt; }
    virtual std::optional<bool> LahetaLog() const { return std::nullopt; }
    virtual std::optional<std::string> LahetaNimi() const { return std::nullopt; }
    virtual std::optional<int16_t> LahetaKanavaID() const { return std::nullopt; }
    /// Top of the y scale as a count; 0 for automatic.
    virtual std::optional<int32_t> LahetaScale() const { return std::nullopt; }
    /// Of the highest bin within a marker: "paikka" its place on the grid, "abskorkeus" its count,
    /// "suhtkorkeus" that in ten-thousandths of the y scale. 0 for another word.
    virtual std::optional<int32_t> AnnaHistonKorkeinKohta(std::string_view /*mode*/,
                                                          int16_t /*marker*/) const {
        return std::nullopt;
    }
    /// Height of the bin at grid place `x` in ten-thousandths of the y scale, 0 outside the bins;
    /// `x` becomes the bin.
    virtual std::optional<int32_t> AnnaHistonKorkeus(int32_t& /*x*/) const { return std::nullopt; }
    /// Height of the sum of curves at grid place `x`, in ten-thousandths of the plot's height.
    virtual std::optional<int32_t> AnnaSummanKorkeus(double /*x*/) const { return std::nullopt; }
    /// `SiirraKayraa` means move the curve: sets "korkeus" (height), "nimi" (name), "paikka"
    /// (place), "tasanne" (plateau), "hajontavasen" or "hajontaoikea" (deviation left, right).
    virtual bool SiirraKayraa(std::string_view /*what*/, int16_t /*curve*/,
                              const std::string& /*value*/) {
        return false;
    }
    /// "luo" makes a curve of that name, "poista" removes it.
    virtual bool LuoTaiPoista(std::string_view /*what*/, int16_t /*curve*/,
                              const std::string& /*name*/) {
        return false;
    }
    /// Turns the picture about "x" or "y" by so many degrees.
    virtual bool MuutaRotaatiota(std::string_view /*axis*/, double /*degrees*/) { return false; }
    virtual bool MuutaEtaisyytta(double /*distance*/) { return false; }
    /// `Nollaa` means put to zero: the turn and the distance.
    virtual bool Nollaa() { return false; }
    /// Background picture: "paalla" (on) or "poissa" (off).
    virtual bool AsetaTaustaKuvanTila(std::string_view /*state*/) { return false; }
    /// Slot `slot` of the window shows histogram window `window`.
    virtual bool AsetaHistogram(int16_t /*slot*/, int16_t /*window*/) { return false; }
};

}  // namespace tessarin
