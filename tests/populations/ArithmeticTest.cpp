// The arithmetic behind definitions: what it is worth, and what it refuses.
#include "populations/DefinitionArithmetic.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarin {
namespace {

// The value with these bits, the first unknown's first; -1000 when the text is refused.
double Value(const std::string& text, const std::string& bits = "") {
    const auto read = Laskulauseke::Lue(text);
    if (!read) {
        return -1000;
    }
    EXPECT_EQ(read->Tuntemattomia(), static_cast<int>(bits.size())) << text;
    uint32_t word = 0;
    for (std::size_t i = 0; i < bits.size(); ++i) {
        word |= (bits[i] == '1' ? 1U : 0U) << i;
    }
    return read->Arvo(word);
}

TEST(ArithmeticTest, OrderOfOperations) {
    EXPECT_EQ(Value("2+3*4"), 14);
    EXPECT_EQ(Value("2*3+4"), 10);
    EXPECT_EQ(Value("(2+3)*4"), 20);
    EXPECT_EQ(Value("9-3-2"), 4) << "from the left";
    EXPECT_EQ(Value("9-2*3*1+5"), 8);
    EXPECT_EQ(Value("9-(3-2)"), 8);
    EXPECT_EQ(Value("((7))"), 7);
    EXPECT_EQ(Value("1-((1+1)*2)"), -3);
}

TEST(ArithmeticTest, UnknownsCountByPlace) {
    EXPECT_EQ(Value("a*b+c", "110"), 1);
    EXPECT_EQ(Value("a*b+c", "100"), 0);
    EXPECT_EQ(Value("c*3+c*5", "01"), 5) << "the same letter twice is two unknowns";
    EXPECT_EQ(Value("(1-p)*a", "01"), 1);
    EXPECT_EQ(Value("a+b+c", "111"), 3);
}

TEST(ArithmeticTest, AnythingElseIsRefused) {
    for (const char* text :
         {"",     "()",   "a()",  "()a",  "(",      ")",   "(a",  "a)",       "a)(b", "ab",
          "12",   "1a",   "a(b)", "(a)b", "(a)(b)", "a+",  "+a",  "-a",       "a*-b", "a++b",
          "(+a)", "(a+)", "*",    "a b",  "A",      "a/b", "a&b", "\xc3\xa4", "1.5"}) {
        EXPECT_FALSE(Laskulauseke::Lue(text)) << text;
    }
    EXPECT_FALSE(Laskulauseke::Lue(std::string_view("a\0", 2)));
}

TEST(ArithmeticTest, HostileTextsEndInARefusal) {
    const auto nested = [](std::size_t depth) {
        return std::string(depth, '(') + "a" + std::string(depth, ')');
    };
    EXPECT_EQ(Value(nested(Laskulauseke::kMaxDepth), "1"), 1);
    EXPECT_FALSE(Laskulauseke::Lue(nested(Laskulauseke::kMaxDepth + 1)));
    EXPECT_EQ(Value(nested(600) + "+" + nested(600), "11"), 2) << "closed ones do not count";
    EXPECT_FALSE(Laskulauseke::Lue(std::string(5000000, '(')));
    std::string side = "(1)";
    std::string right = "1";
    for (std::size_t i = 1; i < Laskulauseke::kMaxOperands; ++i) {
        side += "+(1)";
        right = "1+(" + right + ")";
    }
    EXPECT_EQ(Value(side), 64);
    EXPECT_EQ(Value(right), 64) << "all operands wait at once";
    EXPECT_FALSE(Laskulauseke::Lue(side + "+1"));
    EXPECT_FALSE(Laskulauseke::Lue("1+(" + right + ")"));
}

}  // namespace
}  // namespace tessarin
