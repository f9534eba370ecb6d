// The session's tables: what fills and frees them, and in which order they are evaluated.
#include <algorithm>

#include "core/BusyPointer.h"
#include "core/RegionMuuttujat.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

TEST_F(SessionTest, FilesThatNoWindowShowsAreFreed) {
    for (const int slot : {1, 2, 3, int{MaxFiles}}) {
        Tiedostot(slot) = Read(FcsBuilder("I", 16, "2,1", 1, 2));
    }
    Ikkunat(1).Used = true;
    Ikkunat(1).FileIndex = 1;
    Ikkunat(2).Used = true;
    Ikkunat(2).FileIndex = 1;
    Ikkunat(MaxWindows).FileIndex = 2;  // a record that is not used still holds its file
    IkkunatStat(1).FileIndex = 3;       // a companion does not
    VapautaKayttamattomat();
    EXPECT_TRUE(Tiedostot(1).Valid && Tiedostot(2).Valid);
    ExpectRefused(Tiedostot(3));
    ExpectRefused(Tiedostot(MaxFiles));
    Ikkunat(1).FileIndex = 0;
    VapautaKayttamattomat();
    EXPECT_EQ(Tiedostot(1).Data.Events(), 2) << "the second window still shows it";
    Ikkunat(2).FileIndex = 0;
    VapautaKayttamattomat();
    ExpectRefused(Tiedostot(1));
}

TEST_F(SessionTest, StartBringsBackColoursOptionsAndGestures) {
    const Rgb color = Populaatiot(kPopulationSlots).Color();
    EXPECT_EQ(color, (Rgb{60, 80, 120}));
    Populaatiot(kPopulationSlots).Red = 1;
    Populaatiot(1).Defined = true;
    MaxLoadedEvents = 5;
    KaytaNegAbsJuttua = true;
    ActiveWindow = 3;
    UusiRegionPaalla = true;
    KulmienMaara = 4;
    OletusKoko.Leveys = 9;
    PalautaAlkutila();
    EXPECT_EQ(Populaatiot(kPopulationSlots).Color(), color);
    EXPECT_FALSE(Populaatiot(1).Defined || KaytaNegAbsJuttua || UusiRegionPaalla);
    EXPECT_EQ(MaxLoadedEvents, 1000000);
    EXPECT_EQ(ActiveWindow + KulmienMaara + OletusKoko.Leveys, 0);
}

TEST_F(SessionTest, PopulationsAreEvaluatedBeforeDefinitions) {
    std::vector<int> slots;
    std::vector<bool> pointer;
    NaytaTiimalasi = [&](bool shown) { pointer.push_back(shown); };
    AsetaArvioija("Polygon", [&](int16_t slot) { slots.push_back(slot); });
    AsetaArvioija("Histogram", [&](int16_t slot) { slots.push_back(100 + slot); });
    AsetaMaaritelmanArvioija([&](int16_t slot) {
        const BusyPointer inner;
        slots.push_back(slot);
    });
    for (const int slot : {32, 17, 16, 2, 1, 3}) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Type = slot == 2 ? "Histogram" : slot == 3 ? "of no window" : "Polygon";
    }
    Populaatiot(5).Type = "Polygon";  // not defined
    TarkistaPopulaatiot();
    NaytaTiimalasi = nullptr;
    EXPECT_EQ(slots, (std::vector<int>{1, 102, 16, 17, 32}));
    EXPECT_EQ(pointer, (std::vector<bool>{true, false}));
}

TEST_F(SessionTest, AnAddedChannelLeavesTheOthersAlone) {
    FcsBuilder built("I", 16, "2,1", 2, 3);
    built.Set("$COMP", "2,0,-20,-50,0");
    for (uint32_t i = 1; i <= 6; ++i) {
        built.AddInteger(i);
    }
    Tiedostot(4) = Read(built);
    Tiedosto& file = Tiedostot(4);
    file.Data(3, 2) = 77;  // working values differ from the raw ones
    file.Membership(2, 16) = 1;
    ASSERT_TRUE(LisaaKanava(4));
    ASSERT_TRUE(LisaaKanava(4));
    EXPECT_EQ(file.ChannelCount, 4);
    EXPECT_EQ(file.Channels.size() + file.Data.Columns() + file.RawData.Columns(), 12);
    EXPECT_EQ(file.Channels(2).Name + file.Channels(3).Name, "C2");
    EXPECT_EQ(file.RawData(3, 2), 6);
    EXPECT_EQ(file.Data(3, 2), 77);
    EXPECT_EQ(file.Data(1, 2), 2);
    for (int channel = 1; channel <= 4; ++channel) {
        EXPECT_EQ(file.Compensation(1, channel), channel == 2 ? 0.2F : 0);
        EXPECT_EQ(file.Compensation(2, channel), channel == 1 ? 0.5F : 0);
        EXPECT_EQ(file.Compensation(4, channel), 0);
    }
    for (int channel = 3; channel <= 4; ++channel) {
        EXPECT_TRUE(std::ranges::all_of(file.Data.Sarake(channel), [](float v) { return v == 0; }));
        EXPECT_TRUE(
            std::ranges::all_of(file.RawData.Sarake(channel), [](float v) { return v == 0; }));
    }
    EXPECT_EQ(file.Membership(2, 16), 1);
}

}  // namespace
}  // namespace tessarin
