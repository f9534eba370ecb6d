// The main window: menus, status line, closing, dropping, pictures.
#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QUrl>

#include "qt/Recorders.h"

namespace tessarin {
namespace {

class MainFormTest : public WindowTest {
  protected:
    void BuildMenus() {
        const std::vector<Menu> menus{
            {"MenuFile",
             "&File",
             {{"FileOpenFCS", "Open FCS...", "Ctrl+O"},
              {"", "-", ""},
              {"Printtaa", "Print...", "", false},
              {"Bumper", "Use neg value bumper", "", true, true}}},
            {"MenuScript", "&Tools", {{"SkriptiLista1", "Search & find", ""}}}};
        Main().BuildMenus(menus);
    }
    void Remark(const std::vector<std::string>& lines) {
        Main().SetStatus(lines, StatusKind::kRemark);
    }
    QAction& Item(const char* name) {
        auto* action = Window().findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_NE(action, nullptr) << name;
        return *action;
    }
};

TEST_F(MainFormTest, MenusComeFromTheirValues) {
    BuildMenus();
    ASSERT_EQ(Window().menuBar()->actions().size(), 2);
    EXPECT_EQ(Window().menuBar()->actions()[0]->text(), "&File");
    EXPECT_EQ(Window().menuBar()->actions()[0]->menu()->actions().size(), 4);
    EXPECT_EQ(Item("FileOpenFCS").shortcut(), QKeySequence("Ctrl+O"));
    EXPECT_EQ(Item("SkriptiLista1").text(), "Search && find");
    EXPECT_FALSE(Item("Printtaa").isEnabled());
    Main().SetItemEnabled("Printtaa", true);
    Main().SetItemEnabled("NoSuchItem", true);
    EXPECT_TRUE(Item("Printtaa").isEnabled());
    Item("Printtaa").trigger();
    EXPECT_EQ(main_.Take(), Log{"command Printtaa"});

    BuildMenus();
    LetEventsRun();
    EXPECT_EQ(Window().menuBar()->actions().size(), 2);
    EXPECT_EQ(Window().findChildren<QAction*>("FileOpenFCS").size(), 1);
    EXPECT_FALSE(Item("Printtaa").isEnabled());
}

TEST_F(MainFormTest, ShortcutsChooseTheirItems) {
    BuildMenus();
    const auto child = MakeChild("A");
    Window().activateWindow();
    LetEventsRun();
    QTest::keyClick(Window().windowHandle(), Qt::Key_O, Qt::ControlModifier);
    LetEventsRun();
    EXPECT_EQ(main_.Take(), Log{"command FileOpenFCS"});
}

TEST_F(MainFormTest, ACheckMarkIsSetByTheProgramAlone) {
    BuildMenus();
    Item("Bumper").trigger();
    EXPECT_FALSE(Item("Bumper").isChecked());
    Main().SetItemChecked("Bumper", true);
    EXPECT_TRUE(Item("Bumper").isChecked());
    Item("Bumper").trigger();
    EXPECT_TRUE(Item("Bumper").isChecked());
    BuildMenus();
    LetEventsRun();
    EXPECT_TRUE(Item("Bumper").isChecked()) << "as it was before";
    EXPECT_EQ(main_.Take(), (Log{"command Bumper", "command Bumper"}));
}

TEST_F(MainFormTest, TheStatusLineStaysUntilTheNext) {
    const ElidedLabel& text = Window().Status().Text();
    Remark({"short"});
    LetEventsRun();
    EXPECT_EQ(text.text(), "short");
    QStatusTipEvent tip("");
    QCoreApplication::sendEvent(&Window(), &tip);
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(Window().statusBar()->currentMessage(), "");

    const int width = Window().width();
    Remark({std::string(2000, 'w') + " <b>"});
    LetEventsRun();
    EXPECT_EQ(Window().width(), width);
    EXPECT_LT(Window().minimumSizeHint().width(), 800);
    EXPECT_TRUE(text.text().endsWith(QChar(0x2026)));
    EXPECT_TRUE(text.toolTip().contains("&lt;b&gt;"));
    Remark({});
    EXPECT_EQ(text.text(), "");
    EXPECT_EQ(text.toolTip(), "");
}

TEST_F(MainFormTest, OddFilesHaveASignAColourAndALineEach) {
    StatusLine& line = Window().Status();
    auto& sign = *line.findChild<QLabel*>("StatusSign");
    auto& all = *line.findChild<QPushButton*>("StatusAll");
    const auto colour = [&line] { return line.Text().palette().color(QPalette::WindowText); };
    const int height = Window().Area().height();
    Remark({"The sheet was saved."});
    LetEventsRun();
    EXPECT_FALSE(sign.isVisible() || all.isVisible());
    const QColor plain = colour();
    const std::vector<std::string> lines{"a.fcs: data end early", "b.fcs: <odd> & more"};
    Main().SetStatus(lines, StatusKind::kOddFiles);
    LetEventsRun();
    EXPECT_TRUE(sign.isVisible() && all.isVisible());
    EXPECT_FALSE(sign.pixmap().isNull());
    EXPECT_NE(colour(), plain);
    EXPECT_EQ(line.Text().text(), "b.fcs: <odd> & more");
    EXPECT_EQ(all.text(), "Show all 2");
    EXPECT_TRUE(line.Text().toolTip().contains("data end early<br>b.fcs"));
    EXPECT_EQ(Window().Area().height(), height) << "a remark moves nothing";

    for (QWidget* clicked : {static_cast<QWidget*>(&all), line.findChild<QWidget*>("StatusLine")}) {
        Click(*clicked, clicked->rect().center());
        QWidget* list = QApplication::activePopupWidget();
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->findChild<QLabel*>()->text(), "a.fcs: data end early\nb.fcs: <odd> & more");
        list->close();
        LetEventsRun();
    }
    Main().SetStatus(std::span(lines).first(1), StatusKind::kOddFiles);
    EXPECT_TRUE(sign.isVisible() && !all.isVisible());
    Remark({"something else"});
    EXPECT_FALSE(sign.isVisible());
    EXPECT_EQ(colour(), plain);
}

TEST_F(MainFormTest, AnEmptyWindowTellsHowToBegin) {
    QWidget& background = *Window().Area().viewport();
    const QRect middle(background.width() / 2 - 250, background.height() / 2 - 20, 500, 40);
    auto child = MakeChild("A");
    child->form->SetPlace(TwipsFromPixels(2), TwipsFromPixels(2));
    const auto hint = [&] { return background.grab(middle).toImage(); };
    const QImage without = hint();
    child->form->Hide();
    const QImage with = hint();
    EXPECT_NE(with, without);
    child->form->Show();
    EXPECT_EQ(hint(), without);
    child.reset();
    LetEventsRun();
    EXPECT_EQ(hint(), with);
}

TEST_F(MainFormTest, TheCloseBoxAsksAndTheWindowStaysUnlessTheProgramQuits) {
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(main_.Take(), Log{"close"});
    platform_.Loop().Quit(3);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(main_.Take(), Log{});
    EXPECT_EQ(platform_.Loop().Run(), 3);
}

TEST_F(MainFormTest, MovesOverTheBackgroundAreTold) {
    const auto child = MakeChild("A");
    main_.Take();
    QWidget* background = Window().Area().viewport();
    MoveTo(*background, {700, 500});
    EXPECT_EQ(main_.Take(), Log{"background"});
    MoveTo(Picture(0), {50, 50});
    MoveTo(Shown(0), {60, 8});
    EXPECT_EQ(main_.Take(), Log{});
}

TEST_F(MainFormTest, DroppedFilesArriveAsPaths) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/data/a b.fcs"), QUrl("http://example.org/x.fcs"),
                  QUrl::fromLocalFile("/data/\u00e4.fcs")});
    QDragEnterEvent enter({600, 400}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&Window(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop({600, 400}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&Window(), &drop);
    LetEventsRun();
    EXPECT_EQ(main_.Take(), (Log{"dropped /data/a b.fcs", "dropped /data/\xc3\xa4.fcs"}));

    QMimeData text;
    text.setText("no file");
    QDragEnterEvent other({600, 400}, Qt::CopyAction, &text, Qt::LeftButton, {});
    other.ignore();
    QCoreApplication::sendEvent(&Window(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(MainFormTest, TheSnapshotHoldsTheChildren) {
    const auto child = MakeChild("A");
    Kuva& kuva = child->form->Surface();
    kuva.SetSize(child->form->ScaleWidth(), child->form->ScaleHeight());
    kuva.SetBackColor({1, 2, 3});
    kuva.Cls();
    const Bitmap picture = Main().Snapshot();
    EXPECT_EQ(picture.width, 1200 * picture.ratio);
    EXPECT_EQ(picture.height, 800 * picture.ratio);
    EXPECT_EQ(picture.ratio, Window().devicePixelRatioF());
    const auto at = [&](const QWidget& widget, QPoint place) {
        const QPoint there = widget.mapTo(&Window(), place) * picture.ratio;
        return picture.At(there.x(), there.y());
    };
    EXPECT_EQ(at(Picture(0), {100, 100}), (Rgb{1, 2, 3}.Pixel()));
    EXPECT_EQ(at(Window().Area(), {800, 500}), kBackgroundColor.Pixel());
}

TEST_F(MainFormTest, WithoutAReceiverNothingHappens) {
    BuildMenus();
    Main().SetEvents(nullptr);
    Item("FileOpenFCS").trigger();
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(main_.Take(), Log{});
}

}  // namespace
}  // namespace tessarin
