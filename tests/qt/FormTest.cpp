// Sizes, titles, closing and the end of child windows.
#include <QHelpEvent>
#include <QToolTip>

#include "platform/qt/TitleStyle.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

using FormTest = WindowTest;

TEST_F(FormTest, SizesAreThoseOfTheFrameAndOfTheClientArea) {
    RecordingForm child("A", log_);
    child.form = Main().MakeChild(child);
    child.form->SetOuterSize({4000}, {4000});
    // Before it is shown, as after.
    EXPECT_EQ(child.form->OuterWidth().count, 4000) << "as it was given";
    const int width = child.form->ScaleWidth();
    const int height = child.form->ScaleHeight();
    EXPECT_GT(width, 230);
    EXPECT_LT(width, 266);
    EXPECT_LT(height, 250);
    child.form->Show();
    LetEventsRun();
    EXPECT_EQ(child.form->ScaleWidth(), width);
    EXPECT_EQ(child.form->ScaleHeight(), height);
    EXPECT_TRUE(child.form->HasOwnSize());

    child.form->SetPlace({200}, {-7});
    EXPECT_EQ(child.form->Left().count, 200);
    EXPECT_EQ(child.form->Top().count, -7);
    EXPECT_EQ(child.form->OuterWidth().count, 4000);
    Take();
    Shown(0).setGeometry(20, 30, 300, 200);  // as the user drags it
    EXPECT_EQ(Take(),
              Log{"A dragged " + std::to_string(width + 34) + " " + std::to_string(height - 66)});
    EXPECT_EQ(child.form->OuterWidth().count, 300 * 15);
    EXPECT_EQ(child.form->Left().count, 20 * 15);
}

TEST_F(FormTest, ResizeIsToldWhenTheClientAreaHasAnotherSize) {
    const auto a = MakeChild("A");
    const int width = a->form->ScaleWidth();
    const int height = a->form->ScaleHeight();
    Take();
    a->form->SetOuterSize(TwipsFromPixels(350), TwipsFromPixels(210));
    EXPECT_EQ(Take(),
              Log{"A resize " + std::to_string(width + 50) + " " + std::to_string(height + 10)});
    a->form->SetOuterSize(TwipsFromPixels(350), TwipsFromPixels(210));
    a->form->Hide();
    a->form->Show();
    EXPECT_EQ(Take(), Log{"A activate"});
}

TEST_F(FormTest, NextToNothingAndBeyondAllBoundsAreSizesToo) {
    const auto a = MakeChild("A");
    for (const int twips : {15, 0, -4000, 2000000000}) {
        a->form->SetOuterSize({twips}, {twips});
        LetEventsRun();
        EXPECT_GE(a->form->ScaleWidth(), 0);
        EXPECT_LE(a->form->ScaleWidth(), 8192);
        a->form->Surface().SetSize(a->form->ScaleWidth(), a->form->ScaleHeight());
        a->form->Surface().Cls();
        a->form->Surface().Print("text");
        LetEventsRun();
    }
}

TEST_F(FormTest, MaximisedAndMinimisedIsNoSizeOfItsOwn) {
    const auto a = MakeChild("A");
    const Twips before = a->form->OuterWidth();
    const int width = a->form->ScaleWidth();
    Take();
    Shown(0).showMaximized();
    EXPECT_FALSE(a->form->HasOwnSize());
    EXPECT_GT(a->form->ScaleWidth(), 1000);
    EXPECT_EQ(Take().size(), 1U);
    Shown(0).showNormal();
    EXPECT_EQ(Take().size(), 1U);

    Shown(0).showMinimized();
    LetEventsRun();
    EXPECT_FALSE(a->form->HasOwnSize());
    EXPECT_EQ(a->form->ScaleWidth(), 0);
    Shown(0).showNormal();
    LetEventsRun();
    EXPECT_EQ(a->form->OuterWidth(), before);
    EXPECT_EQ(a->form->ScaleWidth(), width);
}

TEST_F(FormTest, ANewChildBesideAMaximisedOneHasItsOwnSize) {
    const auto a = MakeChild("A");
    Shown(0).showMaximized();
    const auto b = MakeChild("B");
    EXPECT_TRUE(b->form->HasOwnSize());
    EXPECT_EQ(b->form->OuterWidth(), TwipsFromPixels(300));
}

TEST_F(FormTest, TheReceiverOfAClosingMayDestroyFormAndItself) {
    auto a = MakeChild("A");
    auto b = MakeChild("B");
    struct Leaving : RecordingForm {
        using RecordingForm::RecordingForm;
        void Form_QueryUnload() override { delete this; }
    };
    auto* leaving = new Leaving("C", log_);
    leaving->form = Main().MakeChild(*leaving);
    leaving->form->Show();
    LetEventsRun();
    Take();

    Shown(2).close();
    EXPECT_EQ(Take(), Log{"B activate"});
    Shown(1).close();
    EXPECT_EQ(Take(), (Log{"B unload", "A activate"}));
    EXPECT_EQ(b->form, nullptr);
    EXPECT_EQ(Window().Area().subWindowList().size(), 1);

    a->keepsFormOnClose = true;
    Shown(0).close();
    EXPECT_EQ(Take(), Log{"A unload"});
    EXPECT_TRUE(Shown(0).isHidden());
    a->form.reset();
    LetEventsRun();
    EXPECT_TRUE(Window().Area().subWindowList().isEmpty());
}

