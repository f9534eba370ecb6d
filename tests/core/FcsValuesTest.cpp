// From bytes to values: formats, data that end early, log channels and display scales.
#include <bit>
#include <cmath>

#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using FcsValuesTest = SessionTest;

struct Stored {
    std::string type;
    int bits;
    std::string order;
    std::string bytes;
    float value;
};

TEST_F(FcsValuesTest, EveryFormatAndByteOrder) {
    // 1.5 is 0x3fc00000 as a single, 0x1234 is 4660 and 0x020304 is 131844.
    const std::string float15("\x3f\xc0\0\0", 4);
    const std::string turned15("\0\0\xc0\x3f", 4);
    const std::vector<Stored> formats = {
        {"F", 32, "4,3,2,1", float15, 1.5F},
        {"F", 32, "2,1,4,3", float15, 1.5F},
        {"F", 16, "", float15, 1.5F},
        {"F", 32, "1,2,3,4", turned15, 1.5F},
        {"I", 16, "4,3,2,1", "\x12\x34", 4660},
        {"I", 16, "2,1", "\x12\x34", 4660},
        {"I", 16, "1,2,3,4", "\x34\x12", 4660},
        {"I", 16, "1,2", "\x34\x12", 4660},
        {"I", 32, "4,3,2,1", "\xff\x02\x03\x04", 131844},
        {"I", 32, "2,1", "\x80\x02\x03\x04", 131844},
        {"I", 32, "1,2,3,4", "\x04\x03\x02\xff", 131844},
        {"I", 32, "1,2", "\x04\x03\x02\x01", 131844},
        {"I", 16, "3,4,1,2", "\x12\x34\x12\x34", 0},
        {"I", 24, "4,3,2,1", "\x12\x34\x56\x78", 0},
        {"I", 8, "4,3,2,1", "\x12\x34\x56\x78", 0},
        {"D", 64, "4,3,2,1", "\x40\x12\x34\x56\x78\x12\x34\x56", 0},
        {"A", 16, "4,3,2,1", "1234", 0},
        {"i", 16, "4,3,2,1", "\x12\x34", 0},
    };
    for (const Stored& format : formats) {
        SCOPED_TRACE(format.type + std::to_string(format.bits) + " " + format.order);
        FcsBuilder built(format.type, format.bits, format.order, 1, 2);
        built.data = format.bytes + format.bytes;
        const Tiedosto file = Read(built);
        ASSERT_TRUE(file.Valid);
        EXPECT_EQ(file.Data(1, 1), format.value);
        EXPECT_EQ(file.RawData(2, 1), format.value);
    }
}

TEST_F(FcsValuesTest, TheLastWidthCountsForAllChannels) {
    FcsBuilder built("I", 16, "2,1", 2, 1);
    built.Set("$P1B", "32").data = std::string("\0\x07\0\x09", 4);
    const Tiedosto file = Read(built);
    EXPECT_EQ(file.Data(1, 1), 7);
    EXPECT_EQ(file.Data(1, 2), 9);
}

// Reads as a patient clerk would: byte by byte, each only while there is one.
std::vector<float> ByteByByte(const std::string& data, std::size_t width, bool little, bool isFloat,
                              std::size_t values) {
    std::array<unsigned char, 4> buffer{};
    std::size_t at = 0;
    std::vector<float> out;
    for (std::size_t n = 0; n < values; ++n) {
        uint32_t word = 0;
        for (std::size_t i = 0; i < width && at < data.size(); ++i) {
            buffer[i] = static_cast<unsigned char>(data[at++]);
        }
        for (std::size_t i = 0; i < width; ++i) {
            word = word << 8U | buffer[little ? width - 1 - i : i];
        }
        out.push_back(isFloat ? std::bit_cast<float>(word) : static_cast<float>(word & 0xffffffU));
    }
    return out;
}

