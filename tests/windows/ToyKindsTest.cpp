// Two small kinds of windows, made of the parts alone: what a kind has not, nobody finds in it.
#include <array>
#include <cstddef>
#include <memory>
#include <new>

#include "core/RegionMuuttujat.h"
#include "mainwindow/WindowList.h"
#include "mainwindow/WindowRegistry.h"
#include "plots/Axes.h"
#include "tests/support/ProgramFixture.h"
#include "tools/ToolRun.h"
#include "tools/ToolUser.h"
#include "windows/ChannelAxes.h"
#include "windows/CompanionWindow.h"
#include "windows/FileView.h"
#include "windows/StatisticsPart.h"
#include "windows/StatisticsTable.h"

namespace tessarin {
namespace {

// A file, an axis and a table, but no regions and no place on the page.
class Summary : public FrameWindow, private StatisticsContent {
  public:
    explicit Summary(PaaIkkuna& main) : FrameWindow(main, {"Summary - No File", "Summary - "}) {}
    void LatauksenJalkeen() override { view_.LatauksenJalkeen(); }
    void UnloadWindow() override {
        statistics_.Sulje();
        FrameWindow::UnloadWindow();
    }
    GateOwner* Gate() override { return &view_; }
    ChannelOwner* Channels() override { return &axes_; }
    StatisticsOwner* Stats() override { return &statistics_; }
    StatisticsTableOwner* StatsTable() override { return &statistics_; }

  private:
    std::vector<WindowMenuItem> Items() override { return {statistics_.Item(), InvertItem()}; }
    void AddKeys(SheetTable& keys) override {
        AddPlaceKeys(keys);
        AddFileKey(keys);
        axes_.AddKeys(keys);
        statistics_.AddKeys(keys, 1);
    }
    void Prepare() override { axes_.Sovita(*File()); }
    void DrawPicture(const PlotArea& area) override {
        PiirraAkselit(Surface(), area, Background().Line());
        PiirraXOtsikko(Surface(), area, File()->Channels(axes_(1)).Name);
    }
    void FinishRedraw() override { statistics_.PaivitaStatistiikka(); }
    std::vector<TilastoValinta> TilastonValinnat() const override {
        return TilastoValinnat({"Sum"});
    }
    void LaskeTilasto(const Tiedosto& file) override {
        sum_ = 0;
        for (const float value : file.Data.Sarake(axes_(1))) {
            sum_ += static_cast<double>(value);
        }
    }
    GridTable TilastonTaulukko(const Tiedosto& /*file*/, const Statistics& window,
                               bool /*copy*/) const override {
        static constexpr std::array<std::string_view, 1> kHeads = {"Sum"};
        StatisticsTable table(window, kHeads);
        table.AddColumnHeads("");
        table.AddValues("All", {TaulukonLuku(sum_)});
        return table.Take();
    }
    std::optional<double> TilastonLuku(std::string_view /*row*/,
                                       std::string_view /*number*/) const override {
        return sum_;
    }
    FileView view_{*this};
    ChannelAxes axes_{*this, view_, {{"x", 1}}};
    StatisticsPart statistics_{*this, *this};
    double sum_ = 0;
};

// A surface and a control, but no file.
class Board : public FrameWindow {
  public:
    explicit Board(PaaIkkuna& main)
        : FrameWindow(main, {.emptyTitle = "Board", .selectable = false}),
          invert_(Lomake().Controls().MakeButton({"Invert", "Invert"})) {
        invert_->onClick = [this] { MenuValintaReaktio(1); };
    }

  private:
    static constexpr int kStrip = 25;
    std::vector<WindowMenuItem> Items() override { return {InvertItem()}; }
    void AddKeys(SheetTable& keys) override {
        AddPlaceKeys(keys);
        AddBackgroundKey(keys);
    }
    bool HasPicture() const override { return true; }
    void DrawPicture(const PlotArea& area) override {
        PiirraKahva(Surface(), area.ToPixel({kGrid / 2, kGrid / 2}), Background().Line());
    }
    void LayOut(int width, int height) override {
        FrameWindow::LayOut(width, height - kStrip);
        invert_->SetPlace({3, height - kStrip, 80, kStrip});
    }
    std::unique_ptr<Button> invert_;
};

// Stands where a window was, and hears who still asks for that.
class Squatter : public CopySource {
  public:
    explicit Squatter(int& asked) : asked_(asked) {}
    int16_t AnnaID() const override { return static_cast<int16_t>(++asked_); }
    void CopyToClipboard() override { ++asked_; }

  private:
    int& asked_;
};

class Palette : public CompanionWindow {
  public:
    explicit Palette(PaaIkkuna& main) : CompanionWindow(main, "NaytaFileInfo", "Palette") {}
    int changes = 0;

