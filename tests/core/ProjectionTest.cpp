// Positions on axes, one event at a time and in columns.
#include "core/Projektio.h"

#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

class ProjectionTest : public SessionTest {
  protected:
    // A file of one channel with these values.
    Tiedosto File(bool isLog, int32_t range, const std::vector<float>& values) const {
        Tiedosto file;
        file.EventCount = static_cast<int32_t>(values.size());
        file.ChannelCount = 1;
        file.Channels.Mitoita(1);
        file.Channels(1).IsLog = isLog;
        file.Channels(1).Range = range;
        file.Data.Mitoita(file.EventCount, 1);
        std::ranges::copy(values, file.Data.Sarake(1).begin());
        return file;
    }
    double Place(bool isLog, int32_t range, float value, double scale = 10000) const {
        return AnnaPaikka(File(isLog, range, {value}), 1, 1, scale);
    }
};

TEST_F(ProjectionTest, LinearAxes) {
    EXPECT_DOUBLE_EQ(Place(false, 1024, 512), 5000);
    EXPECT_DOUBLE_EQ(Place(false, 1024, 2048), 20000) << "no clamp at the top";
    EXPECT_EQ(Place(false, 1024, -1), 0);
    EXPECT_DOUBLE_EQ(Place(false, 1, 0.25F, 8), 2);
}

TEST_F(ProjectionTest, LogAxes) {
    EXPECT_DOUBLE_EQ(Place(true, 10000, 100), 5000);
    EXPECT_DOUBLE_EQ(Place(true, 10000, 10000), 10000);
    EXPECT_DOUBLE_EQ(Place(true, 10000, 1), 1) << "1 / 10000 of the scale, not 0";
    EXPECT_DOUBLE_EQ(Place(true, 10000, -500, 20000), 2);
    // A decade is 48379 long and the foot lies at 62943, log10(20) times that.
    EXPECT_EQ(Place(true, 262144, -39), 0);
    EXPECT_EQ(Place(true, 262144, -20.5F), 0);
    EXPECT_GT(Place(true, 262144, -19.5F), 0);
    EXPECT_DOUBLE_EQ(Place(true, 262144, 0, 1),
                     (std::log10(40.0) * 48379 - 62943) / (262144 - 62943));
    EXPECT_NEAR(Place(true, 262144, 0, 1), 0.0731, 0.00005);
    EXPECT_DOUBLE_EQ(Place(true, 262144, 9960, 1), (4 * 48379.0 - 62943) / (262144 - 62943));
    EXPECT_DOUBLE_EQ(Place(true, 262143, 10000, 1), 4 * 48379.0 / 262143)
        << "only 262144 is shifted";
    EXPECT_DOUBLE_EQ(AnnaLogPaikka(9960, 262144, 100), 100 * Place(true, 262144, 9960, 1));
    EXPECT_DOUBLE_EQ(AnnaLogPaikka(100, 10000, 100), 50);
}

TEST_F(ProjectionTest, TheBumperFoldsWhatLiesBelowOne) {
    KaytaNegAbsJuttua = true;
    EXPECT_DOUBLE_EQ(Place(false, 10000, -5), 6);
    EXPECT_DOUBLE_EQ(Place(false, 10000, 0.5F), 1.5);
    EXPECT_DOUBLE_EQ(Place(false, 10000, 1), 1);
    EXPECT_DOUBLE_EQ(Place(true, 10000, -9), 2500);
    EXPECT_DOUBLE_EQ(AnnaLogPaikka(-9, 10000, 10000), 1) << "ticks are not values of events";
}

TEST_F(ProjectionTest, AnAxisWithoutAScaleHasEverythingAtItsFoot) {
    constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
    for (const float value : {-3.0F, 0.0F, 2.0F, 1e30F, std::numeric_limits<float>::infinity()}) {
        for (const int32_t range : {0, -5, kLowest}) {
            EXPECT_EQ(Place(false, range, value), 0) << range;
            EXPECT_EQ(Place(true, range, value), 0) << range;
        }
        EXPECT_EQ(Place(true, 1, value), 0);
    }
    EXPECT_EQ(AnnaLogPaikka(5, 1, 10000), 0);
}

TEST_F(ProjectionTest, ColumnsAgreeWithSingleEventsToTheLastBit) {
    std::mt19937 random(5);
    std::vector<float> values = {0, -0.0F, 1, NAN, INFINITY, -INFINITY, 1e38F, -1e38F, 1e-40F};
    while (values.size() < 3000) {
        // Any pattern of bits is a value that a file may hold; every other one is an usual one.
        values.push_back(random() % 2 == 0 ? std::bit_cast<float>(static_cast<uint32_t>(random()))
                                           : static_cast<float>(random() % 270000) / 7 - 1000);
    }
    std::vector<int32_t> events(values.size());
    std::iota(events.begin(), events.end(), 1);
    std::ranges::shuffle(events, random);
    std::vector<double> column(events.size());
    for (const bool bumper : {false, true}) {
        KaytaNegAbsJuttua = bumper;
        for (const int32_t range : {-1, 0, 1, 2, 1000, 1024, 10000, 262143, 262144, 2147483647}) {
            for (const bool isLog : {false, true}) {
                const Tiedosto file = File(isLog, range, values);
                AnnaPaikat(file, events, 1, 511.5, column);
                for (std::size_t i = 0; i < events.size(); ++i) {
                    const double single = AnnaPaikka(file, events[i], 1, 511.5);
                    ASSERT_EQ(std::bit_cast<uint64_t>(single), std::bit_cast<uint64_t>(column[i]))
                        << file.Data(events[i], 1) << " range " << range << " log " << isLog;
                    ASSERT_GE(single, 0) << file.Data(events[i], 1) << " range " << range;
                }
            }
        }
    }
}

TEST_F(ProjectionTest, RoundingCutsTowardsMinusInfinity) {
    EXPECT_DOUBLE_EQ(Pyorista(2.349, false), 2.34);
    EXPECT_DOUBLE_EQ(Pyorista(-2.341, false), -2.35);
    EXPECT_DOUBLE_EQ(Pyorista(0.123456, true), 12.34);
    EXPECT_DOUBLE_EQ(Pyorista(1, true), 100);
}

}  // namespace
}  // namespace tessarin
