// Files of real cytometers against values that expected_values.py works out from their bytes.
#include <cmath>
#include <sstream>
#include <utility>
#include <vector>

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
    {"lsrii-spill-pair/fake_large_fcs.fcs", 11585, 11, "1,2,4,5,7,8,9,10",
     "1 7 262144 17.9399986 15.9942584; 1 9 262144 137.059998 134.740398; 1 10 262144 -36.7200012 "
     "-36.7200012; 11585 7 262144 347.099976 222.547724; 11585 9 262144 8282.88965 8225.80925; "
     "11585 10 262144 102.960007 102.960007"},
    {"aria-index-sort/index_sorted_example.fcs", 384, 13, "7,8,9,10,11,12",
     "1 8 262144 -43.8700027 -214.738511; 1 10 262144 1170.48999 837.877262; 384 8 262144 "
     "230.050018 -80.7078935; 384 10 262144 2157.40015 1754.52839"},
    {"odd/AriaFile1.fcs", 10000, 12, "3,4,5,6,7,8,9,10,11",
     "1 4 262144 3018.59985 3018.59985; 1 12 262144 0.200000003 0.200000003; 6052 4 262144 "
     "51.3499985 51.3499985; 6052 12 262144 1497.09998 1497.09998"},
};

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
            int range = 0;
            float raw = 0;
            float compensated = 0;
            ASSERT_TRUE(in >> event >> channel >> range >> raw >> compensated);
            EXPECT_EQ(file.Channels(channel).Range, range);
            EXPECT_FLOAT_EQ(file.RawData(event, channel), raw);
            const float tolerance = 1e-5F + std::fabs(compensated) * 1e-6F;
            EXPECT_NEAR(file.Data(event, channel), compensated, tolerance);
        }
    }
}

TEST_F(RealFilesTest, OpenInSilenceOrWithAWordOrNotAtAll) {
    enum class Word { kNone, kOdd, kRefused };
    const std::pair<Word, std::vector<std::string>> kinds[] = {
        {Word::kNone,
         {"aria-index-sort/index_sorted_example.fcs", "facscalibur-series/060909.001",
          "facscan-fcs2-int16-be/Data001.fcs", "lsrii-plate/Yeast_B1_B01.fcs",
          "lsrii-spill-pair/FCS_3.0_Fortessa_PBS_Specimen_001_A1_A01.fcs",
          "lsrii-spill-pair/fake_large_fcs.fcs", "macsquant-float-le/CFP_Well_A4.fcs",
          "partec-fcs2-int16-le/Partec.fcs"}},
        // Integers above 24 bits, floats that are linear already though $PnE calls them log, a log
        // channel of three decades; and the folder of files that break the standard.
        {Word::kOdd,
         {"eclipse-int32-le/iCyt.fcs", "canto-float-with-log-pne/itn_02.fcs",
          "qa-int16-le-padded-keys/PU87@2+B200.fcs", "odd/AriaFile1.fcs", "odd/Data003.fcs",
          "odd/System II listmode with extra info in bits D10-D15.LMD"}},
        {Word::kRefused, {"refused/B01 KC-A-W---91-US.fcs", "refused/corrupted.fcs"}}};
    for (const auto& [word, names] : kinds) {
        for (const std::string& name : names) {
            const auto path = RealFile(name);
            if (!path) {
                GTEST_SKIP() << kNoRealData;
            }
            const Tiedosto file = LueFCS(*path);
            EXPECT_EQ(file.Valid, word != Word::kRefused) << name;
            EXPECT_EQ(!file.Oddities.empty(), word == Word::kOdd) << name << " " << file.Oddities;
        }
    }
}

}  // namespace
}  // namespace tessarin
