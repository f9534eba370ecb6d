// The settings of a statistics window as key lines of its owner.
#include <cmath>
#include <numeric>

#include "core/Numbers.h"
#include "windows/StatisticsPart.h"

namespace tessarin {
namespace {

constexpr double kFarthest = 120000;  // twips; a window further out would not be found again

std::string Flag(bool on) {
    return on ? "1" : "0";
}

}  // namespace

SheetKey StatisticsPart::EnabledKey() {
    return {"statistics.enabled", [this] { return Flag(Avoinna() != nullptr); },
            [this](std::string_view value) {
                if (value == "1" || value == "0") {
                    AvaaTaiSuljeStatistics(value == "1" ? "open" : "close");
                }
            }};
}

SheetFamily StatisticsPart::PlaceKey(std::string_view axis, Twips (FramePlace::*read)() const) {
    return {"statistics." + std::string(axis),
            [this, read](const SheetNumbers& /*none*/) {
                return std::to_string((Avoinna()->Paikka().*read)().count);
            },
            [this, axis](const SheetNumbers& /*none*/, std::string_view value) {
                const auto place = SheetNumber(value);
                if (place && std::fabs(*place) <= kFarthest) {
                    LiikutaStatistiikkaLaatikkoa(axis, ToInt32(*place));
                }
            }};
}

SheetFamily StatisticsPart::ColumnKey(int items) {
    return {"statistics.column.N.visible",
            [this](const SheetNumbers& item) { return Flag(Avoinna()->OnkoNakyvissa(item[0])); },
            [this, items](const SheetNumbers& item, std::string_view value) {
                if (Avoinna() != nullptr && item[0] <= items && (value == "1" || value == "0")) {
                    Avoinna()->AsetaNakyvyys(item[0], value == "1" ? 1 : 0);
                }
            }};
}

// The lines of place and columns are there while the window is open.
void StatisticsPart::AddKeys(SheetTable& keys, int items) {
    keys.Add(EnabledKey());
    const auto open = [this](int count) {
        std::vector<int> numbers(Avoinna() == nullptr ? 0 : static_cast<std::size_t>(count));
        std::iota(numbers.begin(), numbers.end(), 1);
        return numbers;
    };
    keys.Add([open] { return open(1); },
             {PlaceKey("x", &FramePlace::Left), PlaceKey("y", &FramePlace::Top)});
    keys.Add([open, items] { return open(items); }, {ColumnKey(items)});
}

}  // namespace tessarin
