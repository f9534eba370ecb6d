// Text and number helpers, at the ends of what comes in from outside.
#include <gtest/gtest.h>

#include <cmath>

#include "core/NaturalOrder.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

TEST(Text, KeepsUtf8AndReadsOtherBytesAsWindows1252) {
    // Code points by hand: 0x80 is U+20AC, 0x99 U+2122, 0xAA U+00AA, 0xE9 U+00E9.
    EXPECT_EQ(DecodeText("a\xc3\xa4\x80\xe2\x82\xac\xe9z"),
              "a\xc3\xa4\xe2\x82\xac\xe2\x82\xac\xc3\xa9z");
    EXPECT_EQ(DecodeText("CellQuest\x99\xaa"), "CellQuest\xe2\x84\xa2\xc2\xaa");
    EXPECT_EQ(DecodeText("\xf0\x9f\x98\x80"), "\xf0\x9f\x98\x80");
    // Cut off, overlong, a surrogate and past the last character: no UTF-8, so byte by byte.
    EXPECT_EQ(DecodeText("\xc0\xaf"), "\xc3\x80\xc2\xaf");
    for (const std::string_view bytes : {"\xc3", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf",
                                         "\xe2\x82z", "\xf4\x90\x80\x80"}) {
        EXPECT_EQ(Length(DecodeText(bytes)), bytes.size()) << bytes;
    }
}

TEST(Text, IsReplacedSplitAndCut) {
    EXPECT_EQ(KorvaaTeksti("aaa", "aa", "a"), "aa");
    EXPECT_EQ(KorvaaTeksti("1.2.3A", ".", ".."), "1..2..3A");
    EXPECT_EQ(KorvaaTeksti("text", "", "x"), "text");
    EXPECT_EQ(SplitPath("/a b/c.fcs").folder + "|" + SplitPath("/a b/c.fcs").name, "/a b/|c.fcs");
    EXPECT_EQ(SplitPath("C:\\d\\e.fcs").folder, "C:\\d\\");
    EXPECT_EQ(SplitPath("/d/back\\slash.fcs").name, "back\\slash.fcs");
    EXPECT_EQ(SplitPath("alone").folder, "");
    EXPECT_EQ(Split(",a,", ',').size(), 3U);
}

TEST(Numbers, AreReadFromDecimalTextAlone) {
    const std::pair<std::string_view, double> numbers[] = {
        {" 1.5\r\n", 1.5}, {"+2e3", 2000}, {".5", 0.5}, {"-5.", -5}, {{"7\0\0", 3}, 7}};
    for (const auto& [text, value] : numbers) {
        EXPECT_EQ(ParseNumber(text), value) << text;
    }
    for (const char* text :
         {"",     " ",  "+",   "-",         ".",   "+-5",    "++5",   "+ 5",   "- 5", "1 2", "1,5",
          "0x10", "1e", "inf", "-infinity", "nan", "nan(1)", "1e999", "12abc", "1_0", "5f"}) {
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    }
}

TEST(Numbers, RoundTiesToEvenAndStayInsideTheirType) {
    EXPECT_EQ(Rounded(0.5), 0);
    EXPECT_EQ(Rounded(1.5), 2);
    EXPECT_EQ(Int(-0.1), -1);
    EXPECT_EQ(ParseWholeNumber("2147483647.5"), std::nullopt);
    EXPECT_EQ(ParseWholeNumber("2147483647.4"), 2147483647);
    EXPECT_EQ(ParseWholeNumber("-2147483649"), std::nullopt);
    EXPECT_EQ(ToInt32(-7.9), -7);
    EXPECT_EQ(ToInt32(1e300), 2147483647);
    EXPECT_EQ(ToInt32(-INFINITY), -2147483647 - 1);
    EXPECT_EQ(ToInt32(NAN), 0);
}

TEST(Numbers, AreWrittenInTheFewestDigits) {
    EXPECT_EQ(NumberText(0.1F), "0.1");
    EXPECT_EQ(NumberText(1e10F), "1E+10");
    EXPECT_EQ(NumberText(1234567.0F), "1234567");
    EXPECT_EQ(NumberText(-0.001234567F), "-1.234567E-03");
    EXPECT_EQ(NumberText(12.5), "12.5");
    EXPECT_EQ(NumberText(100.0), "100");
    EXPECT_EQ(NumberText(0.0), "0");
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(123456789012345.0), "123456789012345");
    EXPECT_EQ(NumberText(0.00001), "0.00001");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(NAN), "NaN");
}

TEST(NaturalOrder, IsThatOfFileManagers) {
    const std::vector<std::string> sorted = {"",
                                             "060909.001",
                                             "060909.2",
                                             "060909.010",
                                             "Tube 9",
                                             "tube 9b",
                                             "TUBE 10",
                                             "tube 10",
                                             "tube 010x",
                                             "tube 99999999999999999999",
                                             "tube 100000000000000000000",
                                             "tube_1",
                                             "z",
                                             "\xc3\xa4"};
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = 0; j < sorted.size(); ++j) {
            EXPECT_EQ(NaturalLess(sorted[i], sorted[j]), i < j) << sorted[i] << ", " << sorted[j];
        }
    }
}

}  // namespace
}  // namespace tessarin
