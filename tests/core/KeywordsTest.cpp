// Keyword searches against a regular-expression engine, on texts made to trip them.
#include "core/FcsKeywords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <regex>

#include "core/Text.h"

namespace tessarin {
namespace {

// The pattern as the engine wants it: it knows no escaped letter but those of its classes.
std::string EngineKeyword(const std::string& pattern) {
    return pattern.starts_with("\\A") ? pattern.substr(1) : pattern;
}

std::regex Engine(const std::string& pattern) {
    return std::regex("(" + EngineKeyword(pattern) + ")\x0c([^\n]+?)\x0c");
}

std::string ByEngine(const std::regex& engine, const std::string& text) {
    std::smatch match;
    return std::regex_search(text, match, engine) ? match[2].str() : "";
}

// Pieces of keywords, so that whole ones come up often, among delimiters, blanks and line feeds.
std::string RandomText(std::mt19937& random, const std::vector<std::string_view>& pieces) {
    std::string text;
    for (auto left = 1 + random() % 30; left > 0; --left) {
        text += random() % 2 == 0 ? std::string_view("\f") : pieces[random() % pieces.size()];
    }
    return text;
}

TEST(Keywords, AgreeWithARegularExpression) {
    const std::vector<std::string> patterns = {
        "\\$TOT", "\\$COM", "\\SAMPLE ID", "\\SPILL", "\\APPLY COMPENSATION", "P1E", "P1DISPLAY"};
    const auto pieces = Split(
        "$TOT|TOT|$COM|$COMP|SAMPLE ID| AMPLE ID|xAMPLE ID|SPILL|$|PILL| |\tPILL|APPLY "
        "COMPENSATION|$P1E|P1E|P11E|P|1E|\n|a\nb|P1DISPLAY|$P1|DISPLAY|\r|4,0|\xc3\xa9",
        '|');
    std::vector<std::regex> engines;
    std::transform(patterns.begin(), patterns.end(), std::back_inserter(engines), Engine);
    std::mt19937 random(11);
    int found = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string text = RandomText(random, pieces);
        for (std::size_t k = 0; k < patterns.size(); ++k) {
            const std::string expected = ByEngine(engines[k], text);
            ASSERT_EQ(HaeAvainsana(patterns[k], text), expected) << patterns[k] << " in " << text;
            found += expected.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(found, 1000) << "the texts hold too few keywords to prove anything";
}

TEST(Keywords, OfChannelsAgreeWithSingleSearches) {
    using Kind = ChannelKeywords::Kind;
    const auto pieces = Split(
        "$P1N|$P12N|P1N|$P1R|$P2R|$P12B|$P1B|P2E|$P12E|P112E|P02E|$P13|N|E|P12DISPLAY|2|$P|"
        "P9999999E|x|\n|DISPLAY|$P2DISPLAY|$P0N|$P3N|3R",
        '|');
    constexpr int kChannels = 13;
    std::mt19937 random(12);
    int found = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string text = RandomText(random, pieces);
        const ChannelKeywords keywords(text, kChannels);
        for (int n = 1; n <= kChannels; ++n) {
            const std::string p = "P" + std::to_string(n);
            const std::pair<Kind, std::string> searches[] = {{Kind::kName, "\\$" + p + "N"},
                                                             {Kind::kRange, "\\$" + p + "R"},
                                                             {Kind::kBits, "\\$" + p + "B"},
                                                             {Kind::kLog, p + "E"},
                                                             {Kind::kDisplay, p + "DISPLAY"}};
            for (const auto& [kind, pattern] : searches) {
                const std::string_view expected = HaeAvainsana(pattern, text);
                ASSERT_EQ(keywords.Value(kind, n), expected) << pattern << " in " << text;
                found += expected.empty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(found, 1000) << "the texts hold too few keywords to prove anything";
}

}  // namespace
}  // namespace tessarin
