#include "plots/MarkerMembership.h"

#include <algorithm>
#include <span>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/WideVectors.h"
#include "populations/Definitions.h"
#include "windows/PlotArea.h"

namespace tessarin {
namespace {

// Both ends of a marker as limits of values.
struct MarkerLimits {
    AkseliProjektio::Arvorajat left;
    AkseliProjektio::Arvorajat right;
};

// Sets the members that are sure by their values, without a branch; False when some are not.
TESSARIN_WIDE bool SetSureMembers(std::span<const float> values, const MarkerLimits limits,
                                  std::span<uint8_t> members) {
    unsigned open = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float value = values[i];
        const unsigned in = Bit(value > limits.left.above) & Bit(value < limits.right.below);
        const unsigned out = Bit(value < limits.left.below) | Bit(value > limits.right.above);
        members[i] = static_cast<uint8_t>(in);
        open |= 1U - (in | out);
    }
    return open == 0;
}

// Most values tell by themselves on which side of both ends they lie. Blocks with one that does
// not, or that is not a number, are projected.
void TestFile(Tiedosto& file, int16_t slot, int16_t channel, double low, double high) {
    const std::span<const float> values = file.Data.Sarake(channel);
    const std::span<uint8_t> members = file.Membership.OmaSarake(slot);
    const AkseliProjektio axis(file.Channels(channel));
    const MarkerLimits limits{axis.RajatPaikalle(low, kGrid), axis.RajatPaikalle(high, kGrid)};
    constexpr std::size_t kBlock = 512;
    for (std::size_t from = 0; from < values.size(); from += kBlock) {
        const std::size_t count = std::min(kBlock, values.size() - from);
        const auto block = values.subspan(from, count);
        const auto inside = members.subspan(from, count);
        if (!SetSureMembers(block, limits, inside)) {
            std::ranges::transform(block, inside.begin(), [&](float value) {
                const double position = axis.TapahtumanPaikka(static_cast<double>(value), kGrid);
                return static_cast<uint8_t>(low <= position && position <= high);
            });
        }
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
            file.Membership.NollaaSarake(slot);
        }
    }
    TarkistaKayttavatMaaritelmat(slot);
    marker.Corners = 2;  // whatever a sheet said: both ends count
    marker.X[1] = left;
    marker.X[2] = right;
}

}  // namespace tessarin
