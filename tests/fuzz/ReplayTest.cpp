// Feeds one fuzzed function all that fuzzers have found worth keeping.
#include <gtest/gtest.h>

#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size);

namespace tessarin {
namespace {

TEST(ReplayTest, TheWholeCorpus) {
    int replayed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TESSARIN_CORPUS_FOLDER)) {
        std::cout << entry.path().filename() << std::endl;  // the last one is what crashed
        std::ifstream in(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
        const std::vector<uint8_t> input(bytes.begin(), bytes.end());
        try {
            LLVMFuzzerTestOneInput(input.data(), input.size());
        } catch (const std::exception& broken) {
            ADD_FAILURE() << entry.path() << ": " << broken.what();
        }
        ++replayed;
    }
    EXPECT_GT(replayed, 0);
}

}  // namespace
}  // namespace tessarin
