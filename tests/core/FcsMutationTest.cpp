// Files that were damaged at random: each must be read or refused, in bounded time and memory.
//
// The damage comes from a fixed seed, so that a failure can be repeated. TESSARIN_MUTATIONS sets
// how many files are tried.
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include "core/Kompensaatio.h"
#include "core/Projektio.h"
#include "tests/support/RealData.h"
#include "tests/support/SessionFixture.h"

namespace tessarin {
namespace {

constexpr std::size_t kMostSeedBytes = 40000;
constexpr std::size_t kHeaderBytes = 58;

class Damage {
  public:
    explicit Damage(std::string& bytes, std::mt19937& random) : bytes_(bytes), random_(random) {}

    void DoOne() {
        switch (Below(6)) {
            case 0:
                bytes_.resize(Below(bytes_.size() + 1));
                break;
            case 1:
                FlipBits();
                break;
            case 2:
                ReplaceNumber();
                break;
            case 3:
                SwapSegments();
                break;
            case 4:
                DoubleDelimiter();
                break;
            default:
                ChangeHeader();
                break;
        }
    }

  private:
    std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

    const char* BadNumber() {
        static constexpr const char* kNumbers[] = {
            "0",      "-1",    "1",    "3",      "99999999999", "2147483647", "-2147483648",
            "32767",  "1e308", "-1e9", "nan",    "garbage",     "",           "4.4",
            "262144", "16",    "24",   "1000000"};
        return kNumbers[Below(std::size(kNumbers))];
    }
    void FlipBits() {
        for (std::size_t left = 1 + Below(20); left > 0 && !bytes_.empty(); --left) {
            // Half of them at the front, where the keywords are.
            const std::size_t at = Below(Below(2) == 0 ? bytes_.size() : bytes_.size() / 8 + 1);
            bytes_[at] = static_cast<char>(bytes_[at] ^ (1 << Below(8)));
        }
    }
    void ReplaceNumber() {
        const std::size_t from = kHeaderBytes + Below(std::min<std::size_t>(bytes_.size(), 6000));
        const std::size_t first = bytes_.find_first_of("0123456789", from);
        if (first != std::string::npos) {
            const std::size_t end = bytes_.find_first_not_of("0123456789.", first);
            bytes_.replace(first, std::min(end, bytes_.size()) - first, BadNumber());
        }
    }
    void SwapSegments() {
        const std::size_t a = Below(bytes_.size());
        const std::size_t b = a + Below(bytes_.size() - a);
        const std::size_t c = b + Below(bytes_.size() - b);
        const auto begin = bytes_.begin();
        std::rotate(begin + static_cast<std::ptrdiff_t>(a), begin + static_cast<std::ptrdiff_t>(b),
                    begin + static_cast<std::ptrdiff_t>(c));
    }
    void DoubleDelimiter() {
        const std::size_t at =
            bytes_.size() <= kHeaderBytes
                ? std::string::npos
                : bytes_.find(bytes_[kHeaderBytes], kHeaderBytes + Below(bytes_.size() / 4));
        if (at != std::string::npos) {
            bytes_.insert(at, 1 + Below(3), bytes_[at]);
        }
    }
    void ChangeHeader() {
        std::string number = BadNumber();
        if (Below(2) == 0) {
            number = std::to_string(Below(bytes_.size() + 100));
        }
        number.resize(8, ' ');
        const std::size_t at = 10 + 8 * Below(4);
        if (bytes_.size() >= at + 8) {
            bytes_.replace(at, 8, number);
        }
    }

    std::string& bytes_;
    std::mt19937& random_;
};

class FcsMutationTest : public SessionTest {
  protected:
    FcsMutationTest() {
        // A population that reads its positions as those of the windows do.
        AsetaArvioija("Polygon", [](int16_t slot) {
            Tiedosto& file = Tiedostot(1);
            for (int32_t event = 1; event <= std::min(file.EventCount, 20); ++event) {
                const double x = AnnaPaikka(file, event, file.ChannelCount, 10000);
                file.Membership(event, slot) = x < 5000 ? 1 : 0;
            }
        });
        Populaatiot(MaxPopulations).Defined = true;
        Populaatiot(MaxPopulations).Type = "Polygon";
    }

