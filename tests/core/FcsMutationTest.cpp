// Files that were damaged at random: each must be read or refused, in bounded time and memory.
//
// The damage comes from a fixed seed, so that a failure can be repeated. TESSARIN_MUTATIONS sets
// how many files are tried.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include "core/Kompensaatio.h"
#include "tests/support/RealData.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

using FcsMutationTest = SessionTest;

std::vector<std::string> Seeds() {
    std::vector<std::string> seeds;
    for (const auto& [type, bits, order] : {std::tuple("I", 16, "4,3,2,1"),
                                            {"I", 32, "1,2,3,4"},
                                            {"F", 32, "1,2,3,4"},
                                            {"F", 32, "4,3,2,1"}}) {
        FcsBuilder built(type, bits, order, 4, 50);
        built.Change("APPLY COMPENSATION=TRUE;SPILL=2,C1,C4,1,0.1,0.2,1;$COMP=2,0,-10,-20,0");
        built.Change("$CYT=LSRII;$P3E=4,0;P1DISPLAY=LOG;$BEGINDATA=700");
        for (uint32_t i = 0; i < 200; ++i) {
            built.AddInteger(i * 2654435761U);
        }
        seeds.push_back(built.Bytes());
    }
    for (const char* name :
         {"facscan-fcs2-int16-be/Data001.fcs", "lsrii-spill-pair/fake_large_fcs.fcs"}) {
        if (const auto path = RealFile(name)) {
            seeds.emplace_back(40000, '\0');
            std::ifstream(*path, std::ios::binary).read(seeds.back().data(), 40000);
        }
    }
    return seeds;
}

void Damage(std::string& bytes, std::mt19937& random) {
    static constexpr const char* kBadNumbers[] = {
        "0",    "-1",  "3",   "99999999999", "2147483647", "-2147483648", "32767", "1e308",
        "-1e9", "nan", "4.4", "garbage",     "",           "262144",      "24",    "1000000"};
    const auto below = [&](std::size_t limit) { return limit == 0 ? 0 : random() % limit; };
    std::string number = kBadNumbers[below(std::size(kBadNumbers))];
    const std::size_t digit = bytes.find_first_of("0123456789", 58 + below(6000));
    switch (below(4)) {
        case 0:
            bytes.resize(below(bytes.size() + 1));
            break;
        case 1:
            for (std::size_t left = 1 + below(20); left > 0 && !bytes.empty(); --left) {
                // Half of them at the front, where the keywords are.
                const std::size_t at = below(below(2) == 0 ? bytes.size() : bytes.size() / 8 + 1);
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
            }
            break;
        case 2:  // a number in a keyword, perhaps
            if (digit != std::string::npos) {
                bytes.replace(digit, bytes.find_first_not_of("0123456789.", digit) - digit, number);
            }
            break;
        default:  // an offset in the header
            number = below(2) == 0 ? number : std::to_string(below(bytes.size() + 100));
            number.resize(8, ' ');
            bytes.resize(std::max<std::size_t>(bytes.size(), 58));
            bytes.replace(10 + 8 * below(4), 8, number);
            break;
    }
}

TEST_F(FcsMutationTest, DamagedFilesAreReadOrRefused) {
    const char* wanted = std::getenv("TESSARIN_MUTATIONS");
    const int count = wanted != nullptr ? std::atoi(wanted) : 1500;
    const std::vector<std::string> seeds = Seeds();
    std::mt19937 random(2026);
    int valid = 0;
    for (int i = 0; i < count; ++i) {
        std::string bytes = seeds[static_cast<std::size_t>(i) % seeds.size()];
        for (auto left = 1 + random() % 4; left > 0; --left) {
            Damage(bytes, random);
        }
        // Most runs stop at few events to be quick; some take as many as the program does.
        MaxLoadedEvents = i % 50 == 0 ? kDefaultMaxLoadedEvents : 2000;
        Tiedosto file = ReadBytes(bytes);
        if (file.Valid) {
            ++valid;
            LaskeKompensaatio(file);
            const auto cells = int64_t{file.EventCount} * file.ChannelCount;
            EXPECT_TRUE(file.EventCount >= 0 && file.EventCount <= MaxLoadedEvents);
            EXPECT_EQ(int64_t{file.Data.Events()} * file.Data.Columns(), cells);
            EXPECT_EQ(file.Membership.Events(), file.EventCount);
            const double tables = 8.0 * static_cast<double>(cells) + 32.0 * file.EventCount;
            // A byte that is there is a value at most, of 8 bytes with 32 for its event.
            EXPECT_LE(tables, 1048576 + 40.0 * static_cast<double>(bytes.size()));
        } else {
            ExpectRefused(file);
        }
        if (HasFailure()) {
            folder.Write("../tessarin-failed.fcs", bytes);
            FAIL() << "mutation " << i << " is tessarin-failed.fcs in the folder for such files";
        }
    }
    EXPECT_GT(valid, count / 4) << "too many are refused to prove anything about reading";
    EXPECT_LT(valid, count) << "some must be refused";
}

}  // namespace
}  // namespace tessarin
