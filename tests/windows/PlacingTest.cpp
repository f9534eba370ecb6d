// Where windows find room: the search itself, and what becomes of it in plots, tables and sheets.
#include "windows/Placing.h"

#include <algorithm>
#include <random>
#include <tuple>

#include "mainwindow/WindowList.h"
#include "tests/support/ProgramFixture.h"
#include "tools/ToolRun.h"
#include "tools/ToolUser.h"
#include "windows/FramePlace.h"

namespace tessarin {

static bool operator==(const PixelBox& a, const PixelBox& b) {
    return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height;
}

static std::ostream& operator<<(std::ostream& out, const PixelBox& box) {
    return out << box.left << "," << box.top << " " << box.width << "x" << box.height;
}

namespace {

constexpr PixelSize kArea{1000, 700};

// Pixels that two boxes share, counted one by one; for small boxes.
int CountShared(const PixelBox& a, const PixelBox& b) {
    int count = 0;
    for (int y = a.top; y < a.top + a.height; ++y) {
        for (int x = a.left; x < a.left + a.width; ++x) {
            const bool across = x >= b.left && x < b.left + b.width;
            count += across && y >= b.top && y < b.top + b.height ? 1 : 0;
        }
    }
    return count;
}

int CountCovered(const PixelBox& window, const std::vector<PixelBox>& taken) {
    int count = 0;
    for (const PixelBox& box : taken) {
        count += CountShared(window, box);
    }
    return count;
}

// Small areas with windows anywhere, also half outside, as users leave them.
class RandomAreas {
  public:
    struct Case {
        PixelSize area;
        PixelSize window;
        std::vector<PixelBox> taken;
    };
    Case Next() {
        Case next{{Number(6, 16), Number(5, 12)}, {Number(1, 8), Number(1, 6)}, {}};
        for (int i = Number(1, 5); i > 0; --i) {
            next.taken.push_back({Number(-3, 14), Number(-3, 10), Number(1, 8), Number(1, 6)});
        }
        return next;
    }

