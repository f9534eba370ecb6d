// The program's own QApplication: what one event cannot have of the memory ends that event only.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace tessarin {

class QtApplication : public QApplication {
  public:
    using QApplication::QApplication;

    /// Told when an event was given up because the memory was short; it runs within that event.
    std::function<void(const std::string& remark)> onShortage;

    bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace tessarin
