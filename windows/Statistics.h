// The window that shows a plot's statistics table. It computes nothing: the plot fills it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Ikkuna.h"
#include "mainwindow/CopySource.h"
#include "platform/Form.h"
#include "windows/FramePlace.h"
#include "windows/StatisticsItems.h"

namespace tessarin {

class PaaIkkuna;

/// What the statistics window asks of the window that it belongs to.
class StatisticsHost {
  public:
    virtual ~StatisticsHost() = default;
    virtual int16_t TilastonIkkuna() const = 0;
    /// `OmistajanLomake` means the owner's form.
    virtual const Form& OmistajanLomake() const = 0;
    /// Computes and shows the table anew.
    virtual void PaivitaStatistiikka() = 0;
    /// The table as it is copied: a header row has its value in one cell only.
    virtual GridTable TilastoKopio() = 0;
    virtual void SuljeStatistiikka() = 0;
    virtual bool OnkoTilastoEsikatselussa() const = 0;
    virtual void AsetaTilastoEsikatseluun(bool shown) = 0;
};

class Statistics : public WindowObject, public CopySource, private FormEvents {
  public:
    /// Makes the window for its owner, which must outlive it, and shows it. `items` is what it can
    /// show.
    Statistics(PaaIkkuna& main, StatisticsHost& owner, std::vector<TilastoValinta> items);
    ~Statistics() override;

    int16_t AnnaID() const override { return owner_.TilastonIkkuna(); }
    /// Whether item n, from 1, is on; False for other numbers.
    bool OnkoNakyvissa(int item) const;
    /// 1 turns an item on, 0 off; other values and items do nothing.
    void AsetaNakyvyys(int item, int value);
    /// Item `item` of the pop-up menu was chosen; 0 is "Copy to clipboard".
    void StatistiikkaMenuValintaReaktio(int item);
    /// Puts the table on the clipboard as text, which the caller has cleared.
    void CopyToClipboard() override;
    /// One text of the shown table for reports: "1-rivinen-otsikko" (heads of one wide line),
    /// "1-rivinen-tieto" (its values) or "monirivinen" (all cells); empty for another word.
    std::string AnnaKokoStatistiikka(std::string_view format) const;

    /// Shows another table; the window takes the size that it needs.
    void Nayta(const std::string& caption, const GridTable& table);
    Bitmap Picture() const { return grid_->Picture(); }
    /// Where it stands. A window that nobody has placed looks for room beside its owner when it has
    /// its first table.
    FramePlace& Paikka() { return place_; }

  private:
    void Form_Activate() override;
    void Form_QueryUnload() override;
    void Form_Resize(bool byUser) override;
    void Form_MouseMove() override;
    void ShowMenu();

    int HeaderRows() const;
    std::string OneLine(bool heads) const;
    Twips OuterWidthFor(const GridTable& table) const;
    void FitTo(const GridTable& table);

    PaaIkkuna& main_;
    StatisticsHost& owner_;
    std::vector<TilastoValinta> valikko_;
    GridTable table_;
    std::unique_ptr<Form> form_;
    FramePlace place_;
    std::unique_ptr<Table> grid_;
    // What the last change of the size was for, and what came of it.
    struct Fit {
        Twips width;
        Twips height;
        int neededWidth = 0;
        int neededHeight = 0;
        friend bool operator==(const Fit&, const Fit&) = default;
    };
    Fit asked_;
    Twips fittedWidth_;
    Twips fittedHeight_;
};

/// All cells, a tab between cells and a line feed between rows.
std::string TaulukonTeksti(const GridTable& table);

}  // namespace tessarin
