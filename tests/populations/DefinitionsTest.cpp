// Definitions: what they mean, what they refuse, and how they follow their populations.
#include "populations/Definitions.h"

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "populations/DefinitionWords.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

constexpr int16_t kSlot = MaxPopulations + 3;
constexpr char kProblem[] = "Problem in the definition";
constexpr char kError[] = "Error in the definition: ";

class DefinitionsTest : public SessionTest {
  protected:
    // Files 1 and 3 are loaded, file 2 could not be read.
    DefinitionsTest() {
        AddFile(1, 5000);
        AddFile(2, 3);
        Tiedostot(2).Valid = false;
        AddFile(3, 7);
    }

    void AddFile(int16_t slot, int32_t events) {
        Tiedosto& file = Tiedostot(slot);
        file.Valid = true;
        file.EventCount = events;
        file.Membership.Mitoita(events, kPopulationSlots);
        for (int population = 1; population <= MaxPopulations; ++population) {
            std::ranges::generate(file.Membership.Sarake(population),
                                  [this] { return static_cast<uint8_t>(random_() % 2); });
        }
    }

    static void Define(int16_t slot, const std::string& name) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Name = name;
    }
    static void DefineAll(const std::vector<std::string>& names) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            Define(static_cast<int16_t>(i + 1), names[i]);
        }
    }

    // The column of a slot in file 1.
    static std::vector<uint8_t> Column(int16_t slot) {
        const auto column = Tiedostot(1).Membership.Sarake(slot);
        return {column.begin(), column.end()};
    }

    // What an event is by `expression` when it is in the populations from slot 1 on that `bits`
    // names, "-" when the expression is refused.
    static std::string Answer(const std::string& expression, const std::string& bits) {
        Tiedosto& file = Tiedostot(3);
        for (std::size_t i = 0; i < bits.size(); ++i) {
            file.Membership(7, static_cast<int>(i) + 1) = bits[i] == '1' ? 1 : 0;
        }
        file.Membership(7, kSlot) = 99;
        const std::string message = TarkistaMaaritelma(kSlot, expression);
        EXPECT_TRUE(message.empty() || file.Membership(7, kSlot) == 99) << "nothing is changed";
        return message.empty() ? std::to_string(file.Membership(7, kSlot)) : "-";
    }

    std::mt19937 random_{3};
};

TEST_F(DefinitionsTest, TheExamplesOfTheInputBox) {
    DefineAll({"Poly-1", "Histo-2", "Poly-3"});
    for (const char* bits : {"000", "001", "010", "011", "100", "101", "110", "111"}) {
        const bool one = bits[0] == '1';
        const bool two = bits[1] == '1';
        const bool three = bits[2] == '1';
        EXPECT_EQ(Answer("Poly-1 and (Histo-2 or Poly-3)", bits),
                  one && (two || three) ? "1" : "0");
        EXPECT_EQ(Answer("(Poly-1 or Histo-2) and Poly-3", bits),
                  (one || two) && three ? "1" : "0");
        EXPECT_EQ(Answer("poly-1 AND HISTO-2 and NOT poly-3", bits),
                  one && two && !three ? "1" : "0");
        EXPECT_EQ(Answer("not Poly-1 and Poly-3", bits), !one && three ? "1" : "0");
        EXPECT_EQ(Answer("Poly-1 or Histo-2 or Poly-3", bits), one || two || three ? "1" : "0");
        EXPECT_EQ(Answer("Poly-1 and Poly-1", bits), one ? "1" : "0");
        EXPECT_EQ(Answer("Histo-2 and not Histo-2", bits), "0");
    }
}

TEST_F(DefinitionsTest, NegatedGroupsAreTakenAsTheyStand) {
    DefineAll({"a", "b", "c"});
    // (1-(a)+b)
    EXPECT_EQ(Answer("not (a or b)", "00"), "1");
    EXPECT_EQ(Answer("not (a or b)", "01"), "1");
    EXPECT_EQ(Answer("not (a or b)", "10"), "0");
    EXPECT_EQ(Answer("not (a or b)", "11"), "1");
    // (1-((a)+b)*c) is 1 - 2 for an event in all three
    EXPECT_EQ(Answer("not ((a or b) and c)", "111"), "0");
    EXPECT_EQ(Answer("not ((a or b) and c)", "011"), "0");
    EXPECT_EQ(Answer("not ((a or b) and c)", "110"), "1");
    for (const char* text :
         {"(not a)", "not not a", "not a not b", "a not b",      "not a not", "a and not",
          "a b",     "a and",     "and a",       "or",           "and",       "not",
          "(and)",   "a or or b", "a and or b",  "(a",           "a)",        ")a(",
          "(a or b", "a (b)",     "(a)(b) or c", "a and (or b)", "(a and) b"}) {
        EXPECT_EQ(Answer(text, "110"), "-") << text;
    }
    EXPECT_EQ(TarkistaMaaritelma(kSlot, "(not a)"), kProblem);
    EXPECT_EQ(TarkistaMaaritelma(kSlot, "a b"), kProblem);
}

