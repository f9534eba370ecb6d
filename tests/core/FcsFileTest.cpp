// Whole files: what is kept of them, what is refused, and what gets a word.
#include <sys/stat.h>

#include <functional>

#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using FcsFileTest = SessionTest;
using Change = std::function<void(FcsBuilder&)>;
using Cases = std::vector<std::pair<std::string, Change>>;

Change Keyword(const std::string& keyword, const std::string& value) {
    return [=](FcsBuilder& built) { built.Set(keyword, value); };
}
Change Without(const std::string& keyword) {
    return [=](FcsBuilder& built) { built.Remove(keyword); };
}

FcsBuilder Ordinary() {
    FcsBuilder built("I", 32, "4,3,2,1", 2, 3);
    for (uint32_t i = 1; i <= 6; ++i) {
        built.AddInteger(i);
    }
    return built;
}

TEST_F(FcsFileTest, KeepsKeywordsWhateverTheDelimiter) {
    for (const char delimiter : {'|', '\f', '\\', '/', '*', '\n', '\xff', '$'}) {
        FcsBuilder built = Ordinary();
        if (delimiter == '$') {  // then no keyword can begin with it
            built.delimiter = delimiter;
            ExpectRefused(Read(built));
            continue;
        }
        built.delimiter = delimiter;
        built.Set("$COMP", "0").Set("$COM", "a remark").Set("$BTIM", "10:00:00");
        built.Set("$ETIM", "10:01:00").Set("$P2N", "caf\xe9");
        const Tiedosto file = Read(built);
        ASSERT_TRUE(file.Valid) << delimiter;
        EXPECT_EQ(file.Otsikko.Comment, "a remark");
        EXPECT_EQ(file.Otsikko.SampleId + file.Otsikko.Cytometer, "tubeCytometer");
        EXPECT_EQ(file.Otsikko.BeginTime + file.Otsikko.EndTime, "10:00:0010:01:00");
        EXPECT_EQ(file.Channels(2).Name, "caf\xc3\xa9");
        EXPECT_EQ(file.Otsikko.Text.find("\f$MODE\fL\f"), 0U);
        EXPECT_EQ(file.Folder, folder.Path());
        EXPECT_EQ(file.FileName, "tube.fcs");
        EXPECT_EQ(file.FcsMajor, 3);
    }
}

TEST_F(FcsFileTest, RefusesWhatItCannotUse) {
    const Cases cases = {
        {"no $TOT", Without("$TOT")},
        {"$TOT of letters", Keyword("$TOT", "many")},
        {"$TOT below 0", Keyword("$TOT", "-1")},
        {"$TOT beyond whole numbers", Keyword("$TOT", "99999999999")},
        {"no $PAR", Without("$PAR")},
        {"$PAR 0", Keyword("$PAR", "0")},
        {"$PAR beyond channel numbers", Keyword("$PAR", "32768")},
        {"$PAR above the channels there are", Keyword("$PAR", "3")},
        {"no $P2R", Without("$P2R")},
        {"$P1R of letters", Keyword("$P1R", "wide")},
        {"$COMP for more channels than there are", Keyword("$COMP", "3,0,0,0,0,0,0,0,0,0")},
        {"version 3.1", [](FcsBuilder& b) { b.version = "FCS3.1"; }},
        {"version in small letters", [](FcsBuilder& b) { b.version = "fcs3.0"; }},
        {"TEXT outside the file", [](FcsBuilder& b) { b.textBegin = b.textEnd = "99999999"; }},
        {"TEXT that ends before it begins", [](FcsBuilder& b) { b.textEnd = "10"; }},
        {"TEXT at no number", [](FcsBuilder& b) { b.textBegin = "here"; }},
        {"TEXT before the file", [](FcsBuilder& b) { b.textBegin = "-58"; }},
        {"tables beyond reason",
         [](FcsBuilder& b) {
             MaxLoadedEvents = 2147483647;
             b.Set("$TOT", "2147483647");
         }},
    };
    for (const auto& [name, change] : cases) {
        SCOPED_TRACE(name);
        FcsBuilder built = Ordinary();
        change(built);
        ExpectRefused(Read(built));
    }
}

TEST_F(FcsFileTest, RefusesWhatIsNoFile) {
    const std::string bytes = Ordinary().Bytes();
    for (std::size_t length = 0; length <= 60; ++length) {
        ExpectRefused(ReadBytes(bytes.substr(0, length)));
        EXPECT_EQ(OnkoFcs(folder.Path("tube.fcs")), length >= 6) << length;
    }
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, folder.Path(), folder.Path("missing"), std::string()}) {
        ExpectRefused(LueFCS(path));
        EXPECT_FALSE(OnkoFcs(path)) << path;
        EXPECT_EQ(TiedostonSormenjalki(path), 0) << path;
    }
}

