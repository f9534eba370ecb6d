// The statistics of a dot plot: computing, the table, and what tools read of them.
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "plots/DotPlot.h"
#include "plots/DotPlotTable.h"

namespace tessarin {
namespace {

const TilastoRivi* Area(const Tilastot& tilastot, std::string_view area) {
    if (area == "ul") {
        return &tilastot.KvadranttiYV;
    }
    if (area == "ur") {
        return &tilastot.KvadranttiYO;
    }
    if (area == "ll") {
        return &tilastot.KvadranttiAV;
    }
    if (area == "lr") {
        return &tilastot.KvadranttiAO;
    }
    const auto row = ParseWholeNumber(area);
    return row && *row >= 0 && *row <= kPopulationSlots
               ? &tilastot.Rivit[static_cast<std::size_t>(*row)]
               : nullptr;
}

std::optional<double> Kind(const TilastoRivi& row, std::string_view kind) {
    if (kind == "number") {
        return row.Lukumaara;
    }
    if (kind == "vis") {
        return row.Osuus * 100;
    }
    if (kind == "xmean") {
        return row.XKeski;
    }
    if (kind == "ymean") {
        return row.YKeski;
    }
    if (kind == "xgeomean") {
        return row.XGeo;
    }
    if (kind == "ygeomean") {
        return row.YGeo;
    }
    return std::nullopt;
}

}  // namespace

PlotData DotPlot::UsedData(const Tiedosto& file, int32_t step) const {
    return {file, KanavaX, KanavaY, NaytettavaPopulaatio, step};
}

void DotPlot::PaivitaStatistiikka() {
    const Tiedosto* file = File();
    Statistics* window = tilasto_.Ikkuna();
    if (file == nullptr || window == nullptr) {
        return;
    }
    const PlotData data = UsedData(*file, nopea_.PiirtoVali);
    LaskeTilastot(data, tilastot_);
    if (kvadrantti_.KvadranttiKaytossa) {
        LaskeKvadrantit(data, kvadrantti_, tilastot_);
    }
    window->Nayta("(" + std::to_string(ID) + ") Statistics: " + file->FileName,
                  Table(*file, false));
}

GridTable DotPlot::Table(const Tiedosto& file, bool copy) const {
    return DotPlotTaulukko(
        *tilasto_.Ikkuna(), file, tilastot_,
        {KanavaX, KanavaY, nopea_.FastDraw, kvadrantti_.KvadranttiKaytossa, copy});
}

GridTable DotPlot::TilastoKopio() {
    PaivitaStatistiikka();
    const Tiedosto* file = File();
    return file == nullptr ? GridTable{} : Table(*file, true);
}

std::optional<double> DotPlot::AnnaStatistiikka(std::string_view area,
                                                std::string_view kind) const {
    const TilastoRivi* row = Area(tilastot_, area);
    return row == nullptr ? std::nullopt : Kind(*row, kind);
}

std::optional<std::string> DotPlot::AnnaKokoStatistiikka(std::string_view format) const {
    const Statistics* window = tilasto_.Ikkuna();
    return window == nullptr ? "" : window->AnnaKokoStatistiikka(format);
}

bool DotPlot::LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) {
    if (Statistics* window = tilasto_.Ikkuna()) {
        GridForm& form = window->Lomake();
        if (axis == "x") {
            form.SetPlace({place}, form.Top());
        } else if (axis == "y") {
            form.SetPlace(form.Left(), {place});
        }
    }
    return true;
}

}  // namespace tessarin
