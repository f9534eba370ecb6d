// Compensation: the keywords that bring it, and the step from raw to working values.
#include "core/Kompensaatio.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using CompensationTest = SessionTest;
using Values = std::vector<float>;

TEST_F(CompensationTest, ComesFromKeywords) {
    struct Case {
        std::string changes;
        bool compensate;
        Values factors;  // row by row
    };
    // Of two channels of one name the later counts: PE is channel 3 and C2 channel 2.
    const std::string list = "SPILL=3,PE,none,C2,1,0.5,0.25,0.125,1,0.0625,-0.75,0.375,1.5";
    const std::string apply = ";APPLY COMPENSATION=TRUE";
    const std::string comp = ";$COMP=2,0,-20,-50,100";
    std::vector<Case> cases = {
        {list, false, Values(9)},
        {list + ";APPLY COMPENSATION=true", false, Values(9)},
        {list + apply, true, {0, 0, 0, 0, 0, -0.75F, 0, 0.25F, 0}},
        {list + comp, true, {0, 0.2F, 0, 0.5F, -1, 0, 0, 0, 0}},
        {list + apply + comp, true, {0, 0.2F, 0, 0.5F, -1, -0.75F, 0, 0.25F, 0}},
    };
    for (const char* broken : {"", "x", "-3", "0", "2", "2,C2", "99999999999", ",,,", "101,C2,PE",
                               "2,C2,PE,a,b,c", "2147483647,C2", "2,C2,PE,1,inf,nan,1"}) {
        cases.push_back({"SPILL=" + std::string(broken) + apply, true, Values(9)});
    }
    for (const char* broken : {"x", "-3", "0", "2", "2,,,,", "2,a,b,c,d", "-2147483648,1"}) {
        cases.push_back({"$COMP=" + std::string(broken), true, Values(9)});
    }
    for (const Case& c : cases) {
        SCOPED_TRACE(c.changes);
        FcsBuilder built("I", 16, "2,1", 3, 0);
        const Tiedosto file = Read(built.Change("$P1N=PE;$P3N=PE").Change(c.changes));
        EXPECT_TRUE(file.Valid);
        EXPECT_EQ(file.Compensate, c.compensate);
        for (int i = 0; i < 9; ++i) {
            EXPECT_EQ(file.Compensation(i / 3 + 1, i % 3 + 1), c.factors[static_cast<size_t>(i)])
                << i;
        }
    }
}

TEST_F(CompensationTest, TakesEachSpillOffTheRawValues) {
    Tiedosto file = Read(FcsBuilder("F", 32, "1,2,3,4", 3, 1));
    const float factors[] = {0, 0.5F, 0.25F, 0.25F, 0, 0.5F, 0, 0, 0.125F};
    for (int a = 1; a <= 3; ++a) {
        file.RawData.Aseta(1, a, static_cast<float>(100 * a));
        for (int b = 1; b <= 3; ++b) {
            file.Compensation.Aseta(a, b, factors[a * 3 + b - 4]);
        }
    }
    const auto working = [&](bool compensate) {
        file.Compensate = compensate;
        LaskeKompensaatio(file);
        return Values{file.Data(1, 1), file.Data(1, 2), file.Data(1, 3)};
    };
    // 100 - 200/4, 200 - 100/2 and 300 - 100/4 - 200/2 - 300/8
    EXPECT_EQ(working(true), (Values{50, 150, 137.5F}));
    EXPECT_EQ(working(false), (Values{100, 200, 300}));
    EXPECT_TRUE(file.Data.JakaaSarakkeen(2, file.RawData));
    for (int a = 1; a <= 3; ++a) {
        file.Compensation.Aseta(a, 2, 0);
    }
    EXPECT_EQ(working(true), (Values{50, 200, 137.5F}));
    EXPECT_TRUE(file.Data.JakaaSarakkeen(2, file.RawData)) << "nothing spills into it any more";
    EXPECT_FALSE(file.Data.JakaaSarakkeen(1, file.RawData));
}

TEST_F(CompensationTest, ManyEventsAreAllReached) {
    constexpr int32_t kEvents = 5000;  // more than are worked on at a time
    Tiedosto file = Read(FcsBuilder("F", 32, "1,2,3,4", 2, kEvents));
    for (int32_t event = 1; event <= kEvents; ++event) {
        file.RawData.Aseta(event, 1, static_cast<float>(event));
        file.RawData.Aseta(event, 2, 8);
    }
    file.Compensation.Aseta(1, 2, 0.5F);
    file.Compensate = true;
    LaskeKompensaatio(file);
    for (int32_t event = 1; event <= kEvents; ++event) {
        ASSERT_EQ(file.Data(event, 2), 8 - 0.5F * static_cast<float>(event));
    }
}

}  // namespace
}  // namespace tessarin
