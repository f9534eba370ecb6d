#include "platform/qt/QtEventLoop.h"

#include <QCoreApplication>

namespace tessarin {

void QtEventLoop::Yield() {
    QCoreApplication::processEvents();
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
