// From bytes to values: formats, data that end early, log channels and display scales.
#include <bit>
#include <cmath>

#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using FcsValuesTest = SessionTest;
using std::string_literals::operator""s;

TEST_F(FcsValuesTest, EveryFormatAndByteOrder) {
    struct Case {
        std::string type;
        int bits;
        std::string order, bytes;
        float value;
    };
    // 1.5 is 0x3fc00000 as a single, 0x1234 is 4660 and 0x020304 is 131844.
    const Case cases[] = {
        {"F", 32, "4,3,2,1", "\x3f\xc0\0\0"s, 1.5F},
        {"F", 16, "", "\x3f\xc0\0\0"s, 1.5F},
        {"F", 32, "1,2,3,4", "\0\0\xc0\x3f"s, 1.5F},
        {"I", 16, "4,3,2,1", "\x12\x34", 4660},
        {"I", 16, "2,1", "\x12\x34", 4660},
        {"I", 16, "1,2,3,4", "\x34\x12", 4660},
        {"I", 16, "1,2", "\x34\x12", 4660},
        {"I", 32, "4,3,2,1", "\xff\x02\x03\x04", 131844},
        {"I", 32, "2,1", "\x80\x02\x03\x04", 131844},
        {"I", 32, "1,2,3,4", "\x04\x03\x02\xff", 131844},
        {"I", 32, "1,2", "\x04\x03\x02\x01", 131844},
        {"I", 16, "3,4,1,2", "\x12\x34", 0},
        {"I", 24, "4,3,2,1", "\x12\x34\x56", 0},
        {"D", 64, "4,3,2,1", "\x40\x12\x34\x56\x78\x12\x34\x56", 0},
        {"A", 16, "4,3,2,1", "12", 0},
        {"i", 16, "4,3,2,1", "\x12\x34", 0},
    };
    for (const Case& c : cases) {
        FcsBuilder built(c.type, c.bits, c.order, 2, 1);
        built.Set("$P1B", "32").data = c.bytes + c.bytes;  // the last width counts
        const Tiedosto file = Read(built);
        ASSERT_TRUE(file.Valid);
        EXPECT_EQ(file.Data(1, 1), c.value) << c.type << c.bits << " " << c.order;
        EXPECT_EQ(file.RawData(1, 2), c.value) << c.type << c.bits << " " << c.order;
    }
}

TEST_F(FcsValuesTest, ShortDataRepeatTheByteBuffer) {
    struct Short {
        std::string type, order, data;
        std::vector<float> values;  // of two events of three channels
    };
    // Each byte goes to its place in a value only while there is one.
    for (const Short& c : {
             Short{"I16", "2,1", "", {0, 0, 0, 0, 0, 0}},
             Short{"I16", "1,2", "\1\2\3", {0x201, 0x203, 0x203, 0x203, 0x203, 0x203}},
             Short{"I16", "2,1", "\1\2\3", {0x102, 0x302, 0x302, 0x302, 0x302, 0x302}},
             Short{"I16", "1,2", "\1\0\2\0\3\1\4"s, {1, 2, 0x103, 0x104, 0x104, 0x104}},
             Short{"I16", "2,1", "\0\1\0\2\0\3\0\4\0\5"s, {1, 2, 3, 4, 5, 5}},
             Short{"I32", "4,3,2,1", "\0\1\0\0\0\0\2"s, {65536, 512, 512, 512, 512, 512}},
             Short{"F32", "1,2,3,4", "\0\0\xc0\x3f\0\0\x80"s, {1.5F, 1, 1, 1, 1, 1}},
         }) {
        FcsBuilder built(c.type.substr(0, 1), std::stoi(c.type.substr(1)), c.order, 3, 2);
        built.data = c.data;
        const Tiedosto file = Read(built);
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(file.Data(i / 3 + 1, i % 3 + 1), c.values[static_cast<std::size_t>(i)])
                << c.type << " " << c.order << ", " << c.data.size() << " bytes, value " << i;
        }
    }
}

TEST_F(FcsValuesTest, ManyDataAreReadWholeUpToTheirLastByte) {
    constexpr int kEvents = 60000;
    FcsBuilder built("I", 16, "2,1", 3, kEvents);
    for (uint32_t i = 0; i < 3 * kEvents; ++i) {
        built.AddInteger(i);
    }
    built.data.pop_back();
    const Tiedosto file = Read(built);
    for (int i = 0; i < 3 * kEvents - 1; ++i) {
        ASSERT_EQ(file.Data(i / 3 + 1, i % 3 + 1), static_cast<float>(i % 65536)) << i;
    }
}

