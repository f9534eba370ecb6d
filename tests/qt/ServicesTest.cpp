// The smaller services: pointer, clipboard, timers, event loop, printer, and the choice of them.
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/qt/Conversions.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

Bitmap Striped(int width, int height) {
    Bitmap picture{width, height, 1, {}};
    for (int i = 0; i < width * height; ++i) {
        picture.pixels.push_back(i % 3 == 0 ? 0xffff0000U : 0xff0000ffU);
    }
    return picture;
}

TEST(QtPointer, NeverStacks) {
    QtPointer pointer;
    pointer.SetPointer(MousePointer::kHourglass);
    pointer.SetPointer(MousePointer::kHourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    pointer.SetPointer(MousePointer::kCrosshair);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    pointer.SetPointer(MousePointer::kNormal);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    pointer.SetPointer(MousePointer::kNormal);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(QtClipboard, TakesTextAndPicturesAndIsCleared) {
    QtClipboard clipboard;
    clipboard.SetText("caf\xc3\xa9\tx\r\n");
    EXPECT_EQ(clipboard.Text(), "caf\xc3\xa9\tx\r\n");
    const Bitmap picture = Striped(5, 3);
    clipboard.SetImage(picture);
    EXPECT_EQ(clipboard.Text(), "");
    EXPECT_TRUE(FromQt(QGuiApplication::clipboard()->image()).pixels == picture.pixels);
    clipboard.Clear();
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}

TEST(QtTimers, TickOnlyWhileEnabledAndMayEndInATick) {
    QtTimers timers;
    int ticks = 0;
    std::unique_ptr<Timer> timer;
    timer = timers.Make([&] {
        if (++ticks == 3) {
            timer.reset();
        }
    });
    timer->SetInterval(1);
    QTest::qWait(20);
    EXPECT_EQ(ticks, 0);
    timer->SetEnabled(true);
    QTest::qWait(50);
    EXPECT_EQ(ticks, 3);
}

TEST(QtEventLoop, QuitsWithItsStatusAlsoBeforeItRuns) {
    QtEventLoop loop;
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    loop.Yield();
    EXPECT_TRUE(ran);
    QTimer::singleShot(0, [&] { loop.Quit(7); });
    EXPECT_EQ(loop.Run(), 7);
    QtEventLoop early;
    early.Quit(1);
    EXPECT_TRUE(early.IsQuitting());
    EXPECT_EQ(early.Run(), 1);
}

TEST(QtPrinter, PrintsAPageToItsFileWithoutAsking) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("page.pdf");
    QtPrinter printer(FromQt(path));
    ASSERT_TRUE(printer.Choose());
    printer.PaintPicture(Striped(40, 20), 0.1, 0.1, 0.5, 0.25);
    printer.PaintPicture(Striped(40, 20), 0.1, 0.5, 0.5, 0.25);
    printer.EndDoc();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_EQ(bytes.count("/Type /Page\n"), 1);
    EXPECT_TRUE(bytes.contains("/Subtype /Image"));
}

TEST(QtPrinter, WithoutAFileThereIsNoneToChoose) {
    QtPrinter printer{std::string()};
    EXPECT_FALSE(printer.Choose());
    printer.PaintPicture(Striped(2, 2), 0, 0, 1, 1);
    printer.EndDoc();
}

TEST(QtPlatform, TakesTheServicesThatItIsGiven) {
    QtClipboard clipboard;
    QtBrowser browser;
    QtPlatform platform({true, "folder/", "", nullptr, &clipboard, nullptr, &browser});
    EXPECT_EQ(&platform.Services().clipboard, &clipboard);
    EXPECT_EQ(&platform.Services().browser, &browser);
    EXPECT_NE(dynamic_cast<QtDialogs*>(&platform.Services().dialogs), nullptr);
    EXPECT_EQ(platform.Services().programFolder, "folder/");
    EXPECT_EQ(platform.Main().Window().size(), QSize(1200, 800));
}

}  // namespace
}  // namespace tessarin
