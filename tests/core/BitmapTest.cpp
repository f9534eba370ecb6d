// Bitmap files, byte by byte.
#include "core/Bitmap.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/Leftovers.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

using std::string_literals::operator""s;

TEST(Bitmap, IsSavedFromTheBottomInWholeWords) {
    const Bitmap picture{2, 2, 1, {0xff010203, 0xff040506, 0xffffffff, 0xff000000}};
    const TemporaryFolder folder;
    const std::string path = folder.Write("old.bmp", "an old picture");
    EXPECT_EQ(TalletaKuva(picture, path), "");
    std::ifstream in(path, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}),
              "BM\x46\0\0\0\0\0\0\0\x36\0\0\0"        // 70 bytes, the pixels from 54 on
              "\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0"  // 2 by 2, one plane of 24 bits
              "\0\0\0\0\x10\0\0\0"                    // 16 bytes of pixels as they are
              "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"      // no resolution, no palette
              "\xff\xff\xff\0\0\0\0\0"                // the lower row
              "\3\2\1\6\5\4\0\0"s);                   // the upper one, blue first
    EXPECT_EQ(BmpBytes({1, 1, 1, {0}}).size(), 54U + 4);
    EXPECT_EQ(BmpBytes({4, 1, 1, {0, 0, 0, 0}}).size(), 54U + 12);
    std::filesystem::create_directories(folder.Path("taken/inside"));
    EXPECT_NE(TalletaKuva(picture, folder.Path("taken")), "");
    EXPECT_TRUE(Leftovers(folder.Path()).empty());
}

}  // namespace
}  // namespace tessarin
