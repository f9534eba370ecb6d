#include "windows/RegionPart.h"

#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"

namespace tessarin {

RegionView RegionPart::EleenNakyma() const {
    RegionView view = site_.Regionit();
    view.window = window_.AnnaID();
    view.VainTaallaLuodut = VainTaallaLuodut;
    return view;
}

void RegionPart::PiirraKaikkiIkkunat() {
    window_.Main().PiirraKaikki();
}

int16_t RegionPart::UudenRegioninPaikka() const {
    return window_.Main().Paneeli().ValittuPopulaatio();
}

void RegionPart::Piirra(const MouseEvent& mouse) {
    if (window_.File() != nullptr) {
        ele_->Piirra(mouse.button, {mouse.x, mouse.y});
    }
}

bool RegionPart::Tartu(PixelPoint mouse) {
    return AlueViivat && window_.File() != nullptr && ele_->Tartu(mouse);
}

void RegionPart::Liiku(PixelPoint mouse, bool quiet) {
    window_.Surface().SetMousePointer(UusiRegionPaalla ? MousePointer::kCrosshair
                                                       : MousePointer::kNormal);
    if (ele_->OnkoPaalla()) {
        ele_->Liiku(mouse);
    } else if (!UusiRegionPaalla && !quiet && AlueViivat && window_.File() != nullptr) {
        ele_->Korosta(mouse);
    }
}

WindowMenuItem RegionPart::LinesItem() {
    const std::string word(kind_.word);
    return window_.FlagItem(AlueViivat, "Hide " + word + " lines", "Show " + word + " lines");
}

WindowMenuItem RegionPart::OnlyHereItem() {
    const std::string word(kind_.word);
    return window_.FlagItem(VainTaallaLuodut, "Show all " + word + "s",
                            "Show only " + word + "s created here");
}

void RegionPart::AddKeys(SheetTable& keys) {
    keys.Add(Lippuavain("regionlines.show", AlueViivat));
    keys.Add(Lippuavain("regionlines.showcreatedhere", VainTaallaLuodut));
}

}  // namespace tessarin
