// Keyword searches against a regular-expression engine, on texts made to trip them.
#include "core/FcsKeywords.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "core/Text.h"

namespace tessarin {
namespace {

using Kind = ChannelKeywords::Kind;

struct Search {
    std::string pattern;
    int channel = 0;  // 0 for a keyword that stands once
    Kind kind{};
    std::regex engine{};
};

TEST(Keywords, AgreeWithARegularExpression) {
    std::vector<Search> searches = {
        {"\\$TOT"}, {"\\$COM"}, {"\\SAMPLE ID"}, {"\\SPILL"}, {"\\APPLY COMPENSATION"}};
    for (const int channel : {1, 2, 12, 13}) {
        const std::string p = "P" + std::to_string(channel);
        searches.push_back({"\\$" + p + "N", channel, Kind::kName});
        searches.push_back({"\\$" + p + "R", channel, Kind::kRange});
        searches.push_back({"\\$" + p + "B", channel, Kind::kBits});
        searches.push_back({p + "E", channel, Kind::kLog});
        searches.push_back({p + "DISPLAY", channel, Kind::kDisplay});
    }
    for (Search& search : searches) {  // the engine knows no "\A"
        const std::size_t skipped = search.pattern.starts_with("\\A") ? 1 : 0;
        search.engine = "(" + search.pattern.substr(skipped) + ")\x0c([^\n]+?)\x0c";
    }
    // Pieces of keywords, so that whole ones come up often, among delimiters, blanks, line feeds.
    const auto pieces = Split(
        "$TOT|TOT|$COM|$COMP|SAMPLE ID| AMPLE ID|xAMPLE ID|SPILL|$|PILL| |\tPILL|APPLY "
        "COMPENSATION|$P1E|P1E|P11E|P|1E|\n|a\nb|P1DISPLAY|$P1|DISPLAY|\r|4,0|\xc3\xa9|$P1N|$P12N|"
        "P1N|$P1R|$P2R|$P12B|$P1B|P2E|$P12E|P112E|P02E|$P13|N|E|P12DISPLAY|2|$P|P9999999E|"
        "$P2DISPLAY|$P0N|3R",
        '|');
    std::mt19937 random(11);
    int found = 0;
    for (int i = 0; i < 2000; ++i) {
        std::string text;
        for (auto left = 1 + random() % 30; left > 0; --left) {
            text += random() % 2 == 0 ? std::string_view("\f") : pieces[random() % pieces.size()];
        }
        const ChannelKeywords keywords(text, 13);
        for (const Search& search : searches) {
            std::smatch match;
            const bool holds = std::regex_search(text, match, search.engine);
            const std::string expected = holds ? match[2].str() : "";
            ASSERT_EQ(HaeAvainsana(search.pattern, text), expected)
                << search.pattern << " " << text;
            if (search.channel > 0) {
                ASSERT_EQ(keywords.Value(search.kind, search.channel), expected) << text;
            }
            found += holds ? 1 : 0;
        }
    }
    EXPECT_GT(found, 1000) << "the texts hold too few keywords to prove anything";
}

}  // namespace
}  // namespace tessarin
