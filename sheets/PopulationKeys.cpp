#include "sheets/PopulationKeys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "core/Muuttujat.h"

namespace tessarin {
namespace {

SheetKey TextKey(std::string key, std::string& text) {
    return {std::move(key), [&text] { return text; },
            [&text](std::string_view value) { text = value; }};
}

using Coordinates = decltype(Populaatio::X);

SheetFamily CornerKey(std::string key, Coordinates& places) {
    return {std::move(key),
            [&places](const SheetNumbers& corner) {
                return SheetText(places[static_cast<std::size_t>(corner[0])]);
            },
            [&places](const SheetNumbers& corner, std::string_view value) {
                const auto number = SheetNumber(value);
                if (number && std::isfinite(static_cast<float>(*number)) && corner[0] >= 1 &&
                    corner[0] <= kMaxCorners) {
                    places[static_cast<std::size_t>(corner[0])] = static_cast<float>(*number);
                }
            }};
}

void AddRegion(SheetTable& keys, Populaatio& row) {
    keys.Add(TextKey("type", row.Type));
    keys.Add(Lukuavain("axis.x", row.AxisX));
    keys.Add(Lukuavain("axis.y", row.AxisY));
}

void AddCorners(SheetTable& keys, Populaatio& row) {
    keys.Add(Lukuavain("corners", row.Corners, 0, kMaxCorners));
    keys.Add(Lukuavain("created", row.Created));
    keys.Add(Lukuavain("title.x", row.TitleX));
    keys.Add(Lukuavain("title.y", row.TitleY));
    keys.Add(Lippuavain("transparent", row.Transparent));
    const auto corners = [&row] {
        std::vector<int> numbers(
            static_cast<std::size_t>(std::clamp<int>(row.Corners, 0, kMaxCorners)));
        std::iota(numbers.begin(), numbers.end(), 1);
        return numbers;
    };
    keys.Add(std::function<std::vector<int>()>(corners),
             {CornerKey("corner.N.x", row.X), CornerKey("corner.N.y", row.Y)});
}

SheetTable KeysOf(int16_t slot) {
    const bool isPopulation = slot <= MaxPopulations;
    Populaatio& row = Populaatiot(slot);
    SheetTable keys;
    keys.Add(TextKey("name", row.Name));
    if (isPopulation) {
        AddRegion(keys, row);
    }
    LisaaVariavaimet(keys, "color.", row.Red, row.Green, row.Blue);
    if (isPopulation) {
        AddCorners(keys, row);
    } else {
        keys.Add(Lippuavain("transparent", row.Transparent));
    }
    return keys;
}

}  // namespace

// Rows of the table of populations keep their places for as long as the program runs.
const SheetTable& Populaatioavaimet(int16_t slot) {
    static const auto tables = [] {
        std::array<SheetTable, kPopulationSlots> made;
        for (int16_t each = 1; each <= kPopulationSlots; ++each) {
            made[static_cast<std::size_t>(each) - 1] = KeysOf(each);
        }
        return made;
    }();
    return tables[static_cast<std::size_t>(slot) - 1];
}

}  // namespace tessarin
