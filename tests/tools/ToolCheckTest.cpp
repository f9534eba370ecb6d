// Rows that the language does not know, as the tool window tells them while one types.
#include "tools/ToolCheck.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/Text.h"
#include "tests/support/RealData.h"
#include "tools/ToolPack.h"

namespace tessarin {
namespace {

using Rows = std::vector<std::string>;

// "~" stands for a line end.
Rows Unknown(const std::string& lines, std::size_t most = 9) {
    return TuntemattomatRivit(KorvaaTeksti(lines, "~", "\n") + "\n", most);
}

TEST(ToolCheckTest, WordsOfNoFamilyAreTold) {
    for (const std::string path :
         {"w.1.axsis.x", "window.1.file.laod", "p.1.colour.red", "p.1", "f.1.parameter.2.lin",
          "create", "question.$a.ask", "$a.sett", "$a", "$a.if.larger", "if.maybe", "loops"}) {
        EXPECT_EQ(Unknown("# a comment~" + path + ":5"),
                  Rows{"Row 2: `" + path + "` is no command"});
    }
    EXPECT_EQ(Unknown("     ~:55~" + std::string(50, 'x')),
              (Rows{"Row 1: a row of blanks is no command", "Row 2: `:55` is no command",
                    "Row 3: `" + std::string(39, 'x') + "\xe2\x80\xa6` is no command"}));
    EXPECT_EQ(Unknown("a~  ~if~ # a remark~x endif~do:5~loop:$a=5~w.$n.size.x:5~$a.calc:1"),
              Rows{});
}

TEST(ToolCheckTest, QuestionsThatNobodyAnswersAreTold) {
    for (const std::string query : {"@.w.1.filname", "@.w.$n.quadrant.xx.$s", "@.x", "@."}) {
        EXPECT_EQ(Unknown("$a.set:" + query), Rows{"Row 1: `" + query + "` is no query"});
    }
    for (const char* query :
         {"@home", "@.$n", "@.w.$n.quadrant.$q.$s", "@.$kind.1.exists", "@.time"}) {
        EXPECT_EQ(Unknown(std::string("message:") + query), Rows{}) << query;
    }
}

// What a condition may let through is looked at, what it never does is not.
TEST(ToolCheckTest, RowsHeldBackInEveryRunMaySayAnything) {
    EXPECT_EQ(Unknown("if.true:no~one~$a.if.same:5~two~endif~three~endif~four"),
              Rows{"Row 8: `four` is no command"});
    EXPECT_EQ(Unknown("if.false:true~one~endif"), Rows{});
    EXPECT_EQ(Unknown("if.maybe:true~one~endif~$a.if.about:5~one~endif"),
              (Rows{"Row 1: `if.maybe` is no command", "Row 4: `$a.if.about` is no command"}));
    for (const char* may : {"if.true:true", "if.false:false", "if.true:$a", "if.false:@.w.1.exists",
                            "$a.if.same:b", "$a.if.bigger:1"}) {
        EXPECT_EQ(Unknown(std::string(may) + "~one~endif"), Rows{"Row 2: `one` is no command"})
            << may;
    }
}

TEST(ToolCheckTest, TheFirstFewAreEnough) {
    EXPECT_EQ(Unknown("one~two~three", 2).size(), 2U);
    for (const auto& entry : std::filesystem::directory_iterator(SourceFile("scripts"))) {
        EXPECT_EQ(TuntemattomatRivit(LueTyokalu(entry.path()).text, 3), Rows{}) << entry.path();
    }
}

}  // namespace
}  // namespace tessarin
