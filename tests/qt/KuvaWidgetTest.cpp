// What the widget of a picture surface shows, at any density of the screen.
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/qt/Conversions.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

class KuvaWidgetTest : public WindowTest {
  protected:
    KuvaWidgetTest() : child_(MakeChild("A")) {
        kuva_ = &dynamic_cast<QtKuva&>(child_->form->Surface());
        kuva_->SetSize(child_->form->ScaleWidth(), child_->form->ScaleHeight());
        kuva_->SetBackColor({0, 0, 90});
        kuva_->Cls();
        kuva_->Line(5, 5, 100, 60, {255, 255, 0}, LineForm::kLine);
        kuva_->Print("text");
    }

    // What stands on the screen after it has painted what it was told to.
    Bitmap OnScreen() {
        LetEventsRun();
        const QPoint corner = Picture(0).mapTo(&Window(), QPoint(0, 0));
        const QImage window = Window().screen()->grabWindow(Window().winId()).toImage();
        const double ratio = Window().devicePixelRatioF();
        return FromQt(window.copy(QRect(corner * ratio, Picture(0).size() * ratio)));
    }
    void ExpectShown() {
        const Bitmap seen = OnScreen();
        const Layer& shown = kuva_->Shown();
        ASSERT_EQ(seen.width, shown.Width());
        ASSERT_EQ(seen.height, shown.Height());
        EXPECT_TRUE(seen.pixels == shown.AllPixels());
    }

    std::unique_ptr<RecordingForm> child_;
    QtKuva* kuva_;
};

TEST_F(KuvaWidgetTest, TheSurfaceIsAsDenseAsTheScreen) {
    const double ratio = Picture(0).devicePixelRatioF();
    EXPECT_EQ(kuva_->Ratio(), ratio);
    EXPECT_EQ(kuva_->Image().width, child_->form->ScaleWidth() * ratio);
    kuva_->Line(50, 100, 50, 100, {255, 0, 0}, LineForm::kFilledBox);
    const Bitmap seen = OnScreen();
    std::size_t red = 0;
    std::size_t blurred = 0;  // some red on the blue background
    for (const uint32_t pixel : seen.pixels) {
        const bool isRed = pixel == Rgb{255, 0, 0}.Pixel();
        red += isRed ? 1 : 0;
        blurred += !isRed && (pixel & 0xFF0000U) != 0 && (pixel & 0xFF00U) == 0 ? 1 : 0;
    }
    // A whole number of the screen's pixels each way, and sharp.
    EXPECT_GE(static_cast<double>(red), std::pow(std::floor(ratio), 2));
    EXPECT_LE(static_cast<double>(red), std::pow(std::ceil(ratio), 2));
    EXPECT_EQ(blurred, 0U);
}

TEST_F(KuvaWidgetTest, ShowsThePictureThenTheOverlayThenThePictureAgain) {
    ExpectShown();
    const Bitmap picture = kuva_->Image();
    kuva_->SetAutoRedraw(false);
    kuva_->Line(10, 80, 120, 90, {255, 0, 0}, LineForm::kLine);
    ExpectShown();
    EXPECT_FALSE(OnScreen().pixels == picture.pixels);
    kuva_->Cls();
    kuva_->Line(30, 80, 150, 90, {0, 255, 0}, LineForm::kLine);
    kuva_->Circle(60, 60, 20, {0, 255, 0});
    ExpectShown();
    kuva_->Cls();
    ExpectShown();
    EXPECT_TRUE(OnScreen().pixels == picture.pixels);
    kuva_->SetAutoRedraw(true);
    kuva_->Line(0, 0, 40, 140, {0, 255, 255}, LineForm::kBox);
    ExpectShown();
}

TEST_F(KuvaWidgetTest, EachSmallChangeReachesTheScreen) {
    for (int i = 0; i < 20; ++i) {
        kuva_->PSet(10.0 * i, 7.0 * i, {255, 0, 255});
        kuva_->PSet(200.0 - 10 * i, 5, {255, 0, 255});
        ExpectShown();
    }
}

TEST_F(KuvaWidgetTest, WhatThePictureDoesNotCoverHasItsBackground) {
    kuva_->SetSize(50, 40);
    kuva_->SetPlace(10, 10);
    kuva_->Cls();
    kuva_->Line(0, 0, 49, 39, {0, 255, 0}, LineForm::kFilledBox);
    const Bitmap seen = OnScreen();
    const auto at = [&](int x, int y) {
        const double ratio = Picture(0).devicePixelRatioF();
        return seen.At(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
    };
    constexpr uint32_t kGreen = Rgb{0, 255, 0}.Pixel();
    constexpr uint32_t kBlue = Rgb{0, 0, 90}.Pixel();
    EXPECT_EQ(at(5, 5), kBlue);
    EXPECT_EQ(at(10, 10), kGreen);
    EXPECT_EQ(at(59, 49), kGreen);
    EXPECT_EQ(at(60, 50), kBlue);
    EXPECT_EQ(at(150, 120), kBlue);
    kuva_->SetVisible(false);
    const Bitmap hidden = OnScreen();
    EXPECT_TRUE(std::all_of(hidden.pixels.begin(), hidden.pixels.end(),
                            [](uint32_t pixel) { return pixel == kBlue; }));
}

TEST_F(KuvaWidgetTest, AnotherDensityMakesTheWindowDrawAnew) {
    Take();
    kuva_->SetRatio(kuva_->Ratio() + 0.5);  // as if the window had come from such a screen
    Picture(0).update();
    LetEventsRun();
    EXPECT_EQ(kuva_->Ratio(), Picture(0).devicePixelRatioF());
    EXPECT_EQ(Take(), Log{"A resize " + std::to_string(child_->form->ScaleWidth()) + " " +
                          std::to_string(child_->form->ScaleHeight())});
}

TEST_F(KuvaWidgetTest, ThePointerFollows) {
    kuva_->SetMousePointer(MousePointer::kCrosshair);
    EXPECT_EQ(Picture(0).cursor().shape(), Qt::CrossCursor);
    kuva_->SetMousePointer(MousePointer::kNormal);
    EXPECT_EQ(Picture(0).cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace tessarin