TEST_F(FcsValuesTest, ShortDataRepeatTheByteBuffer) {
    const std::vector<Stored> formats = {{"I", 16, "1,2", "", 0},
                                         {"I", 16, "2,1", "", 0},
                                         {"I", 32, "4,3,2,1", "", 0},
                                         {"F", 32, "1,2,3,4", "", 0}};
    for (const Stored& format : formats) {
        // The second count makes more bytes than are read in one go.
        for (const int events : {3, 30000}) {
            FcsBuilder built(format.type, format.bits, format.order, 3, events);
            for (int i = 0; i < 3 * events; ++i) {
                built.AddInteger(static_cast<uint32_t>(i) * 2654435761U);
            }
            const std::string whole = built.data;
            for (std::size_t there = 0; there <= whole.size();
                 there += events == 3 ? 1 : whole.size() / 17) {
                built.data = whole.substr(0, there);
                const Tiedosto file = Read(built);
                const auto expected = ByteByByte(
                    built.data, static_cast<std::size_t>(format.bits) / 8, format.order[0] == '1',
                    format.type == "F", static_cast<std::size_t>(events) * 3);
                for (int i = 0; i < 3 * events; ++i) {
                    ASSERT_EQ(std::bit_cast<uint32_t>(file.Data(i / 3 + 1, i % 3 + 1)),
                              std::bit_cast<uint32_t>(expected[static_cast<std::size_t>(i)]))
                        << format.type << format.bits << " value " << i << " of " << there;
                }
            }
        }
    }
}

void ExpectPower(float actual, float stored, long double divider) {
    const auto expected =
        static_cast<float>(std::pow(10.0L, static_cast<long double>(stored) / divider));
    EXPECT_LE(std::fabs(actual - expected), std::nextafter(expected, INFINITY) - expected)
        << "10 to the power " << stored << "/" << divider;
}

struct Scale {
    std::string version, cytometer, range;
    int32_t expectedRange;
    long double divider;  // range / log10(range) by hand, or 256 channels a decade
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
        for (const int events : {8, 2048}) {  // few and many take different ways
            FcsBuilder built("F", 32, "1,2,3,4", 2, events);
            built.version = scale.version;
            built.Set("$CYT", scale.cytometer).Set("$P2R", scale.range).Set("$P2E", "4,0");
            for (int i = 0; i < events; ++i) {
                built.AddFloat(77).AddFloat(static_cast<float>(i) * (i % 7 == 0 ? -0.5F : 1));
            }
            const Tiedosto file = Read(built);
            ASSERT_TRUE(file.Valid);
            EXPECT_EQ(file.Channels(2).Range, scale.expectedRange);
            EXPECT_EQ(file.Channels(1).Range, 1024);
            EXPECT_EQ(file.Data(events, 1), 77);
            for (int i = 0; i < events; ++i) {
                ExpectPower(file.Data(i + 1, 2), static_cast<float>(i) * (i % 7 == 0 ? -0.5F : 1),
                            scale.divider);
            }
        }
    }
}

TEST_F(FcsValuesTest, DisplayChangesTheScaleAndNotTheValues) {
    FcsBuilder built("I", 16, "2,1", 5, 1);
    built.Set("$CYT", "FACSCalibur").Set("P1DISPLAY", "LOG").Set("$P2E", "4,0");
    built.Set("P2DISPLAY", "LIN").Set("$P3E", "4,0").Set("P3DISPLAY", "log").Set("$P4E", "0,4");
    for (int n = 1; n <= 5; ++n) {
        built.AddInteger(512);
    }
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
    built.Set("$BEGINDATA", "00000000").AddInteger(321);
    const std::string place = std::to_string(built.Bytes().size() - 2);
    built.Set("$BEGINDATA", std::string(8 - place.size(), '0') + place);
    for (const char* blank : {"0", "", "00000000"}) {
        built.dataBegin = blank;
        EXPECT_EQ(Read(built).Data(1, 1), 321) << "header offset '" << blank << "'";
    }
    built.dataBegin.reset();
    built.Set("$BEGINDATA", "00000060");
    EXPECT_EQ(Read(built).Data(1, 1), 321) << "the header's offset counts";
}

TEST_F(FcsValuesTest, TheEventLimitTakesTheFirstEvents) {
    FcsBuilder built("I", 16, "2,1", 1, 10);
    for (uint32_t i = 1; i <= 10; ++i) {
        built.AddInteger(i);
    }
    MaxLoadedEvents = 4;
    const Tiedosto some = Read(built);
    EXPECT_EQ(some.EventCount, 4);
    EXPECT_EQ(some.Otsikko.LoadedEvents, 4);
    EXPECT_EQ(some.Data.Events(), 4);
    EXPECT_EQ(some.Data(4, 1), 4);
    EXPECT_EQ(some.Oddities, "") << "the limit is no fault of the file";
    const Tiedosto none = Read(built.Set("$TOT", "0"));
    EXPECT_TRUE(none.Valid);
    EXPECT_EQ(none.EventCount, 0);
}

}  // namespace
}  // namespace tessarin
