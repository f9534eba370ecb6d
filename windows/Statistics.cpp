#include "windows/Statistics.h"

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/Popups.h"

namespace tessarin {
namespace {

constexpr int32_t kFrameWidth = 100;   // twips beside the columns
constexpr int32_t kFrameHeight = 380;  // twips above and below the rows

}  // namespace

Statistics::Statistics(PaaIkkuna& main, StatisticsHost& owner, std::vector<TilastoValinta> items)
    : main_(main),
      owner_(owner),
      valikko_(std::move(items)),
      form_(main.Services().mainForm.MakeChild(*this)),
      place_(*form_),
      grid_(form_->Controls().MakeTable({"MSFlexGrid1", "Statistics"})) {
    form_->Surface().SetVisible(false);
    grid_->onRightPress = [this] { ShowMenu(); };
    grid_->onColumnWidth = [this] { FitTo(table_); };
    form_->Show();
    Form_Resize(false);
}

Statistics::~Statistics() {
    main_.UnohdaKopioitava(this);
}

bool Statistics::OnkoNakyvissa(int item) const {
    return item >= 1 && item <= static_cast<int>(valikko_.size()) &&
           valikko_[static_cast<std::size_t>(item) - 1].Nakyvissa;
}

void Statistics::AsetaNakyvyys(int item, int value) {
    if (item >= 1 && item <= static_cast<int>(valikko_.size()) && (value == 0 || value == 1)) {
        valikko_[static_cast<std::size_t>(item) - 1].Nakyvissa = value == 1;
    }
}

void Statistics::StatistiikkaMenuValintaReaktio(int item) {
    const int last = static_cast<int>(valikko_.size());
    if (item == 0) {
        main_.Services().clipboard.Clear();
        CopyToClipboard();
    } else if (item == last) {
        owner_.AsetaTilastoEsikatseluun(!owner_.OnkoTilastoEsikatselussa());
        main_.PiirraKaikki();
    } else if (item > 0 && item < last) {
        AsetaNakyvyys(item, OnkoNakyvissa(item) ? 0 : 1);
        bool any = false;
        for (const TilastoValinta& choice : valikko_) {
            any = any || choice.Nakyvissa;
        }
        if (!any) {
            AsetaNakyvyys(item, 1);  // the last visible item cannot be turned off
        }
        owner_.PaivitaStatistiikka();
        if (main_.OnkoEsikatselu()) {
            main_.Kumppanit().preview->Piirra();
        }
    }
}

void Statistics::CopyToClipboard() {
    main_.Services().clipboard.SetText(TaulukonTeksti(owner_.TilastoKopio()));
}

int Statistics::HeaderRows() const {
    int rows = 0;
    for (const TilastoValinta& choice : valikko_) {
        rows += choice.Nakyvissa && choice.Laji == TilastoLaji::kHeader ? 1 : 0;
    }
    return rows;
}

std::string Statistics::OneLine(bool heads) const {
    const auto headRow = static_cast<std::size_t>(HeaderRows());
    std::string text;
    for (std::size_t r = headRow + 1; r < table_.rows.size(); ++r) {
        const std::vector<std::string>& cells = table_.rows[r].cells;
        for (std::size_t c = 1; c < cells.size(); ++c) {
            if (heads && !cells[0].empty()) {
                text += "[W " + std::to_string(AnnaID()) + "] " + cells[0] + " " +
                        table_.rows[headRow].cells[c] + "\t";
            } else if (!heads && !cells[0].empty() && !cells[c].empty()) {
                text += cells[c] + "\t";
            }
        }
    }
    return text;
}

std::string Statistics::AnnaKokoStatistiikka(std::string_view format) const {
    if (format == "1-rivinen-otsikko" || format == "1-rivinen-tieto") {
        return OneLine(format == "1-rivinen-otsikko");
    }
    return format == "monirivinen" ? TaulukonTeksti(table_) : "";
}

void Statistics::Nayta(const std::string& caption, const GridTable& table) {
    table_ = table;
    form_->SetCaption(caption);
    grid_->SetTable(table);
    FitTo(table);
}

// The outer width for a table. Columns that the user drew wider or narrower count as they are now,
// as long as the window does not leave the area for them.
Twips Statistics::OuterWidthFor(const GridTable& table) const {
    int32_t twips = kFrameWidth;
    int own = 1;  // pixels of the columns as they come from the plot
    for (const Twips column : table.columnWidths) {
        twips += column.count;
        own += PixelsFromTwips(column);
    }
    const int room = form_->AreaWidth() - PixelsFromTwips(form_->Left()) - PixelsFromTwips({twips});
    const int widening = table.rows.empty() ? 0 : grid_->NeededWidth() - own;
    return {twips + TwipsFromPixels(std::min(widening, std::max(0, room))).count};
}

// The size follows the table, which changes whenever its plot is drawn: that is no reason to bring
// back a window that the user put away, or to undo the size that he gave it.
void Statistics::FitTo(const GridTable& table) {
    if (!form_->HasOwnSize()) {
        return;
    }
    const Fit asked{OuterWidthFor(table),
                    {kGridRowHeight.count * table.Rows() + kFrameHeight},
                    grid_->NeededWidth(),
                    grid_->NeededHeight()};
    if (asked == asked_ && form_->OuterWidth() == fittedWidth_ &&
        form_->OuterHeight() == fittedHeight_) {
        return;
    }
    place_.SetOuterSize(asked.width, asked.height);
    // Title and edges are not equally thick everywhere, and the scroll bars would hide a whole row
    // for the sake of a few pixels.
    const int moreWidth = std::max(0, asked.neededWidth - form_->ScaleWidth());
    const int moreHeight = std::max(0, asked.neededHeight - form_->ScaleHeight());
    constexpr int kFewPixels = PixelsFromTwips(kGridRowHeight);
    if (moreWidth < kFewPixels && moreHeight < kFewPixels) {
        place_.SetOuterSize({asked.width.count + TwipsFromPixels(moreWidth).count},
                            {asked.height.count + TwipsFromPixels(moreHeight).count});
    }
    if (fittedWidth_ == Twips()) {
        place_.FindRoomBeside(owner_.OmistajanLomake());
    }
    asked_ = asked;
    fittedWidth_ = form_->OuterWidth();
    fittedHeight_ = form_->OuterHeight();
}

void Statistics::Form_Activate() {
    main_.AsetaKopioitava(this);
}

void Statistics::Form_QueryUnload() {
    const auto alive = IkkunatStat(AnnaID()).Window;  // until this call returns
    owner_.SuljeStatistiikka();
}

void Statistics::Form_Resize(bool /*byUser*/) {
    grid_->SetPlace({0, 0, form_->ScaleWidth(), form_->ScaleHeight()});
}

void Statistics::Form_MouseMove() {
    main_.HiiriMuualla();
}

void Statistics::ShowMenu() {
    const auto alive = IkkunatStat(AnnaID()).Window;
    valikko_.back().Teksti = owner_.OnkoTilastoEsikatselussa() ? "Don't show in print preview page"
                                                               : "Show in print preview page";
    std::vector<PopupEntry> entries;
    for (const TilastoValinta& choice : valikko_) {
        entries.push_back({choice.Teksti, true, choice.Nakyvissa});
    }
    entries.back().enabled = main_.Kumppanit().preview != nullptr;
    const int item = NaytaStatMenu(main_, AnnaID(), entries);
    if (item >= 0) {
        StatistiikkaMenuValintaReaktio(item);
        main_.TalletaNakyma("Autosave");
    }
}

std::string TaulukonTeksti(const GridTable& table) {
    std::string text;
    for (const GridRow& row : table.rows) {
        text += text.empty() && &row == &table.rows.front() ? "" : "\n";
        for (std::size_t c = 0; c < row.cells.size(); ++c) {
            text += (c == 0 ? "" : "\t") + row.cells[c];
        }
    }
    return text;
}

}  // namespace tessarin
