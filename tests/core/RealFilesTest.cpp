// Files of real cytometers against values that expected_values.py works out from their bytes.
#include <cmath>
#include <filesystem>
#include <set>
#include <sstream>

#include "core/Kompensaatio.h"
#include "core/Text.h"
#include "tests/support/RealData.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using RealFilesTest = SessionTest;

struct ExpectedFile {
    std::string name;
    int32_t events;
    int channels;
    std::string logs;    // channels shown on a log scale
    std::string values;  // event, channel, range, raw and compensated value; first and last event
};

const std::vector<ExpectedFile> kExpected = {
    {"facscan-fcs2-int16-be/Data001.fcs", 20949, 6, "3,4,5",
     "1 1 1024 369 369; 1 3 10000 79.8626561 79.8626561; 20949 1 1024 375 375; 20949 3 10000 "
     "1.21881418 1.21881418"},
    {"partec-fcs2-int16-le/Partec.fcs", 33649, 8, "3,4,5,6,7",
     "1 1 4096 1503 1503; 1 4 4096 17.3019574 17.3019574; 33649 1 4096 1470 1470; 33649 4 4096 1 "
     "1"},
    {"eclipse-int32-le/iCyt.fcs", 5000, 18, "1,2,3,4,5,9,10,11,12,13,17",
     "1 1 268435456 13083200 13083200; 1 18 64 0 0; 5000 1 268435456 8916126 8916126; 5000 18 64 "
     "35 35"},
    {"macsquant-float-le/CFP_Well_A4.fcs", 10000, 16, "",
     "1 4 262144 -66318.9688 -66318.9688; 1 16 262144 38717.8945 38717.8945; 10000 4 262144 "
     "-502970.031 -502970.031; 10000 16 262144 -102470.594 -102470.594"},
    {"lsrii-spill-pair/fake_large_fcs.fcs", 11585, 11, "1,2,4,5,7,8,9,10",
     "1 7 262144 17.9399986 15.9942584; 1 9 262144 137.059998 134.740398; 1 10 262144 -36.7200012 "
     "-36.7200012; 11585 7 262144 347.099976 222.547724; 11585 9 262144 8282.88965 8225.80925; "
     "11585 10 262144 102.960007 102.960007"},
    {"aria-index-sort/index_sorted_example.fcs", 384, 13, "7,8,9,10,11,12",
     "1 8 262144 -43.8700027 -214.738511; 1 10 262144 1170.48999 837.877262; 384 8 262144 "
     "230.050018 -80.7078935; 384 10 262144 2157.40015 1754.52839"},
    {"qa-int16-le-padded-keys/PU87@2+B200.fcs", 5000, 3, "",
     "1 1 4096 1299 1299; 1 3 4096 9 9; 5000 1 4096 1671 1671; 5000 3 4096 4095 4095"},
    {"odd/AriaFile1.fcs", 10000, 12, "3,4,5,6,7,8,9,10,11",
     "1 4 262144 3018.59985 3018.59985; 1 12 262144 0.200000003 0.200000003; 6052 4 262144 "
     "51.3499985 51.3499985; 6052 12 262144 1497.09998 1497.09998"},
    {"odd/System II listmode with extra info in bits D10-D15.LMD", 10358, 6, "3,4,5,6",
     "1 1 1024 34015 34015; 1 3 1024 2.02247123e+112 2.02247123e+112; 10358 1 1024 1693 1693; "
     "10358 3 1024 2.52895544e+16 2.52895544e+16"},
    {"odd/Data003.fcs", 25000, 8, "4,5,6",
     "1 1 262144 0 0; 1 4 1024 1 1; 25000 1 262144 0 0; 25000 4 1024 1 1"},
};

// Values are single precision, and large ones of no meaning are beyond it.
void ExpectValue(float actual, double expected) {
    if (expected > 3.4e38) {
        EXPECT_TRUE(std::isinf(actual));
    } else {
        EXPECT_NEAR(static_cast<double>(actual), expected, 1e-5 + std::fabs(expected) * 1e-6);
    }
}