TEST_F(FcsFileTest, WhatIsOddGetsAWord) {
    EXPECT_EQ(Read(Ordinary()).Oddities, "") << "an ordinary file is passed over in silence";
    const Cases cases = {
        {"data end early", [](FcsBuilder& b) { b.data.pop_back(); }},
        {"no data", [](FcsBuilder& b) { b.data.clear(); }},
        {"place of data outside", [](FcsBuilder& b) { b.dataBegin = "99999999"; }},
        {"place of data nowhere", [](FcsBuilder& b) { b.dataBegin = ""; }},
        {"TEXT ends outside", [](FcsBuilder& b) { b.textEnd = "99999999"; }},
        {"24 bits", Keyword("$P2B", "24")},
        {"no width", Without("$P2B")},
        {"channels of mixed widths", Keyword("$P1B", "16")},
        {"doubles", Keyword("$DATATYPE", "D")},
        {"no type", Without("$DATATYPE")},
        {"byte order of integers", Keyword("$BYTEORD", "3,4,1,2")},
        {"byte order of floats",
         [](FcsBuilder& b) { b.Set("$DATATYPE", "F").Set("$BYTEORD", "3,4,1,2"); }},
        {"more than 24 bits", [](FcsBuilder& b) { b.data[0] = 1; }},
        {"above the range", Keyword("$P1R", "2")},
        {"a histogram", Keyword("$MODE", "C")},
        {"a second data set", Keyword("$NEXTDATA", "5000")},
        {"3 decades", Keyword("$P1E", "3,1")},
        {"2.4 decades", Keyword("$P1E", "2.4,1")},
        {"log floats", [](FcsBuilder& b) { b.Set("$DATATYPE", "F").Set("$P1E", "4,0"); }},
        {"no scale", [](FcsBuilder& b) { b.Set("$TOT", "0").Set("$P1R", "0"); }},
        {"no log scale",
         [](FcsBuilder& b) { b.Set("$TOT", "0").Set("$P1R", "1").Set("$P1E", "4,0"); }},
        {"no scale by display",
         [](FcsBuilder& b) { b.Set("$TOT", "0").Set("$P1R", "1").Set("P1DISPLAY", "LOG"); }},
        {"not a number",
         [](FcsBuilder& b) {
             b.Set("$DATATYPE", "F").data.replace(4, 4, std::string("\x7f\xc0\0\0", 4));
         }},
        {"spill of unknown channels",
         [](FcsBuilder& b) {
             b.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "2,C1,C9,1,0.1,0.2,1");
         }},
        {"spill of too many channels",
         [](FcsBuilder& b) { b.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "101,C1,C2"); }},
        {"spill cut short",
         [](FcsBuilder& b) { b.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "2,C1,C2,1,0.1"); }},
        {"spill of no numbers",
         [](FcsBuilder& b) {
             b.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "2,C1,C2,1,x,0.2,1");
         }},
        {"no spill to apply", Keyword("APPLY COMPENSATION", "TRUE")},
        {"$COMP cut short", Keyword("$COMP", "2,0,-20")},
    };
    for (const auto& [name, change] : cases) {
        FcsBuilder built = Ordinary();
        change(built);
        const Tiedosto file = Read(built);
        EXPECT_TRUE(file.Valid) << name;
        EXPECT_NE(file.Oddities, "") << name;
    }
}

TEST_F(FcsFileTest, TheFingerprintSumsEverySecondByte) {
    const auto fingerprint = [&](const std::string& bytes) {
        return TiedostonSormenjalki(folder.Write("print", bytes));
    };
    EXPECT_EQ(fingerprint(""), 0);
    EXPECT_EQ(fingerprint("\xff"), 0);
    EXPECT_EQ(fingerprint(std::string("\xff\x32\xff\x96\xff", 5)), 2) << "0.50 and 1.50";
    EXPECT_EQ(fingerprint(std::string("\0\xff\0\x2c", 4)), 2) << "2.55 and 0.44, cut";
    std::string bytes(80000, 'd');  // 1.00 each
    EXPECT_EQ(fingerprint(bytes), 40000);
    EXPECT_EQ(fingerprint(bytes + "dddd"), 40000) << "no more than 80000 bytes";
    bytes[79999] = static_cast<char>(200);
    EXPECT_EQ(fingerprint(bytes), 40001) << "and the 80000th is one of them";
    // 40000 times 0.33 are 13200; a running single drifts up to 13202.52. Worked out by
    // rounding each of the sums with Python's struct.pack("f").
    EXPECT_EQ(fingerprint(std::string(80000, '!')), 13202);
}

}  // namespace
}  // namespace tessarin
