// Definitions: what they mean, what they refuse, and how they follow their populations.
#include "populations/Definitions.h"

#include <algorithm>
#include <bitset>
#include <random>

#include "populations/DefinitionWords.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

constexpr int16_t kSlot = MaxPopulations + 3;
constexpr int32_t kEvents = 5000;
const std::string kProblem = "Problem in the definition";
const std::string kError = "Error in the definition: ";

using Members = std::bitset<kEvents>;

// A part of an expression with its answer for each event, worked out on its own.
struct Part {
    std::string text;
    Members answer;
};

class DefinitionsTest : public SessionTest {
  protected:
    DefinitionsTest() {
        for (Tiedosto* file : {&Tiedostot(1), &Tiedostot(2)}) {
            file->Valid = file == &Tiedostot(1);
            file->Membership.Mitoita(kEvents, kPopulationSlots);
            std::ranges::fill(file->Membership.OmaSarake(kSlot), 99);
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
    static void Fill(int16_t slot, uint8_t bit) {
        std::ranges::fill(Tiedostot(1).Membership.OmaSarake(slot), bit);
    }
    static bool All(int16_t slot, uint8_t bit) {
        return std::ranges::count(Tiedostot(1).Membership.Sarake(slot), bit) == kEvents;
    }

    // What the last event is when it is in the populations from slot 1 on that `bits` names; "-"
    // for a refusal.
    static std::string Answer(const std::string& expression, const std::string& bits) {
        auto& membership = Tiedostot(1).Membership;
        for (std::size_t i = 0; i < bits.size(); ++i) {
            membership.Aseta(kEvents, static_cast<int>(i) + 1, bits[i] == '1' ? 1 : 0);
        }
        Fill(kSlot, 99);
        const std::string message = TarkistaMaaritelma(kSlot, expression);
        EXPECT_TRUE(message.empty() || All(kSlot, 99)) << "nothing is changed";
        return message.empty() ? std::to_string(membership(kEvents, kSlot)) : "-";
    }

    // Operands joined by "and" and "or", some of them negated.
    Part Expression(const std::vector<Part>& names, int depth) {
        Part sum;
        Members product;
        for (bool first = true; first || random_() % 5 < 3; first = false) {
            Part operand = names[random_() % names.size()];
            if (depth > 0 && random_() % 3 == 0) {
                operand = Expression(names, depth - 1);
                operand.text = "(" + operand.text + ")";
            }
            if (random_() % 3 == 0) {
                operand = {"Not " + operand.text, ~operand.answer};
            }
            const bool isAnd = !first && random_() % 2 == 0;
            sum.text += (first ? "" : isAnd ? " aNd " : " or ") + operand.text;
            sum.answer |= isAnd ? Members() : product;
            product = isAnd ? product & operand.answer : operand.answer;
        }
        sum.answer |= product;
        return sum;
    }

    std::mt19937 random_{3};
};

TEST_F(DefinitionsTest, AnyExpressionMeansWhatItSays) {
    // Names that are letters, hold signs, begin alike, or are words of the language.
    DefineAll({"b", "and-b", "Poly-1", "Poly-10", "a*1", "not-a", "a", "0", "p", "or"});
    std::vector<Part> names(9);
    for (int16_t slot = 1; slot <= 9; ++slot) {
        Part& name = names[static_cast<std::size_t>(slot) - 1];
        name.text = Populaatiot(slot).Name;
        for (int32_t event = 1; event <= kEvents; ++event) {
            const bool member = random_() % 2 == 0;
            name.answer[static_cast<std::size_t>(event) - 1] = member;
            Tiedostot(1).Membership.Aseta(event, slot, member ? 1 : 0);
        }
    }
    for (int tried = 0; tried < 150;) {
        const Part part = Expression(names, 3);
        if (std::ranges::count(part.text, ' ') > 20) {
            continue;  // could name more than a definition may
        }
        ++tried;
        ASSERT_EQ(TarkistaMaaritelma(kSlot, part.text), "") << part.text;
        for (int32_t event = 1; event <= kEvents; ++event) {
            ASSERT_EQ(int{Tiedostot(1).Membership(event, kSlot)},
                      part.answer[static_cast<std::size_t>(event) - 1] ? 1 : 0)
                << part.text;
        }
    }
    EXPECT_TRUE(All(kSlot + 1, 0));
    EXPECT_EQ(std::ranges::count(Tiedostot(2).Membership.Sarake(kSlot), 99), kEvents)
        << "not Valid";
}

TEST_F(DefinitionsTest, OddFormsAreTakenAsTheyStand) {
    DefineAll({"a", "b", "Poly-3"});
    const std::tuple<std::string, std::string, std::string> answers[] = {
        {"A AND B and NOT poly-3", "110", "1"},
        {"A AND B and NOT poly-3", "111", "0"},
        {"a and a", "1", "1"},
        {"b and not b", "11", "0"},
        {"not (a or b)", "00", "1"},
        {"not (a or b)", "01", "0"},
        {"not (a or b)", "10", "0"},
        {"not (a or b)", "11", "0"},
        {"not (a or b) or Poly-3", "111", "1"},
        {"not (a or b) and not (a or Poly-3)", "111", "0"},
        {"(not a)", "1", "0"},
        {"(not a)", "0", "1"},
        {"b and (not a)", "01", "1"},
        {"not not a", "1", "1"},
        {"not ((a or b) and Poly-3)", "011", "0"},
        {"not ((a or b) and Poly-3)", "110", "1"},
    };
    for (const auto& [expression, bits, answer] : answers) {
        EXPECT_EQ(Answer(expression, bits), answer) << expression << " " << bits;
    }
    for (const char* text :
         {"a not b", "not a not", "a and not", "a b", "a and", "and a", "or", "not", "(and)",
          "a or or b", "a and or b", "(a", "a)", ")a(", "a (b)", "(a)(b) or b"}) {
        EXPECT_EQ(Answer(text, "110"), "-") << text;
    }
}

TEST_F(DefinitionsTest, UnknownWordsAreNamed) {
    DefineAll(
        {"Poly-1", "Two Words", "Poly-10", "and", "\xc3\x84\xce\xa9\xd0\x8f\xd0\xaf", "G(2)"});
    Define(kSlot + 1, "Other");
    Populaatiot(9).Name = "Free";
    const std::pair<std::string, std::string> messages[] = {
        {"Poly-1 or Poly-2", kError + "poly-2"},
        {"(GATE or Poly-7)", kError + "gate"},  // the first one
        {"Two Words", kError + "two"},
        {"Poly-1 or Free", kError + "free"},
        {"Poly-1 or Other", kError + "other"},
        {"Poly-1 and(Poly-10)", kError + "andpoly-10"},
        {"g(2)", kError + "g2"},
        {"\xc3\x96", kError + "\xc3\xb6"},
        {"poly-1 & \xc3", kError + "&"},
        {"", kError},
        {"Poly-1  or Poly-10", kError},
        {" Poly-1", kError},
        {"Poly-1 ", kError},
        {"()", kError},
        {"and", kProblem},  // a keyword is nobody's name
        {"Poly-1 and Poly-10", ""},
        {"\xc3\xa4\xcf\x89\xd1\x9f\xd1\x8f", ""},  // other letters have cases too
    };
    for (const auto& [expression, message] : messages) {
        EXPECT_EQ(TarkistaMaaritelma(kSlot, expression), message) << expression;
    }
}

TEST_F(DefinitionsTest, LimitsEndInAMessage) {
    DefineAll({"x"});
    std::string words = "x";
    for (int i = 2; i <= MaxPopulations; ++i) {
        words += " or not x";
    }
    EXPECT_EQ(Answer(words, "1"), "1") << "sixteen names";
    EXPECT_EQ(TarkistaMaaritelma(kSlot, words + " or x"), kProblem);
    while (words.size() < 1000000) {
        words += " and " + words;
    }
    EXPECT_EQ(TarkistaMaaritelma(kSlot, words), kProblem);
    const std::string open(100000, '(');
    EXPECT_EQ(TarkistaMaaritelma(kSlot, open + "x" + std::string(100000, ')')), kProblem);
    EXPECT_EQ(TarkistaMaaritelma(kSlot, open), kError);
    EXPECT_EQ(Answer(std::string(500, '(') + "x" + std::string(500, ')'), "1"), "1");
    const std::string word(1000000, 'Q');
    EXPECT_EQ(TarkistaMaaritelma(kSlot, word), kError + Pienet(word));
}

TEST_F(DefinitionsTest, DefinitionsFollowTheirPopulations) {
    DefineAll({"Poly-1", "Poly-2"});
    Define(kSlot, "poly-1 or Poly-2");
    Define(kSlot + 1, "Poly-2");
    Fill(1, 1);
    Fill(2, 1);
    TarkistaKayttavatMaaritelmat(1);
    EXPECT_TRUE(All(kSlot, 1)) << "in whatever case it was typed";
    EXPECT_TRUE(All(kSlot + 1, 0)) << "does not name it";
    Populaatiot(1).Defined = false;
    TarkistaMaaritelmat();
    EXPECT_FALSE(Populaatiot(kSlot).Defined);
    EXPECT_EQ(Populaatiot(kSlot).Name, "poly-1 or Poly-2");
    EXPECT_TRUE(All(kSlot, 1)) << "members stay as they were";
    EXPECT_TRUE(Populaatiot(kSlot + 1).Defined && All(kSlot + 1, 1));
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
