// Written files: byte by byte where the layout is fixed, and read again for what they hold.
#include "core/FCSWriter.h"

#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/FcsHeader.h"
#include "core/FcsText.h"
#include "core/Kompensaatio.h"
#include "core/Projektio.h"
#include "core/Text.h"
#include "tests/support/Leftovers.h"
#include "tests/support/RealData.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using std::string_literals::operator""s;

std::string Bytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class FcsWriterTest : public SessionTest {
  protected:
    // Puts a file of that size, all 0, into slot 1.
    Tiedosto& Put(int events, int channels) const {
        FcsBuilder built("F", 32, "4,3,2,1", channels, events);
        built.data.assign(sizeof(float) * static_cast<std::size_t>(channels * events), '\0');
        return Tiedostot(1) = Read(built);
    }
    std::string Write() const {
        EXPECT_EQ(KirjoitaFCS(folder.Path("new.fcs"), 1), "");
        return Bytes(folder.Path("new.fcs"));
    }
};

TEST_F(FcsWriterTest, LaysTheFileOut) {
    Tiedosto& file = Put(3, 2);
    file.Channels(2) = {"FL1", true, 262144};
    file.RawData.Aseta(1, 1, 1);
    file.RawData.Aseta(3, 1, -2);
    file.RawData.Aseta(1, 2, 100);
    file.Otsikko.EndTime = "10:00";
    const std::string text =
        R"(\$BEGINANALYSIS\0\$ENDANALYSIS\0\$BEGINTEXT\0\$ENDTEXT\0\$NEXTDATA\0\$BEGINDATA\3000)"
        R"(\$ENDDATA\3023\$CYT\Tessarin ver 1.2.1\$BYTEORD\4,3,2,1\$DATATYPE\F\$TOT\3\$MODE\L)"
        R"(\$PAR\2\$P1N\C1\$P1R\1024\$P1B\32\$P1E\0,0\P1DISPLAY\LIN\$P2N\FL1\$P2R\262144)"
        R"(\$P2B\32\$P2E\0,0\P2DISPLAY\LOG\$BTIM\\$ETIM\10:00\SAMPLE ID\tube\)";
    EXPECT_EQ(Write(), "FCS3.0         256    2999    3000    3023       0       0" +
                           std::string(198, ' ') + text + std::string(2744 - text.size(), ' ') +
                           "\x3f\x80\0\0\x42\xc8\0\0\0\0\0\0\0\0\0\0\xc0\0\0\0\0\0\0\0"s);
    file.EventCount = 1;  // the user can lower it
    EXPECT_EQ(Write().size(), 3008U);
}

TEST_F(FcsWriterTest, PutsDataWhereHeaderAndKeywordsSay) {
    for (std::size_t i = 0; i < 600; ++i) {
        // From room to spare to none, and where both places of DATA grow to five digits.
        const std::size_t length = i < 300 ? 2500 + i : 9400 + i;
        const std::string bytes = BytesBeforeData(std::string(length, 'x') + "\\", 24).value();
        const std::string begin = std::to_string(bytes.size());
        const std::string end = std::to_string(bytes.size() + 23);
        const std::string places = begin + "\\$ENDDATA\\" + end + "x";
        ASSERT_NE(bytes.find("$BEGINDATA\\" + places), bytes.npos);
        ASSERT_EQ(std::to_string(TakeHeader(bytes)->textEnd + 1), begin);
        ASSERT_EQ(bytes.substr(26, 16), std::string(8 - begin.size(), ' ') + begin +
                                            std::string(8 - end.size(), ' ') + end);
        ASSERT_EQ(bytes.find_last_not_of(' '), bytes.rfind("x\\") + 1);
        ASSERT_LE(bytes.size(), std::max<std::size_t>(3000, bytes.rfind('\\') + 3));
    }
    Put(2, 60).RawData.Aseta(2, 60, 7);
    EXPECT_EQ(ReadBytes(Write()).RawData(2, 60), 7);
    // The header has eight digits for each place.
    EXPECT_EQ(BytesBeforeData("\\", 99997000)->substr(26, 16), "    300099999999");
    const auto large = BytesBeforeData(R"(\$TOT\1\$PAR\1\$P1R\9\$DATATYPE\F\)", 10000000000);
    EXPECT_EQ(large->substr(26, 16), "       0       0");
    EXPECT_NE(large->find("\\$BEGINDATA\\3000\\$ENDDATA\\10000002999\\"), std::string::npos);
    EXPECT_EQ(ReadBytes(*large + "\x40\0\0\0"s).RawData(1, 1), 2);
    std::string tooLong;
    tooLong.resize(100000000, 'x');
    EXPECT_FALSE(BytesBeforeData(tooLong, 4));
}

