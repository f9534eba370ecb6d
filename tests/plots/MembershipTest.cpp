// Who is inside a region: each event for itself, on the grid, whatever is spared on the way.
#include <array>
#include <bit>
#include <cmath>
#include <random>

#include "core/Projektio.h"
#include "plots/MarkerMembership.h"
#include "plots/PolygonMembership.h"
#include "plots/UsedEvents.h"
#include "populations/PolygonTest.h"
#include "tests/support/ProgramFixture.h"
#include "windows/PlotArea.h"

namespace tessarin {
namespace {

class MembershipTest : public ProgramTest {
  protected:
    // Values of all kinds; on the linear channel of range 10000 a whole value is a whole place.
    std::vector<float> Values() {
        std::vector<float> values = {NAN, INFINITY, -INFINITY, 0, -0.0F, -1, 1e38F, 1e-40F};
        while (values.size() < 5000) {
            const auto bits = static_cast<uint32_t>(random());
            values.push_back(values.size() % 16 == 0 ? std::bit_cast<float>(bits)
                                                     : static_cast<float>(bits % 10100));
        }
        return values;
    }

    Tiedosto& Put() {
        return PutFile(1, "any.fcs",
                       {{"lin", false, 10000, Values()},
                        {"log", true, 262144, Values()},
                        {"short", true, 1024, Values()}});
    }

    double Place(int32_t event, int16_t channel) const {
        return AnnaPaikka(Tiedostot(1), event, channel, kGrid);
    }

    std::mt19937 random{3};
};

TEST_F(MembershipTest, EveryNthEventIsUsedWhenItIsAMember) {
    const Tiedosto& file = Put();
    for (int32_t event = 1; event <= file.EventCount; ++event) {
        Tiedostot(1).Membership.Aseta(event, 7, event % 3 != 0 ? 1 : 0);
    }
    for (const int16_t gate : {int16_t{0}, int16_t{7}}) {
        for (const int32_t step : {1, 2, 7, 2047, 5000, 6000, INT32_MAX}) {
            std::vector<int32_t> expected;
            for (int64_t event = 1; event <= file.EventCount; event += step) {
                if (gate == 0 || event % 3 != 0) {
                    expected.push_back(static_cast<int32_t>(event));
                }
            }
            std::vector<int32_t> used;
            KaytetytTapahtumat events(file, gate, step);
            for (auto block = events.Next(); !block.empty(); block = events.Next()) {
                used.insert(used.end(), block.begin(), block.end());
            }
            EXPECT_EQ(used, expected) << gate << " " << step;
            EXPECT_TRUE(events.Next().empty());
        }
    }
}

TEST_F(MembershipTest, PolygonsHoldWhatIsInsideThemOnTheGrid) {
    Tiedosto& file = Put();
    Populaatio& region = Populaatiot(1);
    for (int round = 0; round < 60; ++round) {
        KaytaNegAbsJuttua = round % 3 == 0;
        region.Type = "Polygon";
        region.Defined = true;
        region.AxisX = static_cast<int16_t>(1 + round % 3);
        region.AxisY = static_cast<int16_t>(1 + round / 3 % 3);
        region.Corners = static_cast<int16_t>(round % 12);
        for (std::size_t corner = 1; corner <= 12; ++corner) {
            region.X[corner] = static_cast<float>(random() % 12000) - 1000;
            region.Y[corner] = static_cast<float>(random() % 12000) - 1000;
        }
        if (round % 4 == 1) {  // an upright rectangle, with events near all its sides
            region.Corners = 4;
            region.X[2] = region.X[1];
            region.Y[3] = region.Y[2];
            region.X[4] = region.X[3];
            region.Y[4] = region.Y[1];
        }
        TarkistaMonikulmio(1);
        const auto corners = PopulaationKulmat(region);
        for (int32_t event = 1; event <= file.EventCount; ++event) {
            const auto x = static_cast<float>(Place(event, region.AxisX));
            const auto y = static_cast<float>(kGrid - Place(event, region.AxisY));
            ASSERT_EQ(file.Membership(event, 1) == 1, OnkoSisalla(x, y, corners))
                << "round " << round << " event " << event << " at " << x << ", " << y;
        }
    }
}

TEST_F(MembershipTest, MarkersHoldWhatLiesBetweenTheirEnds) {
    Tiedosto& file = Put();
    Populaatio& marker = Populaatiot(2);
    for (int round = 0; round < 60; ++round) {
        KaytaNegAbsJuttua = round % 3 == 0;
        marker.Type = "Histogram";
        marker.Defined = true;
        marker.AxisX = static_cast<int16_t>(1 + round % 3);
        // Every other end stands exactly on an event.
        for (const std::size_t end : {1U, 2U}) {
            const auto event = static_cast<int32_t>(1 + random() % 5000);
            const double place = std::min(Place(event, marker.AxisX), 20000.0);
            marker.X[end] = round % 2 == 0 ? static_cast<float>(place)
                                           : static_cast<float>(random() % 12000) - 1000;
        }
        TarkistaMarkkeri(2);
        for (int32_t event = 1; event <= file.EventCount; ++event) {
            const double place = Place(event, marker.AxisX);
            const bool inside = static_cast<double>(marker.X[1]) <= place &&
                                place <= static_cast<double>(marker.X[2]);
            ASSERT_EQ(file.Membership(event, 2) == 1, inside)
                << "round " << round << " event " << event << " at " << place;
        }
    }
}

}  // namespace
}  // namespace tessarin
