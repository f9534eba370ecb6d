// The words of the command line.
#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace tessarin {
namespace {

CommandLine Take(const std::vector<std::string>& words) {
    return TakeCommandLine(words);
}

TEST(CommandLineTest, TakesOptionsAndFilesInAnyOrder) {
    const CommandLine line =
        Take({"a.fcs",         "--headless", "--max-events", "10",          "--fast-draw-limit=7",
              "--neg-bumper",  "--printer",  "p.pdf",        "--snapshot",  "p.png",
              "--clipboard",   "c.txt",      "--save-sheet", "s.tessarin",  "--save-fcs",
              "2=x=y.fcs",     "--menu",     "2:3",          "--menu=1:18", "--",
              "--odd-name.fcs"});
    EXPECT_EQ(line.error, "");
    EXPECT_TRUE(line.headless && line.negBumper);
    EXPECT_EQ(line.maxEvents, 10);
    EXPECT_EQ(line.fastDrawLimit, 7);
    EXPECT_EQ(line.snapshot, "p.png");
    EXPECT_EQ(line.printer, "p.pdf");
    EXPECT_EQ(line.clipboard, "c.txt");
    EXPECT_EQ(line.sheet, "s.tessarin");
    ASSERT_EQ(line.fcs.size(), 1U);
    EXPECT_EQ(line.fcs[0].window, 2);
    EXPECT_EQ(line.fcs[0].path, "x=y.fcs");
    ASSERT_EQ(line.menu.size(), 2U);
    EXPECT_EQ(line.menu[0].window, 2);
    EXPECT_EQ(line.menu[1].item, 18);
    EXPECT_EQ(line.files, (std::vector<std::string>{"a.fcs", "--odd-name.fcs"}));
}

TEST(CommandLineTest, RefusesWhatItCannotUse) {
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--max-events"},
                                                  {"--max-events", "0"},
                                                  {"--max-events", "few"},
                                                  {"--snapshot="},
                                                  {"--headless=yes"},
                                                  {"--unknown"},
                                                  {"-x"},
                                                  {"--menu", "3"},
                                                  {"--menu", "0:1"},
                                                  {"--menu", "1:x"},
                                                  {"--save-fcs", "file"},
                                                  {"--save-fcs", "1="},
                                                  {"--menu", "99999999:1"}}) {
        EXPECT_NE(Take(words).error, "") << words[0];
    }
}

}  // namespace
}  // namespace tessarin
