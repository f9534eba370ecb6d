// Positions on axes, one event at a time and in columns, and the logarithm behind them.
#include "core/Projektio.h"

#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "core/Logarithm.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using ProjectionTest = SessionTest;

Tiedosto File(bool isLog, int32_t range, const std::vector<float>& values) {
    Tiedosto file;
    file.EventCount = static_cast<int32_t>(values.size());
    file.ChannelCount = 1;
    file.Channels.Mitoita(1);
    file.Channels(1) = {"", isLog, range};
    file.Data.Mitoita(file.EventCount, 1);
    std::ranges::copy(values, file.Data.OmaSarake(1).begin());
    return file;
}

TEST_F(ProjectionTest, ListedValues) {
    struct Case {
        bool isLog;
        int32_t range;
        float value;
        double position;  // on an axis of length 10000
        bool bumper = false;
    };
    constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
    const Case cases[] = {
        {false, 1024, 512, 5000},
        {false, 1024, 2048, 20000},  // no clamp at the top
        {false, 1024, -1, 0},
        {false, 1, 0.25F, 2500},
        {true, 10000, 100, 5000},
        {true, 10000, 10000, 10000},
        {true, 10000, 1, 1},  // 1 / 10000 of the scale, not 0
        {true, 10000, -500, 1},
        // A decade is 48379 long and the foot lies at 62943, log10(20) times that.
        {true, 262144, -39, 0},
        {true, 262144, -20.5F, 0},
        {true, 262144, 0, (std::log10(40.0) * 48379 - 62943) / (262144 - 62943) * 10000},
        {true, 262144, 9960, (4 * 48379.0 - 62943) / (262144 - 62943) * 10000},
        {true, 262143, 10000, 4 * 48379.0 / 262143 * 10000},  // only 262144 is shifted
        // An axis without a scale has everything at its foot.
        {false, 0, 2, 0},
        {false, -5, -3, 0},
        {false, kLowest, 1e30F, 0},
        {true, 1, 2, 0},
        {true, 0, INFINITY, 0},
        {true, kLowest, 2, 0},
        // The bumper folds what lies below 1.
        {false, 10000, -5, 6, true},
        {false, 10000, 0.5F, 1.5, true},
        {false, 10000, 1, 1, true},
        {true, 10000, -9, 2500, true},
    };
    for (const Case& c : cases) {
        KaytaNegAbsJuttua = c.bumper;
        EXPECT_DOUBLE_EQ(AnnaPaikka(File(c.isLog, c.range, {c.value}), 1, 1, 10000), c.position)
            << c.value << " range " << c.range << " log " << c.isLog;
    }
    EXPECT_DOUBLE_EQ(AnnaLogPaikka(-9, 10000, 10000), 1) << "ticks are not values of events";
    EXPECT_DOUBLE_EQ(AnnaLogPaikka(100, 10000, 100), 50);
    EXPECT_DOUBLE_EQ(Pyorista(2.349, false), 2.34);
    EXPECT_DOUBLE_EQ(Pyorista(-2.341, false), -2.35);
    EXPECT_DOUBLE_EQ(Pyorista(0.123456, true), 12.34);
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
    for (const int32_t range : {-1, 0, 1, 2, 1000, 1024, 10000, 262143, 262144, 2147483647}) {
        for (const unsigned kind : {0U, 1U, 2U, 3U}) {
            KaytaNegAbsJuttua = kind >= 2;
            const Tiedosto file = File(kind % 2 == 1, range, values);
            AnnaPaikat(file, events, 1, 511.5, column);
            for (std::size_t i = 0; i < events.size(); ++i) {
                const double single = AnnaPaikka(file, events[i], 1, 511.5);
                ASSERT_EQ(std::bit_cast<uint64_t>(single), std::bit_cast<uint64_t>(column[i]))
                    << file.Data(events[i], 1) << " range " << range << " kind " << kind;
                ASSERT_GE(single, 0) << file.Data(events[i], 1) << " range " << range;
            }
        }
    }
}

// A value whose limits are wrong would change sides of a region without being projected.
TEST_F(ProjectionTest, LimitsOfValuesAreSureAndClose) {
    constexpr double kScale = 10000;
    std::mt19937 random(11);
    const auto any = [&random] { return std::bit_cast<float>(static_cast<uint32_t>(random())); };
    for (const int32_t range : {0, 1, 2, 1000, 1024, 10000, 262143, 262144, 2147483647}) {
        for (const unsigned kind : {0U, 1U, 2U, 3U}) {
            KaytaNegAbsJuttua = kind >= 2;
            const AkseliProjektio axis(kind % 2 == 1, range);
            for (int i = 0; i < 200; ++i) {
                const float near = static_cast<float>(random() % 300000) - 100;
                const double position = i % 2 == 0 ? axis.TapahtumanPaikka(near, kScale)
                                                   : static_cast<double>(random() % 10002) - 1;
                const auto limits = axis.RajatPaikalle(position, kScale);
                float below = limits.below;
                float above = limits.above;
                for (int k = 0; k < 40; ++k) {
                    below = std::nextafter(below, -INFINITY);
                    above = std::nextafter(above, INFINITY);
                    for (const float value : {near, any(), below, above}) {
                        const double place = axis.TapahtumanPaikka(value, kScale);
                        ASSERT_TRUE(!(value < limits.below) || place < position) << value;
                        ASSERT_TRUE(!(value > limits.above) || place > position) << value;
                    }
                }
            }
        }
    }
    KaytaNegAbsJuttua = false;
    const auto limits = AkseliProjektio(true, 262144).RajatPaikalle(5000, kScale);
    const double middle = std::pow(10.0, (62943 + (262144 - 62943) / 2.0) / 48379) - 40;
    EXPECT_NEAR(limits.below, middle, 0.001) << "where nothing is sure, everything is projected";
    EXPECT_NEAR(limits.above, middle, 0.001);
}

TEST(Logarithm, ColumnsAgreeWithSingleValues) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::vector<double> values = {1,         0,         -3, 2.5, 1e-30, 3.4e38, std::nan(""),
                                        kInfinity, -kInfinity};
    std::vector<double> logs(values.size());
    Log10Arvot(values, logs);
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_EQ(logs[i], Log10Arvo(values[i])) << values[i];
    }
    EXPECT_EQ(logs[2] + logs[6], 0);
    EXPECT_EQ(logs[7], INFINITY);
}

TEST(Logarithm, IsExactForPowersOfTenAndCloseEverywhere) {
    double power = 1;  // exact up to 1e22
    for (int exponent = 0; exponent <= 22; ++exponent, power *= 10) {
        EXPECT_EQ(Kymmenlogaritmi(power), exponent);
    }
    std::mt19937_64 random(7);
    for (int i = 0; i < 100000; ++i) {
        // Every other number lies near 1, where the logarithm is small.
        const double x = i % 2 == 0 ? std::ldexp(1 + static_cast<double>(random()) * 0x1p-64,
                                                 static_cast<int>(random() % 2000) - 1000)
                                    : 0.9 + static_cast<double>(random()) * 0x1p-64 / 5;
        const long double exact = std::log10(static_cast<long double>(x));
        const double nearest = std::fabs(static_cast<double>(exact));
        const double unit = std::nextafter(nearest, INFINITY) - nearest;
        ASSERT_LE(std::fabs(Kymmenlogaritmi(x) - exact), unit) << x;
    }
}

}  // namespace
}  // namespace tessarin
