// The table of events: whose memory a column is, and that no write reaches another table.
#include <gtest/gtest.h>

#include <cstdint>

#include "core/TapahtumaTaulu.h"

namespace tessarin {
namespace {

using Table = TapahtumaTaulu<float>;

constexpr int32_t kEvents = 5;

// Column c holds 10 * c + event.
Table Numbered(int columns) {
    Table table;
    table.Mitoita(kEvents, columns);
    for (int column = 1; column <= columns; ++column) {
        for (int32_t event = 1; event <= kEvents; ++event) {
            table.Aseta(event, column, static_cast<float>(10 * column + event));
        }
    }
    return table;
}

TEST(EventTableTest, ACopySharesColumnsUntilEitherWrites) {
    Table first = Numbered(3);
    Table second = first;
    EXPECT_EQ(first.Sarake(2).data(), second.Sarake(2).data());
    second.Aseta(4, 2, 99);
    first.Aseta(1, 3, 77);
    EXPECT_EQ(first(4, 2), 24);
    EXPECT_EQ(second(4, 2), 99);
    EXPECT_EQ(second(5, 2), 25) << "the rest of the column comes along";
    EXPECT_EQ(second(1, 3), 31);
    EXPECT_TRUE(first.JakaaSarakkeen(1, second));
    EXPECT_FALSE(first.JakaaSarakkeen(2, second));
    const float* own = second.Sarake(2).data();
    second.Aseta(1, 2, 1);
    EXPECT_EQ(second.Sarake(2).data(), own) << "what is its own is not copied again";
    second = Table();
    const float* last = first.Sarake(1).data();
    first.Aseta(1, 1, 5);
    EXPECT_EQ(first.Sarake(1).data(), last) << "nobody else is left";
}

TEST(EventTableTest, UnwrittenColumnsAreZeroAndStayApart) {
    Table table;
    table.Mitoita(kEvents, 2);
    const Table copy = table;
    table.Aseta(3, 1, 8);
    table.LisaaSarake();
    table.OmaSarake(3)[0] = 9;
    EXPECT_EQ(table(3, 1) + table(1, 3), 17);
    for (int32_t event = 1; event <= kEvents; ++event) {
        EXPECT_EQ(table(event, 2), 0);
        EXPECT_EQ(copy(event, 1), 0);
    }
    table.NollaaSarake(1);
    EXPECT_EQ(table(3, 1), 0);
    table.Aseta(2, 1, 4);
    EXPECT_EQ(table(2, 2) + table(3, 1), 0);
}

TEST(EventTableTest, AddingAndRemovingColumnsMovesNoValues) {
    Table table = Numbered(3);
    const float* third = table.Sarake(3).data();
    table.LisaaSarake();
    table.PoistaSarake(2);
    EXPECT_EQ(table.Columns(), 3);
    EXPECT_EQ(table.Sarake(2).data(), third);
    EXPECT_EQ(table(5, 2), 35);
    EXPECT_EQ(table(5, 3), 0);
    EXPECT_EQ(table.UusiSarake(2)[4], 0) << "a new column begins with zeros";
    table.Vapauta();
    EXPECT_EQ(table.Events() + table.Columns(), 0);
}

// Around the sizes where blocks begin to be of huge pages, and where their end gets one.
TEST(EventTableTest, LargeColumnsAreZeroAndWritableToTheLastValue) {
    for (const std::size_t bytes : {std::size_t{0}, kHugePage - 4, kHugePage, kHugePage + 4,
                                    kHugePage * 3 / 2 - 4, kHugePage * 3 / 2, 2 * kHugePage}) {
        const auto block = VaraaNollattu(bytes);
        auto* const letters = static_cast<unsigned char*>(block.get());
        for (std::size_t i = 0; i < bytes; ++i) {
            ASSERT_EQ(letters[i], 0) << i << " of " << bytes;
            letters[i] = 1;
        }
    }
    EXPECT_THROW(VaraaNollattu(SIZE_MAX / 2), std::bad_alloc);
    EXPECT_THROW(VaraaNollattu(SIZE_MAX), std::bad_alloc);
}

}  // namespace
}  // namespace tessarin
