#include "plots/MarkerMembership.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/PlotArea.h"
#include "plots/UsedEvents.h"
#include "populations/Definitions.h"

namespace tessarin {
namespace {

void TestFile(Tiedosto& file, int16_t slot, int16_t channel, double low, double high) {
    const std::span<uint8_t> members = file.Membership.Sarake(slot);
    std::array<double, KaytetytTapahtumat::kBlock> position;
    KaytetytTapahtumat all(file, 0, 1);
    std::size_t done = 0;
    for (auto events = all.Next(); !events.empty(); events = all.Next()) {
        AnnaPaikat(file, events, channel, kGrid, position);
        for (std::size_t i = 0; i < events.size(); ++i) {
            const bool inside = low <= position[i] && position[i] <= high;
            members[done + i] = static_cast<uint8_t>(inside);
        }
        done += events.size();
    }
}

}  // namespace

void TarkistaMarkkeri(int16_t slot) {
    Populaatio& marker = Populaatiot(slot);
    const auto [low, high] = std::minmax(marker.X[1], marker.X[2]);
    const float left = low;
    const float right = high;
    for (Tiedosto& file : Tiedostot) {
        if (!file.Valid) {
            continue;
        }
        if (marker.AxisX >= 1 && marker.AxisX <= file.ChannelCount) {
            TestFile(file, slot, marker.AxisX, static_cast<double>(left),
                     static_cast<double>(right));
        } else {
            const auto members = file.Membership.Sarake(slot);
            std::fill(members.begin(), members.end(), uint8_t{0});
        }
    }
    TarkistaKayttavatMaaritelmat(slot);
    marker.Corners = 2;  // whatever a sheet said: both ends count
    marker.X[1] = left;
    marker.X[2] = right;
}

}  // namespace tessarin
