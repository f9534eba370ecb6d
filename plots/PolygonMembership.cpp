#include "plots/PolygonMembership.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/WideVectors.h"
#include "populations/Definitions.h"
#include "populations/PolygonTest.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = 2048;  // events whose places stay near the processor

// Gives a block of events whole.
class Everyone {
  public:
    std::span<const int32_t> Sift(std::size_t from, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            kept_[i] = static_cast<int32_t>(from + i + 1);
        }
        return {kept_.data(), count};
    }

  private:
    std::array<int32_t, kBlock> kept_;
};

// Tells of most events outside a polygon by their values alone, so that only the others are
// placed. Events left of it stay: at exactly the height of a corner they may be inside.
class Sieve {
  public:
    Sieve(const Tiedosto& file, const Populaatio& polygon, std::span<const Kulma> corners)
        : xs_(file.Data.Sarake(polygon.AxisX)), ys_(file.Data.Sarake(polygon.AxisY)) {
        if (corners.empty()) {
            return;
        }
        const auto [left, right] = std::ranges::minmax(corners, {}, &Kulma::x);
        const auto [top, bottom] = std::ranges::minmax(corners, {}, &Kulma::y);
        const AkseliProjektio xAxis(file.Channels(polygon.AxisX));
        const AkseliProjektio yAxis(file.Channels(polygon.AxisY));
        // A place becomes a single before it is tested, and may come to lie on the border.
        constexpr double kSingle = 1;
        right_ = xAxis.RajatPaikalle(right.x + kSingle, kGrid).above;
        low_ = yAxis.RajatPaikalle(kGrid - bottom.y - kSingle, kGrid).below;
        high_ = yAxis.RajatPaikalle(kGrid - top.y + kSingle, kGrid).above;
    }

    // The events of the block behind `from` events that may be inside.
    std::span<const int32_t> Sift(std::size_t from, std::size_t count) {
        std::array<uint8_t, kBlock> stays;
        Flag(xs_.subspan(from, count), ys_.subspan(from, count), stays);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < count; ++i) {
            kept_[kept] = static_cast<int32_t>(from + i + 1);
            kept += stays[i];
        }
        return {kept_.data(), kept};
    }

  private:
    TESSARIN_WIDE void Flag(std::span<const float> xs, std::span<const float> ys,
                            std::span<uint8_t> stays) const {
        const float right = right_;
        const float low = low_;
        const float high = high_;
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const unsigned out = Bit(xs[i] > right) | Bit(ys[i] < low) | Bit(ys[i] > high);
            stays[i] = static_cast<uint8_t>(1U - out);
        }
    }

    static constexpr float kInfinity = std::numeric_limits<float>::infinity();
    std::span<const float> xs_;
    std::span<const float> ys_;
    float right_ = kInfinity;
    float low_ = -kInfinity;
    float high_ = kInfinity;
    std::array<int32_t, kBlock> kept_;
};

// The grid places of one block of events, and which of them are inside.
struct GridBlock {
    std::array<double, kBlock> wideX;
    std::array<double, kBlock> wideY;
    std::array<float, kBlock> x;
    std::array<float, kBlock> y;
    std::array<uint8_t, kBlock> inside;
};

template <class Sifter>
void TestEvents(std::span<uint8_t> members, const EventPlacer& placer,
                std::span<const Kulma> corners, Sifter& sifter) {
    std::ranges::fill(members, uint8_t{0});
    GridBlock block;
    for (std::size_t from = 0; from < members.size(); from += kBlock) {
        const auto events = sifter.Sift(from, std::min(kBlock, members.size() - from));
        const std::size_t count = events.size();
        placer.Place(events, kGridPlane, block.wideX, block.wideY);
        for (std::size_t i = 0; i < count; ++i) {
            block.x[i] = static_cast<float>(block.wideX[i]);
            block.y[i] = static_cast<float>(block.wideY[i]);
        }
        PolygoninSisalla({block.x.data(), count}, {block.y.data(), count}, corners,
                         {block.inside.data(), count});
        for (std::size_t i = 0; i < count; ++i) {
            members[static_cast<std::size_t>(events[i]) - 1] = block.inside[i];
        }
    }
}

bool HasChannels(const Tiedosto& file, const Populaatio& polygon) {
    const auto has = [&file](int16_t channel) {
        return channel >= 1 && channel <= file.ChannelCount;
    };
    return has(polygon.AxisX) && has(polygon.AxisY);
}

}  // namespace

void TestaaMonikulmio(Tiedosto& file, int16_t slot, const EventPlacer& placer) {
    Everyone everyone;
    TestEvents(file.Membership.OmaSarake(slot), placer, PopulaationKulmat(Populaatiot(slot)),
               everyone);
}

void TarkistaMonikulmio(int16_t slot) {
    const Populaatio& polygon = Populaatiot(slot);
    const std::vector<Kulma> corners = PopulaationKulmat(polygon);
    for (Tiedosto& file : Tiedostot) {
        if (!file.Valid) {
            continue;
        }
        if (HasChannels(file, polygon)) {
            Sieve sieve(file, polygon, corners);
            TestEvents(file.Membership.OmaSarake(slot),
                       ChannelPlacer(file, polygon.AxisX, polygon.AxisY), corners, sieve);
        } else {
            file.Membership.NollaaSarake(slot);
        }
    }
    TarkistaKayttavatMaaritelmat(slot);
}

}  // namespace tessarin