TEST_F(FcsWriterTest, KeepsWhateverTextSays) {
    const std::string kept = "| |\\|\\\\a\\b\\|\xc3\xa4\xe2\x82\xac|a\rb|PE|";
    const std::string texts = kept + "a\nb\r\n|a\fb|\f$ETIM|$COM|$COMP|FP4E|\\$P3N";
    // What searches for keywords could not find or not pass over.
    const std::string changed = kept + "a\rb\r|a b||$COM |$COMP |FP4E |\\$P3N ";
    const auto written = Split(texts, '|');
    const auto expected = Split(changed, '|');
    Tiedosto& file = Put(0, 14);
    for (std::size_t turn = 0; turn < 14; ++turn) {
        for (int n = 1; n <= 14; ++n) {
            file.Channels(n).Name = written[(turn + static_cast<std::size_t>(n)) % 14];
        }
        file.Otsikko.BeginTime = file.Channels(1).Name;
        file.Otsikko.EndTime = file.Channels(2).Name;
        file.Otsikko.Comment = file.Channels(3).Name;
        file.Otsikko.SampleId = file.Channels(4).Name;
        const Tiedosto back = ReadBytes(Write());
        ASSERT_TRUE(back.Valid && !back.Compensate);
        for (int n = 1; n <= 14; ++n) {
            EXPECT_EQ(back.Channels(n).Name, expected[(turn + static_cast<std::size_t>(n)) % 14]);
            EXPECT_FALSE(back.Channels(n).IsLog);
        }
        EXPECT_EQ(back.Otsikko.BeginTime, back.Channels(1).Name);
        EXPECT_EQ(back.Otsikko.EndTime, back.Channels(2).Name);
        EXPECT_EQ(back.Otsikko.Comment, back.Channels(3).Name);
        EXPECT_EQ(back.Otsikko.SampleId, back.Channels(4).Name);
    }
    FcsBuilder other("F", 32, "4,3,2,1", 1, 0);  // files of other programs are read as ever
    other.delimiter = '\\';
    EXPECT_EQ(Read(other.Set("$COM", R"(a\\b)")).Otsikko.Comment, "a");
}