struct Scale {
    std::string version, cytometer, range;
    int32_t expectedRange;
    double divider;  // range / log10(range) by hand, or 256 channels a decade
};

TEST_F(FcsValuesTest, LogChannelsBecomeLinear) {
    for (const Scale& scale :
         {Scale{"FCS2.0", "FACScan", "1024", 10000, 256},
          Scale{"FCS3.0", "FACSCalibur", "0", 10000, 256},
          Scale{"FCS2.0", "LSRII", "1024", 10000, 256}, Scale{"FCS3.0", "LSRII", "1024", 1024, 340},
          Scale{"FCS2.0", "FACScan ", "1024", 1024, 340},
          Scale{"FCS3.0", "facscan", "10000", 10000, 2500},
          Scale{"FCS3.0", "other", "65536", 65536, 13607},
          Scale{"FCS3.0", "other", "262144", 262144, 48379}}) {
        SCOPED_TRACE(scale.version + scale.cytometer + scale.range);
        constexpr int kEvents = 2048;
        const auto stored = [](int i) {  // negative, halves and whole ones
            return static_cast<float>(i) * (i % 7 == 0 ? -0.5F : i % 2 == 1 ? 0.5F : 1);
        };
        FcsBuilder built("F", 32, "1,2,3,4", 2, kEvents);
        built.Set("version", scale.version);
        built.Set("$CYT", scale.cytometer).Set("$P2R", scale.range).Set("$P2E", "4,0");
        for (int i = 0; i < kEvents; ++i) {
            built.AddInteger(std::bit_cast<uint32_t>(77.0F));
            built.AddInteger(std::bit_cast<uint32_t>(stored(i)));
        }
        const Tiedosto file = Read(built);
        ASSERT_TRUE(file.Valid);
        EXPECT_EQ(file.Channels(2).Range, scale.expectedRange);
        EXPECT_EQ(file.Channels(1).Range, 1024);
        for (int i = 0; i < kEvents; ++i) {
            EXPECT_EQ(file.Data(i + 1, 1), 77);
            const double power = static_cast<double>(stored(i)) / scale.divider;
            EXPECT_FLOAT_EQ(file.Data(i + 1, 2), static_cast<float>(std::pow(10.0L, power))) << i;
        }
    }
}

TEST_F(FcsValuesTest, DisplayChangesTheScaleAndNotTheValues) {
    FcsBuilder built("I", 16, "2,1", 5, 1);
    built.Change("$CYT=FACSCalibur;P1DISPLAY=LOG;$P2E=4,0;P2DISPLAY=LIN;$P3E=4,0;P3DISPLAY=log");
    built.Change("$P4E=0,4").data = "\2\0\2\0\2\0\2\0\2\0"s;
    const Tiedosto file = Read(built);
    const bool logs[] = {true, false, true, true, false};
    const float values[] = {512, 100, 100, 100, 512};  // 512 of 256 a decade are two decades
    for (int n = 1; n <= 5; ++n) {
        EXPECT_EQ(file.Channels(n).IsLog, logs[n - 1]) << n;
        EXPECT_FLOAT_EQ(file.Data(1, n), values[n - 1]) << n;
    }
}

TEST_F(FcsValuesTest, DataStandWhereTheHeaderSaysElseWhereTextSays) {
    FcsBuilder built("I", 16, "2,1", 1, 1);
    built.Set("$BEGINDATA", "060").AddInteger(321);
    EXPECT_EQ(Read(built).Data(1, 1), 321) << "the header's offset counts";
    built.Set("$BEGINDATA", std::to_string(built.Bytes().size() - 2));
    for (const char* blank : {"0", "", "00000000"}) {
        EXPECT_EQ(Read(built.Set("data begin", blank)).Data(1, 1), 321) << blank;
    }
}

TEST_F(FcsValuesTest, TheEventLimitTakesTheFirstEvents) {
    FcsBuilder built("I", 16, "2,1", 1, 3);
    built.data = "\0\1\0\2\0\3"s;
    MaxLoadedEvents = 2;
    const Tiedosto some = Read(built);
    EXPECT_EQ(some.EventCount + some.Otsikko.LoadedEvents + some.Data.Events(), 6);
    EXPECT_EQ(some.Data(2, 1), 2);
    EXPECT_EQ(some.Oddities, "") << "the limit is no fault of the file";
    const Tiedosto none = Read(built.Set("$TOT", "0"));
    EXPECT_TRUE(none.Valid && none.EventCount == 0);
}

}  // namespace
}  // namespace tessarin
