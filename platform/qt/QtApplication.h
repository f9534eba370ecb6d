// The program's own QApplication: what one event cannot have of the memory ends that event only,
// and the program ends in good order before the memory is gone altogether.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace tessarin {

class QtApplication : public QApplication {
  public:
    QtApplication(int& argc, char** argv);

    /// Told when an event was given up because the memory was short; it runs within that event.
    std::function<void(const std::string& remark)> onShortage;

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void End();

    bool ending_ = false;  // the user is being told
};

}  // namespace tessarin
