#include "platform/qt/ActiveChild.h"

#include <QTimer>

namespace tessarin {

ActiveChild::ActiveChild(QMdiArea& area) : area_(area) {
    connect(&area, &QMdiArea::subWindowActivated, this,
            [this](QMdiSubWindow* window) { Became(window); });
}

void ActiveChild::Activate(ChildWindow& window) {
    area_.setActiveSubWindow(&window);
    Became(&window);
}

void ActiveChild::ShowBeside(ChildWindow& window) {
    quiet_ = true;
    window.show();
    if (current_) {
        area_.setActiveSubWindow(current_);
    }
    window.raise();
    quiet_ = false;
}

void ActiveChild::TakeAway(ChildWindow& window) {
    if (current_ == &window) {
        current_ = nullptr;
    }
    quiet_ = true;
    window.hide();
    if (window.Events() == nullptr) {
        area_.removeSubWindow(&window);
        window.deleteLater();
    }
    quiet_ = false;
    QTimer::singleShot(0, this, [this] { Became(area_.currentSubWindow()); });
}

void ActiveChild::Became(QMdiSubWindow* window) {
    auto* child = dynamic_cast<ChildWindow*>(window);
    if (quiet_ || child == nullptr || child == current_ || child->isHidden() ||
        child->Events() == nullptr) {
        return;
    }
    current_ = child;
    child->Events()->Activated();
}

}  // namespace tessarin
