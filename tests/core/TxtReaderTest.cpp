// Reading tabbed text tables, good ones and hostile ones.
#include "core/TXTReader.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "core/Muuttujat.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/SessionFixture.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

class TxtReaderTest : public SessionTest {
  protected:
    TxtTulos Read(std::string_view bytes) { return LueTXT(folder_.Write("table.txt", bytes)); }

    TemporaryFolder folder_;
};

TEST_F(TxtReaderTest, TitlesRowsAndNumbers) {
    const TxtTulos plain = Read("A\tB\r\n1\t-2.5\r\n1e3\t 7 \r\n");
    ASSERT_TRUE(plain.file.Valid);
    EXPECT_EQ(plain.file.ChannelCount, 2);
    EXPECT_EQ(plain.file.EventCount, 2);
    EXPECT_FALSE(plain.file.HasRowNames);
    EXPECT_EQ(plain.file.Channels(2).Name, "B");
    EXPECT_EQ(plain.file.Channels(2).Range, 1023);
    EXPECT_EQ(plain.file.Data(1, 2), -2.5F);
    EXPECT_EQ(plain.file.RawData(2, 1), 1000);
    EXPECT_EQ(plain.file.Data(2, 2), 7);
    EXPECT_EQ(plain.badCells, 0);
    EXPECT_NE(plain.file.Fingerprint, 0);
    EXPECT_EQ(TaulukkoTekstina(plain.file), "1\t-2.5\t\n1000\t7\t\n");

    const TxtTulos named = Read("\xef\xbb\xbfName\tA \xb5\n\"a \"\"b\"\"\tc\"\t\"1,5\"\nlast\t2");
    ASSERT_TRUE(named.file.Valid);
    EXPECT_TRUE(named.file.HasRowNames);
    EXPECT_EQ(named.file.EventCount, 2);
    EXPECT_EQ(named.file.Channels(1).Name, "A \xc2\xb5");
    EXPECT_EQ(named.file.RowNames(1), "a \"b\"\tc");
    EXPECT_EQ(named.file.Data(1, 1), 1.5F);
    EXPECT_EQ(named.file.RowNames(2), "last");
}

TEST_F(TxtReaderTest, WhatIsNoNumberIsZeroAndCounted) {
    const TxtTulos read = Read("A\tB\tC\n1\n\n1,2,3\tx\t1.5,2\textra\t9\n");
    ASSERT_TRUE(read.file.Valid);
    EXPECT_EQ(read.file.EventCount, 3);
    EXPECT_EQ(read.badCells, 2 + 3 + 3);
    EXPECT_EQ(read.file.Data(1, 1), 1);
    EXPECT_EQ(read.file.Data(3, 1), 0);
}

TEST_F(TxtReaderTest, HostileTablesAreRefusedOrOpenSmall) {
    EXPECT_FALSE(Read("").file.Valid);
    EXPECT_FALSE(Read("Name\n1\n").file.Valid) << "no channel";
    EXPECT_EQ(LueTXT(folder_.Path("missing.txt")).file.Refusal, "No such file or directory");
    EXPECT_EQ(LueTXT(folder_.Path()).file.Refusal, "it is a folder");
    const std::string table = "A\tB\n1\t2\n3\t4\n";
    ASSERT_TRUE(LueTXT(*BadFile(table, table.size()), "t.txt").file.Valid);
    for (std::size_t good = 0; good < table.size(); ++good) {
        EXPECT_EQ(LueTXT(*BadFile(table, good), "t.txt").file.Refusal, kReadError) << good;
    }
    std::ofstream(folder_.Path("sparse.txt")) << "A\n";
    std::filesystem::resize_file(folder_.Path("sparse.txt"), uint64_t{3} << 30U);
    EXPECT_EQ(LueTXT(folder_.Path("sparse.txt")).file.Refusal, "it is larger than 2048 MB");
    EXPECT_FALSE(Read(std::string(100000, '\t') + "\n1\n").file.Valid);
    EXPECT_FALSE(Read(std::string(32000, '\t') + "\n" + std::string(200000, '\n')).file.Valid)
        << "tables that the file only promises";
    EXPECT_EQ(Read("one line").file.EventCount, 0);
    EXPECT_EQ(Read(std::string(10 << 20, 'x') + "\n1\n").file.Data(1, 1), 1);
    EXPECT_EQ(Read("A\n" + std::string(10 << 20, '9') + "\n").badCells, 1);
    EXPECT_EQ(Read(std::string("A\n\0\n5\0\n", 7)).file.Data(2, 1), 5);
    MaxLoadedEvents = 2;
    const Tiedosto cut = Read("A\n1\n2\n3,5\n").file;
    EXPECT_EQ(cut.EventCount, 2);
    EXPECT_EQ(cut.Oddities, "only the first 2 of 3 rows are loaded");
    EXPECT_EQ(Read("A\n1\n2,5\n").file.Oddities,
              "1 cells had a comma, which was read as the decimal point");
}

// Damages a good table at random places: a byte, a stretch repeated, cut out, or a telling text
// put in. The seed is fixed; TESSARIN_MUTATIONS sets how many tables are tried.
std::string Damaged(std::string bytes, std::mt19937& random) {
    static const std::string kPieces[] = {"\t",          "\n",
                                          "\r\n",        "\r",
                                          "\"",          std::string(1, '\0'),
                                          ",",           "1e999",
                                          "nan",         "-inf",
                                          "0x",          "\xff",
                                          "name\t",      "\"\"",
                                          "\n\n\n\n",    std::string(5000, '\t'),
                                          "\xef\xbb\xbf"};
    for (auto left = 1 + random() % 4; left > 0; --left) {
        const std::size_t at = random() % (bytes.size() + 1);
        const std::size_t length = random() % 50;
        switch (random() % 4) {
            case 0:
                bytes.insert(at, kPieces[random() % std::size(kPieces)]);
                break;
            case 1:
                bytes.erase(at, length);
                break;
            case 2:
                for (auto times = random() % 200; times > 0; --times) {
                    bytes.insert(at, bytes.substr(at, length));
                }
                break;
            default:
                bytes.insert(at, 1, static_cast<char>(random()));
                break;
        }
    }
    return bytes;
}

TEST_F(TxtReaderTest, DamagedTablesAreReadOrRefused) {
    const char* wanted = std::getenv("TESSARIN_MUTATIONS");
    const int count = wanted != nullptr ? std::atoi(wanted) : 1000;
    std::string table = "Name\tFSC\t\"S S\"\tFL1\r\n";
    for (int row = 0; row < 30; ++row) {
        table += "r" + std::to_string(row) + "\t1,5\t-2e3\t\"7\"\r\n";
    }
    std::mt19937 random(2026);
    MaxLoadedEvents = 1000;
    for (int i = 0; i < count; ++i) {
        const std::string bytes = Damaged(table, random);
        const auto [file, badCells] = Read(bytes);
        const auto cells = int64_t{file.EventCount} * file.ChannelCount;
        EXPECT_EQ(int64_t{file.Data.Events()} * file.Data.Columns(), cells);
        EXPECT_LE(cells, 33554432 + 8 * static_cast<int64_t>(bytes.size()));
        EXPECT_LE(badCells, cells);
        EXPECT_EQ(file.Membership.Events(), file.EventCount);
        if (!file.Valid) {
            ExpectRefused(file);
        } else {
            EXPECT_GE(TaulukkoTekstina(file).size(), static_cast<std::size_t>(2 * cells));
        }
        ASSERT_FALSE(HasFailure()) << "mutation " << i;
    }
}

}  // namespace
}  // namespace tessarin
