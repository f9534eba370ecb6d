// The session's tables: in which order they are evaluated, and what a channel more leaves alone.
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

TEST_F(SessionTest, OnlyWhatIsDefinedIsEvaluatedAndPopulationsFirst) {
    std::vector<int> slots;
    AsetaArvioija("Polygon", [&](int16_t slot) { slots.push_back(slot); });
    AsetaMaaritelmanArvioija([&](int16_t slot) { slots.push_back(slot); });
    for (const int slot : {32, 17, 16, 2, 1, 3, 5}) {
        Populaatiot(slot).Defined = slot != 5;
        Populaatiot(slot).Type = slot == 3 ? "of no window" : "Polygon";
    }
    TarkistaPopulaatiot();
    EXPECT_EQ(slots, (std::vector<int>{1, 2, 16, 17, 32}));
}

TEST_F(SessionTest, AnAddedChannelLeavesTheOthersAlone) {
    FcsBuilder built("I", 16, "2,1", 2, 3);
    built.Set("$COMP", "2,0,-20,-50,0").data = std::string("\0\1\0\2\0\3\0\4\0\5\0\6", 12);
    Tiedostot(4) = Read(built);
    Tiedosto& file = Tiedostot(4);
    file.Data.Aseta(3, 2, 77);  // working values differ from the raw ones
    file.Membership.Aseta(2, 16, 1);
    ASSERT_TRUE(LisaaKanava(4));
    EXPECT_EQ(file.ChannelCount, 3);
    EXPECT_EQ(file.Channels.size() + file.Data.Columns() + file.RawData.Columns(), 9);
    EXPECT_EQ(file.Channels(2).Name + file.Channels(3).Name, "C2");
    EXPECT_EQ(file.RawData(3, 2), 6);
    EXPECT_EQ(file.Data(3, 2), 77);
    EXPECT_EQ(file.Data(3, 3) + file.RawData(3, 3), 0);
    EXPECT_EQ(file.Compensation(1, 2), 0.2F);
    EXPECT_EQ(file.Compensation(2, 1), 0.5F);
    EXPECT_EQ(file.Compensation(2, 3) + file.Compensation(3, 2) + file.Compensation(3, 3), 0);
    EXPECT_EQ(file.Membership(2, 16), 1);
}

}  // namespace
}  // namespace tessarin
