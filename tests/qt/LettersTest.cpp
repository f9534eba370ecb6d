// The 7-pixel rule: where the ink of a text stands, across and upwards.
#include <set>

#include "qt/Recorders.h"

namespace tessarin {
namespace {

constexpr Rgb kInk{255, 255, 255};

// A surface of 80 by 60 pixels, and the pixels that hold ink.
class Page {
  public:
    explicit Page(double ratio) : ratio_(ratio) {
        kuva_.SetRatio(ratio);
        kuva_.SetSize(80, 60);
        kuva_.SetForeColor(kInk);
        kuva_.Cls();
    }
    QtKuva& Kuva() { return kuva_; }
    std::set<int> Columns() const { return Inked(true); }
    std::set<int> Rows() const { return Inked(false); }

  private:
    // Pixels, not those of the device.
    std::set<int> Inked(bool columns) const {
        std::set<int> inked;
        const Bitmap image = kuva_.Image();
        for (int y = 0; y < image.height; ++y) {
            for (int x = 0; x < image.width; ++x) {
                if (image.At(x, y) != Grey(0).Pixel()) {
                    inked.insert(static_cast<int>((columns ? x : y) / ratio_));
                }
            }
        }
        return inked;
    }
    QtKuva kuva_;
    double ratio_;
};

std::string Shape(const Page& page, int left, int width) {
    const Bitmap image = const_cast<Page&>(page).Kuva().Image();
    std::string shape;
    for (int y = 0; y < image.height; ++y) {
        for (int x = left; x < left + width; ++x) {
            shape += image.At(x, y) == Grey(0).Pixel() ? ' ' : '#';
        }
    }
    return shape;
}

class LettersTest : public testing::TestWithParam<double> {};

TEST_P(LettersTest, EachCharacterHasACellOfSevenPixels) {
    Page page(GetParam());
    page.Kuva().SetCurrent(10, 20);
    page.Kuva().Print("I I\tI\x01I");
    std::set<int> cells;
    for (const int column : page.Columns()) {
        cells.insert((column - 10) / 7);
    }
    EXPECT_EQ(cells, (std::set<int>{0, 2, 4, 6}));
    EXPECT_GE(*page.Rows().begin(), 20);
    EXPECT_LT(*page.Rows().rbegin(), 34);
}

TEST_P(LettersTest, RotatedTextRunsUpwardsFromItsPlace) {
    Page page(GetParam());
    page.Kuva().AsetaKierrettyFontti(900);
    page.Kuva().SetCurrent(30, 50);
    page.Kuva().Print("I  I");
    EXPECT_GE(*page.Columns().begin(), 30);
    EXPECT_LT(*page.Columns().rbegin(), 44);
    std::set<int> cells;
    for (const int row : page.Rows()) {
        cells.insert((49 - row) / 7);
    }
    EXPECT_EQ(cells, (std::set<int>{0, 3}));

    page.Kuva().Cls();
    page.Kuva().PalautaFontti();
    page.Kuva().Print("I  I");
    EXPECT_GE(*page.Rows().begin(), 50);
}

TEST_P(LettersTest, RotatedLettersStandOnTheirRightSide) {
    Page page(GetParam());
    page.Kuva().AsetaKierrettyFontti(900);
    page.Kuva().SetCurrent(30, 50);
    page.Kuva().Print("'");  // ink at the top of the letter only
    ASSERT_FALSE(page.Columns().empty());
    EXPECT_LT(*page.Columns().rbegin(), 37);
}

TEST_P(LettersTest, OnlyWhatCanBeSeenIsDrawnAndDrawnInItsPlace) {
    const std::string endless(5000000, 'x');
    for (const bool rotated : {false, true}) {
        Page whole(GetParam());
        Page tail(GetParam());
        for (Page* page : {&whole, &tail}) {
            if (rotated) {
                page->Kuva().AsetaKierrettyFontti(900);
            }
        }
        const double shift = 7.0 * 1000000;
        whole.Kuva().SetCurrent(rotated ? 10 : 3 - shift, rotated ? 57 + shift : 10);
        whole.Kuva().Print(endless);
        tail.Kuva().SetCurrent(rotated ? 10 : 3 - 8 * 7, rotated ? 57 + 8 * 7 : 10);
        tail.Kuva().Print(std::string(30, 'x'));
        EXPECT_EQ(whole.Columns(), tail.Columns());
        EXPECT_EQ(whole.Rows(), tail.Rows());
        EXPECT_GT(tail.Columns().size(), 5U);
    }
}

INSTANTIATE_TEST_SUITE_P(Ratios, LettersTest, testing::Values(1.0, 1.25, 2.0));

TEST(LettersPlace, FarAwayAndNotANumberDrawNothing) {
    Page page(1);
    for (const double place : {1e300, -1e300, std::nan(""), 81.0, -40.0}) {
        page.Kuva().SetCurrent(place, 20);
        page.Kuva().Print("M");
        page.Kuva().SetCurrent(20, place == 81.0 ? 61 : place);
        page.Kuva().Print("M");
    }
    EXPECT_TRUE(page.Columns().empty());
}

TEST(LettersPlace, AllCellsLookAlikeAndInTheTextColour) {
    Page page(1);
    page.Kuva().SetCurrent(7, 20);
    page.Kuva().Print("MMM");
    EXPECT_EQ(Shape(page, 7, 7), Shape(page, 14, 7));
    EXPECT_EQ(Shape(page, 7, 7), Shape(page, 21, 7));
    page.Kuva().SetForeColor({255, 0, 0});
    page.Kuva().Cls();
    page.Kuva().Print("\xc3\xa4\xe2\x82\xac");  // two characters of two and three bytes
    std::set<int> cells;
    for (const int column : page.Columns()) {
        cells.insert((column - 7) / 7);
    }
    EXPECT_EQ(cells, (std::set<int>{0, 1}));
    for (const uint32_t pixel : page.Kuva().Image().pixels) {
        EXPECT_EQ(pixel & 0xff00ffffU, 0xff000000U);
    }
}

}  // namespace
}  // namespace tessarin