TEST_F(FcsWriterTest, WritesFactorsAsPercentWithTheOtherSign) {
    Tiedosto& file = Put(1, 3);
    const std::vector<float> factors = {0,       -0.005F,      0.12345678F, 0.2F, 0.12345F,
                                        0x1p40F, -0.12345678F, 0.005F,      1e-9F};
    for (int i = 0; i < 9; ++i) {
        file.Compensation.Aseta(i % 3 + 1, i / 3 + 1, factors[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(Write().find("$COMP"), std::string::npos);
    file.Compensate = true;
    const std::string bytes = Write();
    const std::string list = "0,-20,12.3456,0.5,-12.345,-0.5,-12.3457,-109951162777600,-0.0001";
    EXPECT_NE(bytes.find("\\$COMP\\3," + list + "\\$BTIM"), bytes.npos);
    Tiedostot(1) = ReadBytes(bytes);
    EXPECT_TRUE(Tiedostot(1).Compensate);
    EXPECT_EQ(Tiedostot(1).Compensation(1, 2), 0.2F);
    EXPECT_EQ(Write(), bytes) << "saving again must wear nothing off";
}

TEST_F(FcsWriterTest, KeepsRealFilesAsTheyAre) {
    for (const std::string name :
         {"facscan-fcs2-int16-be/Data001.fcs", "partec-fcs2-int16-le/Partec.fcs",
          "eclipse-int32-le/iCyt.fcs", "macsquant-float-le/CFP_Well_A4.fcs",
          "aria-index-sort/index_sorted_example.fcs", "lsrii-spill-pair/fake_large_fcs.fcs"}) {
        const auto path = RealFile(name);
        if (!path) {
            GTEST_SKIP() << kNoRealData;
        }
        SCOPED_TRACE(name);
        Tiedosto& file = Tiedostot(1) = LueFCS(*path);
        Tiedosto back = ReadBytes(Write());
        ASSERT_EQ(WrittenKeywords(back), WrittenKeywords(file));  // counts, names, scales, texts
        file.Compensation = back.Compensation;  // cut to four decimals of a percent
        LaskeKompensaatio(file);
        LaskeKompensaatio(back);
        for (int16_t n = 1; n <= file.ChannelCount; ++n) {
            EXPECT_TRUE(std::ranges::equal(back.RawData.Sarake(n), file.RawData.Sarake(n)));
            EXPECT_TRUE(std::ranges::equal(back.Data.Sarake(n), file.Data.Sarake(n)));
            for (int32_t event = 1; event <= file.EventCount; event += 97) {
                EXPECT_EQ(AnnaPaikka(back, event, n, 1e4), AnnaPaikka(file, event, n, 1e4));
            }
        }
    }
}

TEST_F(FcsWriterTest, WhatTheReaderMadeUpIsNotWritten) {
    FcsBuilder built("I", 16, "2,1", 2, 3);
    built.data = "\0\1\0\2\0\3"s;  // one event and a half
    Tiedosto& file = Tiedostot(1) = Read(built);
    ASSERT_EQ(file.EventCount, 3);
    const Tiedosto back = ReadBytes(Write());
    EXPECT_EQ(back.EventCount, 1);
    EXPECT_EQ(back.Oddities, "");
    EXPECT_EQ(back.Data(1, 2), 2);
    file.EventCount = 0;
    EXPECT_EQ(ReadBytes(Write()).EventCount, 0);

    const std::string old = folder.Write("old.fcs", "an old file");
    for (const char* unread :
         {"$DATATYPE=D", "data begin=99999999", "$TOT=900000;$PAR=1;data begin="}) {
        FcsBuilder none = built;
        Tiedostot(1) = Read(none.Change(unread));
        EXPECT_TRUE(Tiedostot(1).Valid);
        EXPECT_NE(KirjoitaFCS(old, 1), "") << unread;
        EXPECT_EQ(Bytes(old), "an old file");
    }
    Tiedostot(1) = Read(built.Set("$TOT", "0"));
    EXPECT_EQ(ReadBytes(Write()).EventCount, 0) << "a file without events can be written";
}

TEST_F(FcsWriterTest, LeavesTheOldFileWholeWhenItCannotWrite) {
    Put(10000, 2);
    const std::string old = folder.Write("old.fcs", "an old file");
    const auto expectRefused = [&](const std::string& path, int slot) {
        EXPECT_NE(KirjoitaFCS(path, static_cast<int16_t>(slot)), "") << path << slot;
        EXPECT_EQ(Bytes(old), "an old file");
        EXPECT_TRUE(Leftovers(folder.Path()).empty());
    };
    for (const int slot : {-1, 0, 2, MaxFiles + 1}) {
        expectRefused(old, slot);
    }
    expectRefused(folder.Path("missing/new.fcs"), 1);
    std::filesystem::create_directories(folder.Path("taken"));
    expectRefused(folder.Path("taken"), 1);
    rlimit limit{};  // stands for a full disk
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small = {50000, limit.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    expectRefused(old, 1);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::filesystem::create_symlink(old, folder.Path("link.fcs"));
    EXPECT_EQ(KirjoitaFCS(folder.Path("link.fcs"), 1), "");
    EXPECT_EQ(std::filesystem::file_size(old), 83000U);
}

}  // namespace
}  // namespace tessarin
