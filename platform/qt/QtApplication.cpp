#include "platform/qt/QtApplication.h"

#include <new>

namespace tessarin {

bool QtApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        if (onShortage) {
            onShortage("There is not enough memory for that.");
        }
        return false;
    }
}

}  // namespace tessarin