  private:
    int Number(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random_);
    }
    std::mt19937 random_{7};
};

template <class Visit>
void EachPlace(PixelSize window, PixelSize area, Visit visit) {
    for (int top = 0; top + window.height <= area.height; ++top) {
        for (int left = 0; left + window.width <= area.width; ++left) {
            visit(PixelBox{left, top, window.width, window.height});
        }
    }
}

TEST(PlacingTest, AFreePlaceIsTheFirstRowByRow) {
    EXPECT_FALSE(FreePlace({1001, 10}, kArea, {}));
    RandomAreas areas;
    for (int i = 0; i < 2000; ++i) {
        const RandomAreas::Case each = areas.Next();
        std::optional<PixelBox> first;
        EachPlace(each.window, each.area, [&](const PixelBox& box) {
            if (!first && CountCovered(box, each.taken) == 0) {
                first = box;
            }
        });
        ASSERT_EQ(FreePlace(each.window, each.area, each.taken), first) << i;
    }
}

TEST(PlacingTest, ATableStandsBesideItsPlot) {
    const PixelBox plot{300, 200, 266, 266};
    const PixelSize table{350, 100};
    const auto place = [&](std::vector<PixelBox> others) {
        others.push_back(plot);
        return PlaceBeside(plot, table, kArea, others);
    };
    const PixelBox right{566, 0, 434, 700};
    const PixelBox below{0, 466, 1000, 234};
    const PixelBox left{0, 0, 300, 466};
    EXPECT_EQ(place({}), (PixelBox{566, 200, 350, 100}));
    EXPECT_EQ(place({{600, 150, 50, 80}}), (PixelBox{566, 230, 350, 100})) << "a little lower";
    EXPECT_EQ(place({right}), (PixelBox{216, 466, 350, 100})) << "below, and to the left for that";
    EXPECT_EQ(place({{566, 0, 434, 466}}), (PixelBox{300, 466, 350, 100}));
    EXPECT_EQ(place({right, below}), (PixelBox{216, 100, 350, 100})) << "the left is too narrow";
    EXPECT_EQ(PlaceBeside(plot, {200, 100}, kArea, std::vector{plot, right, below}),
              (PixelBox{100, 200, 200, 100}));
    EXPECT_EQ(place({right, below, left}), (PixelBox{300, 100, 350, 100})) << "covers least";
    EXPECT_EQ(PlaceBeside(plot, table, kArea, std::vector{plot, PixelBox{0, 0, 1000, 566}}),
              (PixelBox{300, 566, 350, 100}))
        << "not beside its plot, but near it";
    EXPECT_EQ(PlaceBeside(plot, {1200, 800}, kArea, {}), (PixelBox{0, 0, 1200, 800}));
}

TEST(PlacingTest, WithoutRoomATableCoversLeastAndItsPlotLeastOfAll) {
    RandomAreas areas;
    int crowded = 0;
    for (int i = 0; i < 2000; ++i) {
        const RandomAreas::Case each = areas.Next();
        if (each.window.width > each.area.width || each.window.height > each.area.height) {
            continue;
        }
        const PixelBox& owner = each.taken.front();
        using Cost = std::pair<int, int>;
        const auto cost = [&](const PixelBox& box) {
            return Cost(CountShared(box, owner), CountCovered(box, each.taken));
        };
        Cost least(INT_MAX, INT_MAX);
        EachPlace(each.window, each.area,
                  [&](const PixelBox& box) { least = std::min(least, cost(box)); });
        const PixelBox place = PlaceBeside(owner, each.window, each.area, each.taken);
        ASSERT_EQ(MovedIn(place, each.area), place) << i;
        ASSERT_EQ(cost(place), least) << i;
        crowded += least.second > 0 ? 1 : 0;
    }
    EXPECT_GT(crowded, 100);
}

TEST(PlacingTest, HalfAWindowAndItsTitleMustBeSeen) {
    for (const PixelBox& kept : {PixelBox{0, 0, 266, 266}, PixelBox{-133, 0, 266, 266},
                                 PixelBox{300, 567, 266, 266}, PixelBox{300, -12, 266, 266}}) {
        EXPECT_TRUE(IsInReach(kept, kArea)) << kept;
    }
    // The last but one shows half of itself each way, which is a quarter.
    for (const PixelBox& lost : {PixelBox{-134, 0, 266, 266}, PixelBox{300, -13, 266, 266},
                                 PixelBox{867, 567, 266, 266}, PixelBox{5000, 5000, 266, 266}}) {
        EXPECT_FALSE(IsInReach(lost, kArea)) << lost;
    }
    EXPECT_EQ(MovedIn({-140, 600, 266, 266}, kArea), (PixelBox{0, 434, 266, 266}));
    EXPECT_EQ(MovedIn({900, -13, 1200, 266}, kArea), (PixelBox{0, 0, 1200, 266}));
}

class Nobody : public FormEvents {
    void Form_Activate() override {}
    void Form_QueryUnload() override {}
};

class FramePlaceTest : public testing::Test {
  protected:
    FramePlaceTest() { form_.SetOuterSize(TwipsFromPixels(266), TwipsFromPixels(266)); }
    PixelBox Box() const {
        return {PixelsFromTwips(form_.left), PixelsFromTwips(form_.top),
                PixelsFromTwips(form_.width), PixelsFromTwips(form_.height)};
    }
    Nobody nobody_;
    ScriptedForm form_{nobody_, [](ScriptedForm*) {}};
    FramePlace place_{form_};
};

TEST_F(FramePlaceTest, WhatIsWithinReachStandsAsItWasGiven) {
    place_.SetLeft({1234});
    place_.SetTop({-44});
    EXPECT_EQ(form_.left, Twips{1234});
    EXPECT_EQ(form_.top, Twips{-44});
    place_.SetOuterSize({3000}, {3000});
    place_.FindRoom();
    EXPECT_EQ(form_.left, Twips{1234}) << "nobody looks for room where a place was given";
}

TEST_F(FramePlaceTest, WhatIsOutOfReachIsMovedInAndKeptAsGiven) {
    place_.SetLeft(TwipsFromPixels(1300));
    place_.SetTop(TwipsFromPixels(650));
    EXPECT_EQ(Box(), (PixelBox{734, 434, 266, 266}));
    EXPECT_EQ(place_.Left(), TwipsFromPixels(1300));
    EXPECT_EQ(place_.Top(), TwipsFromPixels(650));
    form_.left = TwipsFromPixels(500);  // by the user
    EXPECT_EQ(place_.Left(), TwipsFromPixels(500));
    EXPECT_EQ(place_.Top(), TwipsFromPixels(434));
    place_.SetTop({150});
    EXPECT_EQ(form_.left, TwipsFromPixels(500));
}

TEST_F(FramePlaceTest, SizeAndPlaceMayComeInAnyOrder) {
    const auto size = [this] { place_.SetOuterSize(TwipsFromPixels(100), TwipsFromPixels(50)); };
    place_.SetOuterSize(TwipsFromPixels(900), TwipsFromPixels(600));
    place_.SetTop(TwipsFromPixels(640));  // too low for a window of that height
    place_.SetLeft(TwipsFromPixels(880));
    size();
    EXPECT_EQ(Box(), (PixelBox{880, 640, 100, 50}));
}

TEST_F(FramePlaceTest, WhatFoundItsRoomStaysInTheAreaWhenItGrows) {
    form_.SetPlace(TwipsFromPixels(0), TwipsFromPixels(0));
    const PixelBox owner{0, 400, 266, 266};
    ScriptedForm other(nobody_, [](ScriptedForm*) {});
    other.SetOuterSize(TwipsFromPixels(owner.width), TwipsFromPixels(owner.height));
    other.SetPlace(TwipsFromPixels(owner.left), TwipsFromPixels(owner.top));
    place_.FindRoomBeside(other);
    EXPECT_EQ(Box(), (PixelBox{266, 400, 266, 266}));
    place_.SetOuterSize(TwipsFromPixels(300), TwipsFromPixels(320));
    EXPECT_EQ(Box(), (PixelBox{266, 380, 300, 320}));
    form_.top = TwipsFromPixels(600);  // by the user
    place_.SetOuterSize(TwipsFromPixels(300), TwipsFromPixels(330));
    EXPECT_EQ(form_.top, TwipsFromPixels(600));
}

class PlacedWindowsTest : public ProgramTest {
  protected:
    PlacedWindowsTest() {
        PutFile(1, "tube.fcs", {{"a", false, 1000, {1, 2}}, {"b", false, 1000, {10, 20}}});
        CurrentFile = 1;
    }
    static PixelBox Box(const ScriptedForm& form) {
        return {PixelsFromTwips(form.left), PixelsFromTwips(form.top), PixelsFromTwips(form.width),
                PixelsFromTwips(form.height)};
    }
    bool Runs(const std::string& text) {
        DialogToolUser user(platform.dialogs);
        return ToolRun(main, {user}).AjaOhjelma(text + "\r\n");
    }
};

TEST_F(PlacedWindowsTest, PlotsAndTheirTablesStandBesideEachOther) {
    for (int i = 0; i < 3; ++i) {
        NewDotPlot();
    }
    ChoosePopup(*PlotForms()[2], 1);
    ChoosePopup(*PlotForms()[0], 1);
    std::vector<PixelBox> boxes;
    for (const ScriptedForm* form : platform.mainForm.children) {
        EXPECT_EQ(MovedIn(Box(*form), kArea), Box(*form));
        EXPECT_EQ(CountCovered(Box(*form), boxes), 0) << Box(*form);
        boxes.push_back(Box(*form));
    }
    ASSERT_EQ(boxes.size(), 5U);
    EXPECT_EQ(boxes[3].top, boxes[2].top + boxes[2].height) << "the first table, below its plot";
    const ScriptedForm& table = *TableForms().back();
    const Twips left = table.left;
    main.PiirraKaikki();
    EXPECT_EQ(table.left, left) << "it looks for room once";
}

TEST_F(PlacedWindowsTest, AToolMovesWindowsOnlyWithinReach) {
    ScriptedForm& form = NewDotPlot();
    EXPECT_TRUE(Runs("w.1.position.x:1501\r\nw.1.position.y:30"));
    EXPECT_EQ(form.left, Twips{1501});
    EXPECT_EQ(form.top, Twips{30});
    EXPECT_TRUE(
        Runs("w.1.position.x:30000\r\nw.1.statistics.visible:true\r\n"
             "w.1.statistics.position.y:-3000"));
    EXPECT_EQ(Box(form).left + Box(form).width, kArea.width);
    EXPECT_EQ(TableForms()[0]->top, Twips{0});
    EXPECT_EQ(IkkunaPaikassa(1)->SaveInfo()[0], "location.x:30000")
        << "a sheet keeps what was said";
}

}  // namespace
}  // namespace tessarin
