#include "platform/qt/QtApplication.h"

#include <QEvent>
#include <QMessageBox>
#include <new>

#include "platform/qt/MemoryGuard.h"

namespace tessarin {
namespace {

// Events after which much is worked out or drawn.
bool NeedsRoom(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::Drop:
        case QEvent::Show:
        case QEvent::Resize:
        case QEvent::UpdateRequest:
            return true;
        default:
            return false;
    }
}

}  // namespace

QtApplication::QtApplication(int& argc, char** argv) : QApplication(argc, argv) {
    EndWhenMemoryIsGone();
}

bool QtApplication::notify(QObject* receiver, QEvent* event) {
    if (NeedsRoom(event->type()) && !ending_ && !HasRoomForAnEvent()) {
        End();
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        if (onShortage) {
            onShortage("There is not enough memory for that.");
        }
        return false;
    }
}

// There is room for a small box still, but perhaps not for long.
void QtApplication::End() {
    ending_ = true;
    if (platformName() != "offscreen") {
        constexpr unsigned kMostSeconds = 60;
        EndForMemoryWithin(kMostSeconds);
        QMessageBox::critical(nullptr, "Tessarin",
                              "There is not enough memory to go on. Tessarin ends now; its windows "
                              "can be recovered at the next start.");
    }
    EndForMemory();
}

}  // namespace tessarin