  private:
    void NakyvyysMuuttui() override { ++changes; }
};

class ToyKindsTest : public ProgramTest {
  protected:
    ToyKindsTest() {
        RekisteroiIkkunaLaji({"Summary", "CreateHistogramModeller", true,
                              [](PaaIkkuna& to) { return std::make_shared<Summary>(to); }});
        RekisteroiIkkunaLaji({"Board", "LuoClipBook", false,
                              [](PaaIkkuna& to) { return std::make_shared<Board>(to); }});
        PutFile(1, "tube.fcs", {{"a", false, 1000, {1, 2, 4}}, {"b", false, 1000, {10, 20, 40}}});
        CurrentFile = 1;
    }
    ~ToyKindsTest() override {
        PoistaIkkunaLaji("Summary");
        PoistaIkkunaLaji("Board");
    }
    bool Runs(const std::string& text) {
        DialogToolUser user(platform.dialogs);
        return ToolRun(main, {user}).AjaOhjelma(text + "\r\n");
    }
};

TEST_F(ToyKindsTest, AKindWithoutRegionsHasTheRestFromItsParts) {
    Choose("CreateHistogramModeller");
    ScriptedForm& form = LastForm();
    EXPECT_EQ(form.caption, "[S] (1): Summary - tube.fcs");
    EXPECT_TRUE(form.surface.HasText("a"));
    EXPECT_TRUE(Runs("w.1.statistics.visible:true\r\nw.1.axis.x:2"));
    EXPECT_EQ(Grid().Row("All"), (std::vector<std::string>{"All", "70"}));
    EXPECT_EQ(IkkunaPaikassa(1)->SaveInfo().size(), 8U);
    platform.dialogs.messages.clear();
    for (const char* line : {"w.1.quadrant.visible:true", "$a.set:@.w.1.histogram.height.5",
                             "w.1.overlay.1.histogram:1", "w.1.curve.1.create:x", "w.1.zero"}) {
        EXPECT_FALSE(Runs(line)) << line << " is a fault in a window that lacks it";
    }
    platform.mainForm.events->PanelButtonPressed(PanelButton::kLuoUusiRegion);
    form.Press(50, 50);
    EXPECT_EQ(KulmienMaara, 0) << "a press with a region armed means nothing here";
    EXPECT_TRUE(UusiRegionPaalla);
}

TEST_F(ToyKindsTest, AKindWithoutFileHasItsControls) {
    Choose("LuoClipBook");
    ScriptedForm& form = LastForm();
    EXPECT_EQ(form.caption, "(1): Board");
    EXPECT_FALSE(Ikkunat(1).Selectable);
    EXPECT_EQ(Ikkunat(1).FileIndex, 0);
    EXPECT_EQ(form.surface.Height(), form.ScaleHeight() - 25);
    EXPECT_EQ(form.surface.PixelAt(2, 2), Grey(0).Pixel());
    form.controls.Get<ScriptedButton>("Invert").Click();
    EXPECT_EQ(form.surface.PixelAt(2, 2), Grey(255).Pixel());
    EXPECT_EQ(IkkunaPaikassa(1)->SaveInfo().back(), "background:0");
    EXPECT_FALSE(Runs("w.1.axis.x:1"));
    EXPECT_FALSE(Runs("w.1.statistics.visible:true"));
    EXPECT_FALSE(Runs("$a.set:@.w.1.population.0.number"));
    form.Close();
    EXPECT_FALSE(Ikkunat(1).Used);
}

TEST_F(ToyKindsTest, NobodyCopiesAWindowThatIsGone) {
    alignas(Board) std::array<std::byte, sizeof(Board)> room;
    int asked = 0;
    const auto leave = [&asked](Board* board) {
        CopySource* const place = board;
        board->~Board();
        new (place) Squatter(asked);
    };
    RekisteroiIkkunaLaji({"Board", "LuoClipBook", false, [&](PaaIkkuna& to) {
                              return std::shared_ptr<Board>(new (room.data()) Board(to), leave);
                          }});
    Choose("LuoClipBook");
    platform.clipboard.image = {};
    Choose("CopyImages");
    EXPECT_FALSE(platform.clipboard.image.pixels.empty());
    LastForm().Close();
    platform.clipboard.image = {};
    Choose("CopyImages");
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(platform.clipboard.image.pixels.empty());
}

TEST_F(ToyKindsTest, ACompanionIsCheckedWhileItIsShown) {
    Palette palette(main);
    ScriptedForm& form = LastForm();
    EXPECT_FALSE(form.shown);
    Choose("NaytaFileInfo");
    EXPECT_TRUE(form.shown && platform.mainForm.checked["NaytaFileInfo"]);
    form.Close();
    EXPECT_FALSE(form.shown || platform.mainForm.checked["NaytaFileInfo"]);
    Choose("NaytaFileInfo");
    Choose("NaytaFileInfo");
    EXPECT_FALSE(palette.OnkoNakyvissa());
    EXPECT_EQ(palette.changes, 4);
    NewDotPlot();
    form.Activate();
    platform.clipboard.image = Bitmap{1, 1, 1, {0}};
    Choose("CopyImages");
    EXPECT_TRUE(platform.clipboard.image.pixels.empty()) << "there is nothing in it to copy";
}

}  // namespace
}  // namespace tessarin
