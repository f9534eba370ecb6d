#include "platform/qt/MainWindow.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <algorithm>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

// The strip of the closed panel is left free for it.
constexpr int kStripWidth = PixelsFromTwips({150});

std::vector<std::string> LocalFiles(const QMimeData* data) {
    std::vector<std::string> paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.push_back(FromQt(url.toLocalFile()));
        }
    }
    return paths;
}

void AcceptFiles(QDropEvent& event) {
    if (!LocalFiles(event.mimeData()).empty()) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
    }
}

}  // namespace

MainWindow::MainWindow(MainFormEvents& events, const QtEventLoop& loop)
    : events_(events),
      loop_(loop),
      area_(new ChildArea),
      panel_(new SidePanel(events)),
      status_(new StatusLine) {
    area_->viewport()->installEventFilter(this);

    auto* middle = new QWidget;
    auto* row = new QHBoxLayout(middle);
    row->setContentsMargins(0, 0, kStripWidth, 0);
    row->addWidget(area_);
    panel_->setParent(middle);
    middle->installEventFilter(this);
    setCentralWidget(middle);

    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(status_, 1);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(true);
}

void MainWindow::SetPanelWidth(int pixels) {
    panelWidth_ = pixels;
    PlacePanel();
}

void MainWindow::PlacePanel() {
    const QRect middle = centralWidget()->rect();
    panel_->setGeometry(middle.width() - panelWidth_, 0, panelWidth_, middle.height());
    panel_->raise();
    const int over = std::max(0, panelWidth_ - kStripWidth);
    area_->SetCovered(
        QRect(middle.width() - panelWidth_, 0, over, middle.height()).intersected(middle));
}

bool MainWindow::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == centralWidget() && event->type() == QEvent::Resize) {
        PlacePanel();
    }
    // Moves over a child window may come through to the area behind it.
    if (receiver == area_->viewport() && event->type() == QEvent::MouseMove &&
        area_->viewport()->childAt(static_cast<QMouseEvent*>(event)->pos()) == nullptr) {
        events_.BackgroundMouseMove();
    }
    return QMainWindow::eventFilter(receiver, event);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::StatusTip) {
        return true;  // hovering over menus must not wipe the status line
    }
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!loop_.IsQuitting()) {
        events_.CloseRequested();
    }
    event->setAccepted(loop_.IsQuitting());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    AcceptFiles(*event);
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    AcceptFiles(*event);
}

void MainWindow::dropEvent(QDropEvent* event) {
    const std::vector<std::string> paths = LocalFiles(event->mimeData());
    if (paths.empty()) {
        return;
    }
    AcceptFiles(*event);
    // The other program waits until the drop is done, which must not mean until the files are read.
    QTimer::singleShot(0, this, [this, paths] { events_.FilesDropped(paths); });
}

}  // namespace tessarin