TEST_F(DefinitionsTest, UnknownWordsAreNamed) {
    DefineAll({"Poly-1", "Two Words", "Poly-10", "and", "\xc3\x84iti \xce\xa9", "Gate(2)"});
    Define(5, "\xc3\x84\xce\xa9\xd0\x8f\xd0\xaf");
    Define(kSlot + 1, "Other");
    Populaatiot(9).Name = "Free";
    const auto message = [](const char* text) { return TarkistaMaaritelma(kSlot, text); };
    EXPECT_EQ(message("Poly-1 or Poly-2"), kError + std::string("poly-2"));
    EXPECT_EQ(message("(GATE or Poly-7)"), kError + std::string("gate")) << "the first one";
    EXPECT_EQ(message("Two Words"), kError + std::string("two"));
    EXPECT_EQ(message("Poly-1 or Free"), kError + std::string("free"));
    EXPECT_EQ(message("Poly-1 or Other"), kError + std::string("other"));
    EXPECT_EQ(message("Poly-1 and(Poly-10)"), kError + std::string("andpoly-10"));
    EXPECT_EQ(message("gate(2)"), kError + std::string("gate2"));
    EXPECT_EQ(message("\xc3\x96"), kError + std::string("\xc3\xb6"));
    EXPECT_EQ(message("poly-1 & \xc3"), kError + std::string("&"));
    for (const char* blank :
         {"", " ", "Poly-1  or Poly-10", " Poly-1", "Poly-1 ", "()", "Poly-1 or () Poly-10"}) {
        EXPECT_EQ(message(blank), kError) << blank;
    }
    EXPECT_EQ(message("Poly-1 or Poly-10"), "");
    EXPECT_EQ(message("\xc3\xa4\xcf\x89\xd1\x9f\xd1\x8f"), "") << "other letters have cases too";
    EXPECT_EQ(message("and"), kProblem) << "a keyword is nobody's name";
    EXPECT_EQ(message("Poly-1 and Poly-10"), "");
}

// A part of an expression with its answer for each event, worked out on its own.
struct Part {
    std::string text;
    std::vector<uint8_t> answer;
};

class RandomExpression {
  public:
    RandomExpression(std::mt19937& random, std::vector<Part> names)
        : random_(random), names_(std::move(names)) {}

    // Terms joined by "or". "not" stands in front of names alone, not behind a parenthesis.
    Part Sum(int depth, bool behindParenthesis) {
        Part sum = Product(depth, behindParenthesis);
        while (random_() % 3 == 0) {
            sum = Join(sum, " or ", Product(depth, false));
        }
        return sum;
    }

  private:
    Part Product(int depth, bool behindParenthesis) {
        Part product = Factor(depth, behindParenthesis);
        while (random_() % 3 == 0) {
            product = Join(product, " aNd ", Factor(depth, false));
        }
        return product;
    }

    Part Factor(int depth, bool behindParenthesis) {
        if (depth > 0 && random_() % 3 == 0) {
            Part group = Sum(depth - 1, true);
            group.text = "(" + group.text + ")";
            return group;
        }
        Part name = names_[random_() % names_.size()];
        if (!behindParenthesis && random_() % 3 == 0) {
            name.text = "Not " + name.text;
            std::ranges::transform(name.answer, name.answer.begin(),
                                   [](uint8_t bit) { return static_cast<uint8_t>(1 - bit); });
        }
        return name;
    }

    static Part Join(const Part& left, const std::string& word, const Part& right) {
        Part joined{left.text + word + right.text, left.answer};
        for (std::size_t i = 0; i < joined.answer.size(); ++i) {
            const bool both = left.answer[i] + right.answer[i] == 2;
            const bool any = left.answer[i] + right.answer[i] > 0;
            joined.answer[i] = (word == " or " ? any : both) ? 1 : 0;
        }
        return joined;
    }

    std::mt19937& random_;
    std::vector<Part> names_;
};

TEST_F(DefinitionsTest, AnyExpressionMeansWhatItSays) {
    // Names that are letters, hold signs, begin alike, or are words of the language.
    DefineAll({"b", "and-b", "Poly-1", "Poly-10", "a*1", "not-a", "or", "a", "0", "p"});
    std::vector<Part> names;
    for (const int16_t slot : std::initializer_list<int16_t>{1, 2, 3, 4, 5, 6, 8, 9, 10}) {
        names.push_back({Populaatiot(slot).Name, Column(slot)});
    }
    RandomExpression expressions(random_, names);
    const std::vector<uint8_t> unread = {0, 0, 0};
    int tried = 0;
    while (tried < 150) {
        const Part expression = expressions.Sum(3, false);
        const auto blanks = std::ranges::count(expression.text, ' ');
        if (blanks > 20) {
            continue;  // could name more than a definition may
        }
        ++tried;
        ASSERT_EQ(TarkistaMaaritelma(kSlot, expression.text), "") << expression.text;
        ASSERT_EQ(Column(kSlot), expression.answer) << expression.text;
    }
    EXPECT_TRUE(std::ranges::equal(Tiedostot(2).Membership.Sarake(kSlot), unread));
    EXPECT_TRUE(
        std::ranges::equal(Tiedostot(1).Membership.Sarake(kSlot + 1), std::vector<uint8_t>(5000)));
}

