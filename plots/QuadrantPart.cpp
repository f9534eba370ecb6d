#include "plots/QuadrantPart.h"

#include "core/Numbers.h"

namespace tessarin {

void QuadrantPart::NaytaTaiPiilotaKvadrantti(std::string_view what) {
    if (cross_.NaytaTaiPiilota(what)) {
        koskettu_ = true;
        window_.Piirra();
    }
}

void QuadrantPart::AsetaRegion(std::string_view axis, double value) {
    if (axis == "x" || axis == "y") {
        (axis == "x" ? cross_.KvadranttiX : cross_.KvadranttiY) = ToInt32(Rounded(value));
        window_.Piirra();
    }
}

std::string QuadrantPart::AnnaKvadrantinKoordinaatit(std::string_view axis) const {
    if (axis != "x" && axis != "y") {
        return "";
    }
    const auto grid = static_cast<int64_t>(kGrid);
    const int64_t value = axis == "x" ? cross_.KvadranttiX : grid - cross_.KvadranttiY;
    return (value < 0 ? "" : " ") + std::to_string(value);
}

void QuadrantPart::Piirra(const PlotArea& area) {
    if (cross_.KvadranttiKaytossa && !cross_.KvadranttiLiikkuu) {
        cross_.Piirra(window_.Surface(), area, window_.Background().Line());
    }
}

bool QuadrantPart::Tartu(const PlotArea& area, PixelPoint mouse) {
    if (!cross_.Osuu(area, mouse)) {
        return false;
    }
    cross_.KvadranttiLiikkuu = true;
    window_.AsetaEle(true);
    window_.Piirra();  // without the cross, which is drawn above from now on
    window_.AsetaPaalle(true);
    return Liiku(area, mouse);
}

bool QuadrantPart::Liiku(const PlotArea& area, PixelPoint mouse) {
    if (cross_.KvadranttiLiikkuu) {
        Kvadrantti::PiirraLiikkuva(window_.Surface(), area, mouse, window_.Background().Line());
    }
    return cross_.KvadranttiLiikkuu;
}

bool QuadrantPart::Paasta(const PlotArea& area, PixelPoint mouse) {
    if (!cross_.KvadranttiLiikkuu) {
        return false;
    }
    cross_.Pudota(area, mouse);
    Keskeyta();
    return true;
}

void QuadrantPart::Keskeyta() {
    cross_.KvadranttiLiikkuu = false;
    window_.AsetaPaalle(false);
    window_.AsetaEle(false);
    window_.Piirra();
}

WindowMenuItem QuadrantPart::Item() {
    const char* const show = koskettu_ ? "Show quadrant" : "Show Quadrant";
    return {cross_.KvadranttiKaytossa ? "Hide quadrant" : show,
            [this] { NaytaTaiPiilotaKvadrantti("toggle"); }};
}

void QuadrantPart::AddKeys(SheetTable& keys) {
    keys.Add(
        Lippuavain("quadrant.enabled", cross_.KvadranttiKaytossa, [this] { koskettu_ = true; }));
    keys.Add(Lukuavain("quadrant.x", cross_.KvadranttiX));
    keys.Add(Lukuavain("quadrant.y", cross_.KvadranttiY));
}

}  // namespace tessarin