    static std::vector<std::string> Seeds() {
        std::vector<std::string> seeds;
        for (const auto& [type, bits, order] :
             {std::tuple("I", 16, "4,3,2,1"), std::tuple("I", 32, "1,2,3,4"),
              std::tuple("F", 32, "1,2,3,4"), std::tuple("F", 32, "4,3,2,1")}) {
            FcsBuilder built(type, bits, order, 4, 50);
            built.Set("$CYT", bits == 16 ? "FACSCalibur" : "LSRII").Set("$P3E", "4,0");
            built.Set("APPLY COMPENSATION", "TRUE").Set("SPILL", "2,C1,C4,1,0.1,0.2,1");
            built.Set("$COMP", "2,0,-10,-20,0").Set("P1DISPLAY", "LOG").Set("$BEGINDATA", "700");
            for (uint32_t i = 0; i < 200; ++i) {
                built.AddInteger(i * 2654435761U);
            }
            seeds.push_back(built.Bytes());
        }
        for (const char* name :
             {"facscan-fcs2-int16-be/Data001.fcs", "partec-fcs2-int16-le/Partec.fcs",
              "lsrii-spill-pair/fake_large_fcs.fcs", "aria-index-sort/index_sorted_example.fcs",
              "eclipse-int32-le/iCyt.fcs", "qa-int16-le-padded-keys/PU87@2+B200.fcs"}) {
            if (const auto path = RealFile(name)) {
                std::ifstream in(*path, std::ios::binary);
                std::string head(kMostSeedBytes, '\0');
                in.read(head.data(), static_cast<std::streamsize>(head.size()));
                head.resize(static_cast<std::size_t>(in.gcount()));
                seeds.push_back(head);
            }
        }
        return seeds;
    }

    static void ExpectConsistent(const Tiedosto& file, std::size_t bytes) {
        const int32_t events = file.EventCount;
        const int channels = file.ChannelCount;
        ASSERT_GE(events, 0);
        ASSERT_LE(events, MaxLoadedEvents);
        ASSERT_GE(channels, 1);
        ASSERT_NE(file.Fingerprint, 0);
        ASSERT_EQ(file.Channels.size(), channels);
        ASSERT_TRUE(file.Data.Events() == events && file.Data.Columns() == channels);
        ASSERT_TRUE(file.RawData.Events() == events && file.RawData.Columns() == channels);
        ASSERT_TRUE(file.Membership.Events() == events &&
                    file.Membership.Columns() == kPopulationSlots);
        ASSERT_TRUE(file.Compensation.Events() == channels &&
                    file.Compensation.Columns() == channels);
        // A file of `bytes` gets no more than 256 MB and 64 times its size.
        const double tables = 8.0 * events * channels + 32.0 * events + 4.0 * channels * channels;
        ASSERT_LE(tables, 256.0 * 1024 * 1024 + 64.0 * static_cast<double>(bytes));
        for (int32_t event = 1; event <= events; event += std::max(1, events / 3)) {
            for (int channel = 1; channel <= channels; channel += std::max(1, channels / 3)) {
                ASSERT_GE(AnnaPaikka(file, event, static_cast<int16_t>(channel), 10000), 0)
                    << file.Data(event, channel);
            }
        }
    }
};

TEST_F(FcsMutationTest, DamagedFilesAreReadOrRefused) {
    const char* wanted = std::getenv("TESSARIN_MUTATIONS");
    const int count = wanted != nullptr ? std::atoi(wanted) : 1500;
    const std::vector<std::string> seeds = Seeds();
    std::mt19937 random(2026);
    int valid = 0;
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE("mutation " + std::to_string(i));
        std::string bytes = seeds[static_cast<std::size_t>(i) % seeds.size()];
        for (auto left = 1 + random() % 4; left > 0; --left) {
            Damage(bytes, random).DoOne();
        }
        // Most runs stop at few events to be quick; some take as many as the program does.
        MaxLoadedEvents = i % 50 == 0 ? kDefaultMaxLoadedEvents : 2000;
        KaytaNegAbsJuttua = i % 2 == 0;
        const auto start = std::chrono::steady_clock::now();
        Tiedostot(1) = ReadBytes(bytes);
        Tiedosto& file = Tiedostot(1);
        if (!file.Valid) {
            ExpectRefused(file);
        } else {
            ++valid;
            ExpectConsistent(file, bytes.size());
            LaskeKompensaatio(file);
            ExpectConsistent(file, bytes.size());
            TarkistaPopulaatiot();
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        EXPECT_LT(took.count(), 20.0);
        if (HasFailure()) {
            folder.Write("../tessarin-failed.fcs", bytes);
            FAIL() << "kept as tessarin-failed.fcs in the folder for temporary files";
        }
    }
    EXPECT_GT(valid, count / 4) << "too many are refused to prove anything about reading";
    EXPECT_LT(valid, count) << "some must be refused";
}

}  // namespace
}  // namespace tessarin