TEST_F(DefinitionsTest, LimitsEndInAMessage) {
    DefineAll({"x"});
    std::string names = "x";
    for (int i = 2; i <= MaxPopulations; ++i) {
        names += i % 2 == 0 ? " and x" : " or not x";
    }
    EXPECT_EQ(Answer(names, "1"), "1") << "sixteen names";
    EXPECT_EQ(TarkistaMaaritelma(kSlot, names + " or x"), kProblem);

    std::string words = "x";
    for (int i = 0; i < 100000; ++i) {
        words += " and x";
    }
    EXPECT_EQ(TarkistaMaaritelma(kSlot, words), kProblem);
    const std::string open(100000, '(');
    EXPECT_EQ(TarkistaMaaritelma(kSlot, open + "x" + std::string(100000, ')')), kProblem);
    EXPECT_EQ(TarkistaMaaritelma(kSlot, open), kError);
    EXPECT_EQ(TarkistaMaaritelma(kSlot, open + "x"), kProblem);
    const std::string word(1000000, 'Q');
    EXPECT_EQ(TarkistaMaaritelma(kSlot, word), kError + Pienet(word));
    EXPECT_EQ(Answer(std::string(500, '(') + "x" + std::string(500, ')'), "1"), "1");
}

TEST_F(DefinitionsTest, DefinitionsFollowTheirPopulations) {
    DefineAll({"Poly-1", "Poly-2", "Poly-10"});
    Define(kSlot, "poly-1 or Poly-2");
    Define(kSlot + 1, "Poly-2");
    Define(kSlot + 2, "Poly-10");
    Populaatiot(kSlot + 3).Name = "Poly-1";
    const auto refill = [](int16_t slot, uint8_t bit) {
        std::ranges::fill(Tiedostot(1).Membership.Sarake(slot), bit);
    };
    for (int16_t population = 1; population <= 3; ++population) {
        refill(population, 1);
    }
    TarkistaKayttavatMaaritelmat(1);
    const std::vector<uint8_t> none(5000, 0);
    const std::vector<uint8_t> all(5000, 1);
    EXPECT_EQ(Column(kSlot), all) << "in whatever case it was typed";
    EXPECT_EQ(Column(kSlot + 1), none) << "does not name it";
    EXPECT_EQ(Column(kSlot + 2), all) << "the name stands in it";
    EXPECT_EQ(Column(kSlot + 3), none) << "a free slot";

    Populaatiot(1).Defined = false;
    Populaatiot(1).Name.clear();
    TarkistaMaaritelmat();
    EXPECT_FALSE(Populaatiot(kSlot).Defined);
    EXPECT_EQ(Populaatiot(kSlot).Name, "poly-1 or Poly-2");
    EXPECT_EQ(Column(kSlot), all) << "members stay as they were";
    EXPECT_TRUE(Populaatiot(kSlot + 1).Defined);
    EXPECT_EQ(Column(kSlot + 1), all);
    EXPECT_TRUE(Populaatiot(kSlot + 2).Defined);
    EXPECT_FALSE(Populaatiot(kSlot + 3).Defined);
}

TEST_F(DefinitionsTest, RenamingKeepsEverythingElse) {
    Define(kSlot, "Poly-1 and not Poly-2");
    Populaatiot(kSlot + 1).Name = "(POLY-1  OR poly-10) and Not (poly-1)and(xPoly-1";
    NimeaMaaritelmissa("poly-1", "Gate");
    EXPECT_EQ(Populaatiot(kSlot).Name, "Gate and not Poly-2");
    EXPECT_EQ(Populaatiot(kSlot + 1).Name, "(Gate  OR poly-10) and Not (Gate)and(xPoly-1");
    EXPECT_EQ(VaihdaSanat("a or \xc3\x84 or b", "\xc3\xa4", "a (new) one"),
              "a or a (new) one or b");
    EXPECT_EQ(VaihdaSanat("a AND b", "and", "x"), "a AND b") << "a keyword names nobody";
    EXPECT_EQ(VaihdaSanat("a b", "a b", "x"), "a b");
    EXPECT_EQ(VaihdaSanat("a  b", "", "x"), "a  b");
}

}  // namespace
}  // namespace tessarin
