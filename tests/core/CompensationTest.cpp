// Compensation: the keywords that bring it, and the step from raw to working values.
#include <cmath>
#include <limits>
#include <random>

#include "core/Kompensaatio.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using CompensationTest = SessionTest;

// All factors row by row, so that a whole matrix is one comparison.
std::vector<float> Factors(const Tiedosto& file) {
    std::vector<float> factors;
    for (int from = 1; from <= file.ChannelCount; ++from) {
        for (int into = 1; into <= file.ChannelCount; ++into) {
            factors.push_back(file.Compensation(from, into));
        }
    }
    return factors;
}

TEST_F(CompensationTest, SpillGoesByChannelNames) {
    FcsBuilder built("I", 16, "2,1", 4, 0);
    built.Set("$P1N", "PE").Set("$P4N", "PE");  // of two channels of one name the later counts
    built.Set("SPILL", "3,PE,none,C2,1,0.5,0.25,0.125,1,0.0625,-0.75,0.375,1.5");
    EXPECT_FALSE(Read(built).Compensate) << "not without the word to apply it";
    EXPECT_FALSE(Read(built.Set("APPLY COMPENSATION", "true")).Compensate);
    const Tiedosto file = Read(built.Set("APPLY COMPENSATION", "TRUE"));
    EXPECT_TRUE(file.Compensate);
    // PE is channel 4 and C2 channel 2: 4 into 2 is 0.25, 2 into 4 is -0.75, the rest is nothing.
    EXPECT_EQ(Factors(file),
              (std::vector<float>{0, 0, 0, 0, 0, 0, 0, -0.75F, 0, 0, 0, 0, 0, 0.25F, 0, 0}));
}

TEST_F(CompensationTest, CompGoesByChannelNumbersInNegativePercent) {
    FcsBuilder built("I", 16, "2,1", 3, 0);
    built.Set("$COMP", "2,0,-20,-50,100");
    const Tiedosto file = Read(built);
    EXPECT_TRUE(file.Compensate);
    EXPECT_EQ(Factors(file), (std::vector<float>{0, 0.2F, 0, 0.5F, -1, 0, 0, 0, 0}));
    built.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "2,C1,C3,1,0.25,0.5,1");
    EXPECT_EQ(Factors(Read(built)), (std::vector<float>{0, 0.2F, 0.25F, 0.5F, -1, 0, 0.5F, 0, 0}));
}

TEST_F(CompensationTest, BrokenListsGiveNoFactors) {
    FcsBuilder built("I", 16, "2,1", 2, 0);
    built.Set("APPLY COMPENSATION", "TRUE");
    for (const char* list : {"", "x", "-3", "0", "2", "2,C1", "99999999999", ",,,", "2,C1,C2,a,b,c",
                             "2147483647,C1,C2", "100,C1", "2,C1,C2,1,inf,nan,1"}) {
        const Tiedosto file = Read(built.Set("SPILL", list));
        EXPECT_TRUE(file.Valid) << list;
        EXPECT_EQ(Factors(file), std::vector<float>(4)) << list;
    }
    built.Remove("SPILL").Remove("APPLY COMPENSATION");
    for (const char* list : {"x", "-3", "0", "2", "2,,,,", "2,a,b,c,d", "-2147483648,1"}) {
        const Tiedosto file = Read(built.Set("$COMP", list));
        EXPECT_TRUE(file.Valid && file.Compensate) << list;
        EXPECT_EQ(Factors(file), std::vector<float>(4)) << list;
    }
}

TEST_F(CompensationTest, TakesEachSpillOffTheRawValues) {
    constexpr int kChannels = 5;
    constexpr int kEvents = 200;
    std::mt19937 random(3);
    std::uniform_real_distribution<float> value(-1000, 250000);
    std::uniform_real_distribution<float> factor(-0.5F, 0.9F);
    Tiedosto file = Read(FcsBuilder("F", 32, "1,2,3,4", kChannels, kEvents));
    for (int a = 1; a <= kChannels; ++a) {
        for (int event = 1; event <= kEvents; ++event) {
            file.RawData(event, a) = value(random);
        }
        for (int b = 1; b <= kChannels; ++b) {  // the diagonal takes part
            file.Compensation(a, b) = (a + b) % 3 == 0 ? 0 : factor(random);
        }
    }
    file.Compensate = true;
    LaskeKompensaatio(file);
    for (int event = 1; event <= kEvents; ++event) {
        for (int b = 1; b <= kChannels; ++b) {
            long double expected = file.RawData(event, b);
            long double size = std::fabs(expected);
            for (int a = 1; a <= kChannels; ++a) {
                const long double spill = static_cast<long double>(file.Compensation(a, b)) *
                                          static_cast<long double>(file.RawData(event, a));
                expected -= spill;
                size += std::fabs(spill);
            }
            // Each of the steps rounds a product and a difference to single precision.
            ASSERT_NEAR(static_cast<double>(file.Data(event, b)), static_cast<double>(expected),
                        static_cast<double>(size) * kChannels *
                            static_cast<double>(std::numeric_limits<float>::epsilon()));
        }
    }
    file.Compensate = false;
    LaskeKompensaatio(file);
    for (int b = 1; b <= kChannels; ++b) {
        EXPECT_TRUE(std::ranges::equal(file.Data.Sarake(b), file.RawData.Sarake(b)));
    }
}

}  // namespace
}  // namespace tessarin
