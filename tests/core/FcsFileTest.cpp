// Whole files: what is kept of them, what is refused, and what gets a word.
#include <sys/stat.h>

#include "tests/support/FailingDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using FcsFileTest = SessionTest;
using std::string_literals::operator""s;

const std::string kData = "\0\0\0\1\0\0\0\2\0\0\0\3\0\0\0\4\0\0\0\5\0\0\0\6"s;

FcsBuilder Changed(std::string_view changes, const std::string& data = kData) {
    FcsBuilder built("I", 32, "4,3,2,1", 2, 3);
    built.Change(changes).data = data;
    return built;
}

TEST_F(FcsFileTest, KeepsKeywordsWhateverTheDelimiter) {
    FcsBuilder built = Changed("$COMP=0;$COM=a remark;$BTIM=10:00:00;$ETIM=10:01:00;$P2N=caf\xe9");
    for (const char delimiter : {'|', '\f', '\\', '/', '*', '\n', '\xff'}) {
        built.delimiter = delimiter;
        const Tiedosto file = Read(built);
        ASSERT_TRUE(file.Valid) << delimiter;
        EXPECT_EQ(file.Otsikko.Comment, "a remark");
        EXPECT_EQ(file.Otsikko.SampleId + file.Otsikko.Cytometer, "tubeCytometer");
        EXPECT_EQ(file.Otsikko.BeginTime + file.Otsikko.EndTime, "10:00:0010:01:00");
        EXPECT_EQ(file.Channels(2).Name, "caf\xc3\xa9");
        EXPECT_TRUE(file.Otsikko.Text.starts_with("\f$BTIM\f10:00:00\f"));
        EXPECT_EQ(file.Path(), folder.Path("tube.fcs"));
        EXPECT_EQ(file.FcsMajor, 3);
    }
    built.delimiter = '$';  // no keyword can begin with it then
    ExpectRefused(Read(built));
}

TEST_F(FcsFileTest, RefusesWhatItCannotUseAndSaysWhy) {
    const std::pair<const char*, const char*> cases[] = {
        {"$TOT", "$TOT is missing or no number of events"},
        {"$TOT=many", "$TOT is missing"},
        {"$TOT=-1", "$TOT is missing"},
        {"$PAR", "$PAR is missing or no number of channels"},
        {"$PAR=0", "$PAR is missing"},
        {"$PAR=32768", "$PAR is missing"},
        {"$PAR=3", "$P3R is missing or no number"},
        {"$P2R", "$P2R is missing"},
        {"$P1R=wide", "$P1R is missing"},
        {"$COMP=3,0,0,0,0,0,0,0,0,0", "$COMP is for more channels than the file has"},
        {"version=FCS3.1", "version FCS3.1 is not read"},
        {"version=fcs3.0", "it does not begin like an FCS file"},
        {"text begin=99999999;text end=99999999", "$TOT is missing"},
        {"text end=10", "its header does not tell where TEXT is"},
        {"text begin=here", "does not tell where"},
        {"text begin=-58", "does not tell where"}};
    for (const auto& [changes, why] : cases) {
        SCOPED_TRACE(changes);
        const Tiedosto file = Read(Changed(changes));
        ExpectRefused(file);
        EXPECT_NE(file.Refusal.find(why), std::string::npos) << file.Refusal;
    }
}

TEST_F(FcsFileTest, WhatIsOnlyPromisedTakesNoMemory) {
    MaxLoadedEvents = 2147483647;
    // The file is far smaller than 1 MB, and three events are in it whole.
    for (const char* promised : {"900000", "2147483647", "99999999999"}) {
        SCOPED_TRACE(promised);
        const Tiedosto file = Read(Changed("$TOT="s + promised, kData + "\0\0\0"s));
        ASSERT_TRUE(file.Valid);
        EXPECT_EQ(file.EventCount, 3);
        EXPECT_EQ(file.Otsikko.LoadedEvents + file.Data.Events() + file.Membership.Events(), 9);
        EXPECT_EQ(file.Data(3, 2), 6);
        EXPECT_EQ(file.WholeEvents, 3);
        EXPECT_EQ(file.Oddities, "the file promises "s + promised +
                                     " events and holds 3, which are the ones loaded");
    }
    for (const char* nowhere : {"", "99999999"}) {
        const Tiedosto none = Read(Changed("$TOT=900000;data begin="s + nowhere));
        EXPECT_TRUE(none.Valid && none.EventCount == 0) << nowhere;
    }
    // A value of a type that is not read may take as little as a byte.
    EXPECT_EQ(Read(Changed("$TOT=900000;$DATATYPE=D")).EventCount, 12);
    // 20000 events of two channels take 960000 bytes, which no small file is refused.
    const Tiedosto filled = Read(Changed("$TOT=20000"));
    EXPECT_EQ(filled.EventCount, 20000);
    EXPECT_EQ(filled.WholeEvents, 3);
    EXPECT_EQ(filled.Data(20000, 1), 6) << "the last bytes, again and again";
    EXPECT_FALSE(Read(Changed("$COM")).WholeEvents);
}