TEST_F(FormTest, AFormDestroyedInTheMiddleOfAPressIsNotTouchedAgain) {
    auto a = MakeChild("A");
    a->onPress = [&] {
        a->form.reset();
        LetEventsRun();
    };
    Take();
    QTest::mousePress(Window().windowHandle(), Qt::LeftButton, {},
                      Picture(0).mapTo(&Window(), QPoint(20, 20)));
    EXPECT_EQ(Take(), (Log{"A up 16", "A press 1 20 20"}));
}

TEST(FormOutlivesMainForm, AllCallsAreHarmless) {
    Log log;
    RecordingForm child("A", log);
    {
        QtPlatform platform({true, "", "", nullptr, nullptr, nullptr, nullptr});
        platform.Main().Show();
        child.form = platform.Main().MakeChild(child);
        child.form->Show();
    }
    child.form->SetOuterSize({4000}, {4000});
    child.form->SetCaption("late");
    child.form->Surface().Cls();
    EXPECT_EQ(child.form->ScaleWidth(), 0);
    child.form->Hide();
}

TEST_F(FormTest, TheCaptionStandsInTheTitleAsItIs) {
    const auto a = MakeChild("A");
    a->form->SetCaption("[S] (1): Dot Plot - R&D[*].fcs");
    EXPECT_EQ(Shown(0).windowTitle(), QString("[S] (1): Dot Plot - R&D[*][*].fcs"));
}

TEST_F(FormTest, AShortTitleKeepsTheTailOfTheFileName) {
    const QFontMetrics letters(QApplication::font());
    const QString dots(QChar(0x2026));
    const QString whole = "(1): Dot Plot - 060909.001";
    const auto width = [&](const QString& text) { return letters.horizontalAdvance(text); };
    EXPECT_EQ(ShortTitle(whole, letters, width(whole)), whole);
    EXPECT_EQ(ShortTitle(whole, letters, width("(1): Dot Plot - " + dots + "909.001")),
              "(1): Dot Plot - " + dots + "909.001");
    EXPECT_TRUE(ShortTitle("(1) Statistics: a very long name.fcs", letters,
                           width("(1) Statistics: " + dots + "long name.fcs"))
                    .startsWith("(1) Statistics: " + dots));
    for (const QString& title : {whole, QString("(12): Overlay histogram of all tubes")}) {
        const int narrow = width(title) / 2;
        const QString cut = ShortTitle(title, letters, narrow);
        EXPECT_LE(width(cut), narrow);
        EXPECT_TRUE(cut.startsWith("(1") && cut.endsWith(title.right(3))) << qPrintable(cut);
    }
}

TEST_F(FormTest, ATitleThatIsCutHasAToolTip) {
    const auto a = MakeChild("A");
    const auto toolTipAt = [this](QPoint place) {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QHelpEvent event(QEvent::ToolTip, place, Shown(0).mapToGlobal(place));
        QApplication::sendEvent(&Shown(0), &event);
        return QToolTip::text();
    };
    const QPoint title(120, 12);
    a->form->SetCaption("(1): R&D");
    EXPECT_FALSE(toolTipAt(title).contains("R&amp;D"));
    const std::string name = "(1): Dot Plot - R&D of a very long day in a room without windows.fcs";
    a->form->SetCaption(name);
    EXPECT_EQ(Shown(0).WholeTitle(), QString::fromStdString(name));
    EXPECT_TRUE(toolTipAt(title).contains("R&amp;D of a very long day"));
    EXPECT_FALSE(toolTipAt({120, 100}).contains("R&amp;D")) << "not over the content";
    a->form->SetOuterSize(TwipsFromPixels(900), TwipsFromPixels(200));
    EXPECT_FALSE(toolTipAt({300, 12}).contains("R&amp;D"));
    QToolTip::hideText();
    LetEventsRun();
}

TEST_F(FormTest, NeighboursAreTheOthersThatAreSeen) {
    const auto a = MakeChild("A");
    const auto b = MakeChild("B");
    const auto c = MakeChild("C");
    b->form->SetPlace(TwipsFromPixels(400), TwipsFromPixels(100));
    c->form->Hide();
    const auto seen = [&a] {
        std::string text;
        for (const PixelBox& box : a->form->Neighbours()) {
            text += std::to_string(box.left) + " " + std::to_string(box.top) + " " +
                    std::to_string(box.width) + " " + std::to_string(box.height) + ";";
        }
        return text;
    };
    EXPECT_EQ(seen(), "400 100 300 200;");
    Shown(1).showMaximized();
    EXPECT_EQ(seen(), "400 100 300 200;") << "it will go back there";
    Shown(1).showNormal();
    Main().SetPanelWidth({4000});
    EXPECT_TRUE(seen().starts_with("400 100 300 200;934 0 256 ")) << seen();
}

}  // namespace
}  // namespace tessarin
