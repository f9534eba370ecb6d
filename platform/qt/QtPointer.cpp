#include "platform/qt/QtPointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace tessarin {

QtPointer::~QtPointer() {
    QtPointer::SetPointer(MousePointer::kNormal);
}

void QtPointer::SetPointer(MousePointer pointer) {
    if (pointer == shown_) {
        return;
    }
    if (shown_ != MousePointer::kNormal) {
        QGuiApplication::restoreOverrideCursor();
    }
    if (pointer != MousePointer::kNormal) {
        QGuiApplication::setOverrideCursor(pointer == MousePointer::kHourglass ? Qt::WaitCursor
                                                                               : Qt::CrossCursor);
    }
    shown_ = pointer;
}

}  // namespace tessarin
