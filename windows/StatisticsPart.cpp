#include "windows/StatisticsPart.h"

#include "core/Muuttujat.h"

namespace tessarin {

Statistics* StatisticsPart::Avoinna() const {
    const int16_t id = window_.AnnaID();
    return IkkunatStat.Holds(id) && IkkunatStat(id).Used
               ? static_cast<Statistics*>(IkkunatStat(id).Window.get())
               : nullptr;
}

void StatisticsPart::VaihdaIkkuna(bool open) {
    const int16_t id = window_.AnnaID();
    const auto closing = std::move(IkkunatStat(id).Window);
    IkkunatStat(id) = Ikkuna();
    if (open) {
        IkkunatStat(id).Window = std::make_shared<Statistics>(
            window_.Main(), static_cast<StatisticsHost&>(*this), content_.TilastonValinnat());
        IkkunatStat(id).Used = true;
        IkkunatStat(id).Type = Ikkunat(id).Type;
    }
}

void StatisticsPart::AvaaTaiSuljeStatistics(std::string_view what) {
    const bool open = what == "open" || (what != "close" && Avoinna() == nullptr);
    if (open == (Avoinna() != nullptr)) {
        return;
    }
    VaihdaIkkuna(open);
    if (!Loading) {
        PaivitaStatistiikka();
    }
}

void StatisticsPart::PaivitaStatistiikka() {
    const Tiedosto* file = window_.File();
    Statistics* shown = Avoinna();
    if (file == nullptr || shown == nullptr) {
        return;
    }
    content_.LaskeTilasto(*file);
    shown->Nayta("(" + std::to_string(window_.AnnaID()) + ") Statistics: " + file->FileName,
                 content_.TilastonTaulukko(*file, *shown, false));
}

GridTable StatisticsPart::TilastoKopio() {
    PaivitaStatistiikka();
    const Tiedosto* file = window_.File();
    const Statistics* shown = Avoinna();
    return file == nullptr || shown == nullptr ? GridTable{}
                                               : content_.TilastonTaulukko(*file, *shown, true);
}

std::string StatisticsPart::AnnaKokoStatistiikka(std::string_view format) const {
    const Statistics* shown = Avoinna();
    return shown == nullptr ? "" : shown->AnnaKokoStatistiikka(format);
}

void StatisticsPart::LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) {
    Statistics* shown = Avoinna();
    if (shown != nullptr && axis == "x") {
        shown->Paikka().SetLeft({place});
    } else if (shown != nullptr && axis == "y") {
        shown->Paikka().SetTop({place});
    }
}

bool StatisticsPart::OnkoTilastoEsikatselussa() const {
    return window_.Page() != nullptr && window_.Page()->OnkoStatPreviewissa();
}

void StatisticsPart::AsetaTilastoEsikatseluun(bool shown) {
    if (window_.Page() != nullptr) {
        window_.Page()->AsetaStatPreviewissa(shown);
    }
}

WindowMenuItem StatisticsPart::Item() {
    return {Avoinna() == nullptr ? "Open statistics" : "Close statistics",
            [this] { AvaaTaiSuljeStatistics("toggle"); }};
}

}  // namespace tessarin