TEST_F(FcsFileTest, RefusesWhatIsNoFile) {
    const std::string bytes = Changed("$COM").Bytes();
    for (std::size_t length = 0; length <= 60; ++length) {
        ExpectRefused(ReadBytes(bytes.substr(0, length)));
        EXPECT_EQ(OnkoFcs(folder.Path("tube.fcs")), length >= 6) << length;
    }
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string secret = folder.Write("secret", bytes);
    ASSERT_EQ(chmod(secret.c_str(), 0), 0);
    const std::pair<std::string, std::string> cases[] = {
        {pipe, "it is no regular file"},
        {folder.Path(), "it is a folder"},
        {folder.Path("missing"), "No such file or directory"},
        {secret, "Permission denied"},
        {"", "No such file or directory"}};
    const OrdinaryUser user;
    for (const auto& [path, why] : cases) {
        const Tiedosto file = LueFCS(path);
        ExpectRefused(file);
        EXPECT_EQ(file.Refusal, why) << path;
        EXPECT_FALSE(OnkoFcs(path)) << path;
        EXPECT_EQ(TiedostonSormenjalki(path), 0) << path;
    }
}

TEST_F(FcsFileTest, AFailingDiskIsNoEndOfTheData) {
    const std::string bytes = Changed("$COM").Bytes();
    for (std::size_t good = 0; good < bytes.size(); ++good) {
        const auto source = BadFile(bytes, good);
        const Tiedosto file = LueFCS(*source, "tube.fcs");
        ExpectRefused(file);
        EXPECT_EQ(file.Refusal, kReadError) << good;
    }
    EXPECT_TRUE(LueFCS(*BadFile(bytes, bytes.size()), "tube.fcs").Valid);
}

TEST_F(FcsFileTest, WhatIsOddGetsAWord) {
    const std::string spill = "APPLY COMPENSATION=TRUE;SPILL=";
    struct Case {
        std::string changes, word, data = kData;
    };
    const Case cases[] = {
        {"data begin=99999999", "outside"},
        {"data begin=", "outside"},
        {"text end=99999999", "beyond"},
        {"$P2B=24", "24 bits"},
        {"$P2B", "0 bits"},
        {"$P1B=16", "another width were read as 32 bits (P1)"},
        {"$DATATYPE=D", "type 'D'"},
        {"$DATATYPE", "type ''"},
        {"$BYTEORD=3,4,1,2", "'3,4,1,2' is not read"},
        {"$DATATYPE=F;$BYTEORD=3,4,1,2", "'3,4,1,2' was read as 4,3,2,1"},
        {"$P1R=4", "above the channel's range (P1)"},
        {"$MODE=C", "mode 'C'"},
        {"$NEXTDATA=5000", "data sets"},
        {"$P1E=3,1", "linear (P1)"},
        {"$P1E=2.4,1", "not of 4 decades"},
        {"$DATATYPE=F;$P1E=4,0", "linear already (P1)"},
        {"$TOT=0;$P1R=0", "no scale (P1)"},
        {"$TOT=0;$P1R=1;$P1E=4,0", "no scale (P1)"},
        {"$TOT=0;$P1R=1;P1DISPLAY=LOG", "no scale (P1)"},
        {spill + "2,C1,C9,1,0.1,0.2,1", "SPILL names channels that the file lacks"},
        {spill + "101,C1,C2", "100 channels"},
        {spill + "2,C1,C2,1,0.1", "SPILL has entries that are missing"},
        {spill + "2,C1,C2,1,x,0.2,1", "SPILL has entries that are missing"},
        {"APPLY COMPENSATION=TRUE", "no factors"},
        {spill + "2,C1,C1,1,0.1,0.2,1", "SPILL names a channel twice"},
        {"$COMP=2,0,-20", "$COMP has entries that are missing"},
        {"$COMP=1,0", "$COMP is for 1 of the file's 2 channels"},
        {"$COMP=0", "$COMP is for 0 of"},
        {"$COMP=-2,0,0,0,0", "$COMP is for 0 of"},
        {"$P1R=2147483648", "a range above 2147483647 was cut to it (P1)"},
        {"$TOT=1", "the data take 24 bytes, of which $TOT and $PAR tell 8;"},
        {"$TOT=1;data end=99999999", "the data take 24 bytes"},
        {"$PAR=1", "tell 12;"},
        {"$COM", "only 2 of 3 events are whole", kData.substr(0, 23)},
        {"$COM", "so no value is read", ""},
        {"$COM", "cut to their lower 24", "\1" + kData.substr(1)},
        {"$DATATYPE=F", "no numbers (P2)", "\0\0\0\0\x7f\xc0\0\0"s + kData.substr(8)},
    };
    for (const char* ordinary : {"$P1R=5", "$TOT=2", "$TOT=1;data end=", "$P1R=2147483647"}) {
        EXPECT_EQ(Read(Changed(ordinary)).Oddities, "") << ordinary;
    }
    for (const Case& c : cases) {
        const Tiedosto file = Read(Changed(c.changes, c.data));
        EXPECT_TRUE(file.Valid && file.Oddities.find(c.word) != std::string::npos)
            << c.changes << ": " << file.Oddities;
    }
}

TEST_F(FcsFileTest, TheFingerprintSumsEverySecondByte) {
    std::string bytes(80000, 'd');  // 1.00 each
    bytes[79999] = '\xc8';          // 2.00
    const std::pair<std::string, int32_t> prints[] = {
        {"", 0},
        {"\xff", 0},
        {"\xff\x32\xff\x96\xff", 2},  // 0.50 and 1.50
        {"\0\xff\0\x2c"s, 2},         // 2.55 and 0.44, cut
        {bytes + "dddd", 40001},      // the 80000th byte is the last that counts
        // 40000 times 0.33 are 13200; a running single drifts up to 13202.52. Worked out by
        // rounding each of the sums with Python's struct.pack("f").
        {std::string(80000, '!'), 13202}};
    for (const auto& [content, print] : prints) {
        EXPECT_EQ(TiedostonSormenjalki(folder.Write("print", content)), print);
    }
}

}  // namespace
}  // namespace tessarin
