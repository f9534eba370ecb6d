#include "plots/PolygonMembership.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/PlotArea.h"
#include "plots/UsedEvents.h"
#include "populations/Definitions.h"
#include "populations/PolygonTest.h"

namespace tessarin {
namespace {

// The grid places of one block of events.
struct GridBlock {
    std::array<double, KaytetytTapahtumat::kBlock> position;
    std::array<float, KaytetytTapahtumat::kBlock> x;
    std::array<float, KaytetytTapahtumat::kBlock> y;
};

void TestFile(Tiedosto& file, int16_t slot, const Populaatio& polygon,
              std::span<const Kulma> corners) {
    const std::span<uint8_t> members = file.Membership.Sarake(slot);
    GridBlock block;
    KaytetytTapahtumat all(file, 0, 1);
    std::size_t done = 0;
    for (auto events = all.Next(); !events.empty(); events = all.Next()) {
        const std::size_t count = events.size();
        AnnaPaikat(file, events, polygon.AxisX, kGrid, block.position);
        for (std::size_t i = 0; i < count; ++i) {
            block.x[i] = static_cast<float>(block.position[i]);
        }
        AnnaPaikat(file, events, polygon.AxisY, kGrid, block.position);
        for (std::size_t i = 0; i < count; ++i) {
            block.y[i] = static_cast<float>(kGrid - block.position[i]);
        }
        PolygoninSisalla({block.x.data(), count}, {block.y.data(), count}, corners,
                         members.subspan(done, count));
        done += count;
    }
}

bool HasChannels(const Tiedosto& file, const Populaatio& polygon) {
    const auto has = [&file](int16_t channel) {
        return channel >= 1 && channel <= file.ChannelCount;
    };
    return has(polygon.AxisX) && has(polygon.AxisY);
}

}  // namespace

void TarkistaMonikulmio(int16_t slot) {
    const Populaatio& polygon = Populaatiot(slot);
    const std::vector<Kulma> corners = PopulaationKulmat(polygon);
    for (Tiedosto& file : Tiedostot) {
        if (!file.Valid) {
            continue;
        }
        if (HasChannels(file, polygon)) {
            TestFile(file, slot, polygon, corners);
        } else {
            const auto members = file.Membership.Sarake(slot);
            std::fill(members.begin(), members.end(), uint8_t{0});
        }
    }
    TarkistaKayttavatMaaritelmat(slot);
}

}  // namespace tessarin