TEST_F(RealFilesTest, HoldTheValuesThatTheirBytesSay) {
    for (const ExpectedFile& expected : kExpected) {
        const auto path = RealFile(expected.name);
        if (!path) {
            GTEST_SKIP() << kNoRealData;
        }
        SCOPED_TRACE(expected.name);
        Tiedosto file = LueFCS(*path);
        ASSERT_TRUE(file.Valid);
        EXPECT_EQ(file.EventCount, expected.events);
        ASSERT_EQ(file.ChannelCount, expected.channels);
        std::string logs;
        for (int n = 1; n <= file.ChannelCount; ++n) {
            logs += file.Channels(n).IsLog ? "," + std::to_string(n) : "";
        }
        EXPECT_EQ(logs.empty() ? "" : logs.substr(1), expected.logs);
        LaskeKompensaatio(file);
        for (const std::string_view row : Split(expected.values, ';')) {
            SCOPED_TRACE(row);
            std::istringstream in{std::string(row)};
            int event = 0;
            int channel = 0;
            int32_t range = 0;
            double raw = 0;
            double compensated = 0;
            ASSERT_TRUE(in >> event >> channel >> range >> raw >> compensated);
            EXPECT_EQ(file.Channels(channel).Range, range);
            ExpectValue(file.RawData(event, channel), raw);
            ExpectValue(file.Data(event, channel), compensated);
        }
    }
}

TEST_F(RealFilesTest, ABlankPlaceOfDataReadsAsTheSameFile) {
    const auto whole = RealFile("lsrii-spill-pair/FCS_3.0_Fortessa_PBS_Specimen_001_A1_A01.fcs");
    const auto blank = RealFile("lsrii-spill-pair/fake_large_fcs.fcs");
    if (!whole || !blank) {
        GTEST_SKIP() << kNoRealData;
    }
    const Tiedosto a = LueFCS(*whole);
    const Tiedosto b = LueFCS(*blank);
    ASSERT_EQ(a.ChannelCount, b.ChannelCount);
    EXPECT_EQ(a.Compensate, b.Compensate);
    for (int n = 1; n <= a.ChannelCount; ++n) {
        EXPECT_EQ(a.Channels(n).Name, b.Channels(n).Name);
        EXPECT_TRUE(std::ranges::equal(a.RawData.Sarake(n), b.RawData.Sarake(n))) << n;
        EXPECT_TRUE(std::ranges::equal(a.Compensation.Sarake(n), b.Compensation.Sarake(n))) << n;
    }
}

TEST_F(RealFilesTest, ATruncatedFileRepeatsItsLastBytes) {
    const auto path = RealFile("odd/AriaFile1.fcs");
    if (!path) {
        GTEST_SKIP() << kNoRealData;
    }
    const Tiedosto file = LueFCS(*path);
    ASSERT_TRUE(file.Valid);
    EXPECT_EQ(file.Data.Events(), 10000);
    // After 6052 whole events the file ends with 00 00 42 8d 00 00 46: the seventh value of the
    // next event is 70.5 (0x428d0000), and one byte of the eighth makes that 0x468d0000, 18048.
    EXPECT_EQ(file.Data(6053, 7), 70.5F);
    EXPECT_EQ(file.Data(6053, 8), 18048);
    EXPECT_EQ(file.Data(6053, 12), 18048);
    EXPECT_EQ(file.Data(10000, 1), 18048);
}

TEST_F(RealFilesTest, OpenInSilenceOrWithAWordOrNotAtAll) {
    const auto list = RealFile("MANIFEST.tsv");
    if (!list) {
        GTEST_SKIP() << kNoRealData;
    }
    // All of the folder odd/, and outside it: integers above 24 bits, floats that are linear
    // already though $PnE calls them log, and a log channel of three decades.
    const std::set<std::string> odd = {"iCyt.fcs", "itn_02.fcs", "PU87@2+B200.fcs"};
    const std::filesystem::path root = std::filesystem::path(*list).parent_path();
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string kind = entry.path().parent_path().filename().string();
        if (!entry.is_regular_file() || entry.path().parent_path() == root) {
            continue;
        }
        ++count;
        SCOPED_TRACE(entry.path().filename().string());
        const Tiedosto file = LueFCS(entry.path().string());
        EXPECT_EQ(OnkoFcs(entry.path().string()), kind != "refused");
        if (kind == "refused") {
            ExpectRefused(file);
            continue;
        }
        EXPECT_TRUE(file.Valid);
        EXPECT_EQ(!file.Oddities.empty(), kind == "odd" || odd.contains(file.FileName))
            << file.Oddities;
    }
    EXPECT_EQ(count, 25);
}

}  // namespace
}  // namespace tessarin
