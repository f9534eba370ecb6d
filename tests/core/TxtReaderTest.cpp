// Reading tabbed text tables, good ones and hostile ones.
#include "core/TXTReader.h"

#include <gtest/gtest.h>

#include "core/Muuttujat.h"
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
    EXPECT_FALSE(LueTXT(folder_.Path("missing.txt")).file.Valid);
    EXPECT_FALSE(LueTXT(folder_.Path()).file.Valid);
    EXPECT_FALSE(Read(std::string(100000, '\t') + "\n1\n").file.Valid);
    EXPECT_FALSE(Read(std::string(32000, '\t') + "\n" + std::string(200000, '\n')).file.Valid)
        << "tables that the file only promises";
    EXPECT_EQ(Read("one line").file.EventCount, 0);
    EXPECT_EQ(Read(std::string(10 << 20, 'x') + "\n1\n").file.Data(1, 1), 1);
    EXPECT_EQ(Read("A\n" + std::string(10 << 20, '9') + "\n").badCells, 1);
    EXPECT_EQ(Read(std::string("A\n\0\n5\0\n", 7)).file.Data(2, 1), 5);
    MaxLoadedEvents = 2;
    EXPECT_EQ(Read("A\n1\n2\n3\n").file.EventCount, 2);
}

}  // namespace
}  // namespace tessarin
