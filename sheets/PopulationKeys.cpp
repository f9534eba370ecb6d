#include "sheets/PopulationKeys.h"

#include <algorithm>
#include <cmath>

#include "core/Muuttujat.h"

namespace tessarin {
namespace {

SheetKey TextKey(std::string key, std::string& text) {
    return {std::move(key), [&text] { return text; },
            [&text](std::string_view value) { text = value; }};
}

SheetKey SingleKey(std::string key, float& single) {
    return {std::move(key), [&single] { return SheetText(single); },
            [&single](std::string_view value) {
                const auto number = SheetNumber(value);
                if (number && std::isfinite(static_cast<float>(*number))) {
                    single = static_cast<float>(*number);
                }
            }};
}

std::vector<SheetKey> Keys(int16_t slot, int corners) {
    Populaatio& row = Populaatiot(slot);
    std::vector<SheetKey> keys = {TextKey("name", row.Name), TextKey("type", row.Type),
                                  Lukuavain("axis.x", row.AxisX), Lukuavain("axis.y", row.AxisY)};
    LisaaVariavaimet(keys, "color.", row.Red, row.Green, row.Blue);
    keys.push_back(Lukuavain("corners", row.Corners, 0, kMaxCorners));
    keys.push_back(Lukuavain("created", row.Created));
    keys.push_back(Lukuavain("title.x", row.TitleX));
    keys.push_back(Lukuavain("title.y", row.TitleY));
    keys.push_back(Lippuavain("transparent", row.Transparent));
    for (int k = 1; k <= corners; ++k) {
        const std::string corner = "corner." + std::to_string(k);
        keys.push_back(SingleKey(corner + ".x", row.X[static_cast<std::size_t>(k)]));
        keys.push_back(SingleKey(corner + ".y", row.Y[static_cast<std::size_t>(k)]));
    }
    return keys;
}

}  // namespace

std::vector<SheetKey> Populaatioavaimet(int16_t slot) {
    return Keys(slot, std::clamp<int>(Populaatiot(slot).Corners, 0, kMaxCorners));
}

std::vector<SheetKey> PopulaationLukuavaimet(int16_t slot, std::string_view key) {
    return Keys(slot, key.starts_with("corner.") ? kMaxCorners : 0);
}

std::vector<SheetKey> Maaritelmaavaimet(int16_t slot) {
    Populaatio& row = Populaatiot(slot);
    std::vector<SheetKey> keys = {TextKey("name", row.Name)};
    LisaaVariavaimet(keys, "color.", row.Red, row.Green, row.Blue);
    keys.push_back(Lippuavain("transparent", row.Transparent));
    return keys;
}

}  // namespace tessarin
