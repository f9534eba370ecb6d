#include "platform/qt/QtEventLoop.h"

#include <QCoreApplication>

namespace tessarin {

void QtEventLoop::Yield() {
    ++depth_;
    QCoreApplication::processEvents();
    --depth_;
}

// Qt frees what was closed when it is back in the loop that the program runs in, which a tool
// reaches at its end only. Within the yield of another caller a child window may wait below.
void QtEventLoop::YieldBetween() {
    if (unseen_ && sinceYield_.isValid() && sinceYield_.elapsed() < 1) {
        return;
    }
    Yield();
    sinceYield_.start();
    if (depth_ == 0) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void QtEventLoop::Quit(int status) {
    quitting_ = true;
    status_ = status;
    QCoreApplication::exit(status);
}

int QtEventLoop::Run() {
    if (!quitting_) {
        QCoreApplication::exec();
    }
    return status_;
}

}  // namespace tessarin
