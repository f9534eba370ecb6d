// Bitmap files, taken apart by hand.
#include "core/Bitmap.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

uint32_t Word(const std::string& bytes, std::size_t at) {
    uint32_t word = 0;
    for (std::size_t i = 4; i-- > 0;) {
        word = word << 8U | static_cast<unsigned char>(bytes[at + i]);
    }
    return word;
}

TEST(Bitmap, RowsStandFromTheBottomInWholeWords) {
    for (int width = 1; width <= 5; ++width) {
        constexpr int kHeight = 2;
        Bitmap picture{width, kHeight, 1, {}};
        for (int i = 0; i < width * kHeight; ++i) {
            picture.pixels.push_back(0xff102030U + static_cast<uint32_t>(i) * 0x010101U);
        }
        const std::string bytes = BmpBytes(picture);
        const std::size_t row = static_cast<std::size_t>(width * 3 + 3) / 4 * 4;
        ASSERT_EQ(bytes.size(), 54 + row * kHeight);
        EXPECT_EQ(bytes.substr(0, 2), "BM");
        EXPECT_EQ(Word(bytes, 2), bytes.size());
        EXPECT_EQ(Word(bytes, 10), 54U);
        EXPECT_EQ(Word(bytes, 14), 40U);
        EXPECT_EQ(Word(bytes, 18), static_cast<uint32_t>(width));
        EXPECT_EQ(Word(bytes, 22), 2U);
        EXPECT_EQ(Word(bytes, 26), 0x00180001U) << "one plane of 24 bits";
        // The upper left pixel begins the last row, blue first; the lower left one the first.
        EXPECT_EQ(bytes.substr(54 + row, 3), "\x30\x20\x10");
        const auto below = static_cast<char>(0x30 + width);
        EXPECT_EQ(bytes[54], below);
        for (std::size_t i = static_cast<std::size_t>(width) * 3; i < row; ++i) {
            EXPECT_EQ(bytes[54 + i], '\0');
        }
    }
}

TEST(Bitmap, IsSavedWholeOrNotAtAll) {
    const TemporaryFolder folder;
    const Bitmap picture{1, 1, 1, {0xff0000ffU}};
    const std::string path = folder.Write("old.bmp", "an old picture");
    EXPECT_EQ(TalletaKuva(picture, path), "");
    std::ifstream in(path, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), BmpBytes(picture));
    EXPECT_NE(TalletaKuva(picture, folder.Path("no/such/folder.bmp")), "");
    std::filesystem::create_directories(folder.Path("taken/inside"));
    EXPECT_NE(TalletaKuva(picture, folder.Path("taken")), "");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("taken.part"))) << "nothing is left behind";
}

}  // namespace
}  // namespace tessarin
