#include "platform/qt/QtTimers.h"

#include <QTimer>
#include <utility>

namespace tessarin {
namespace {

class QtTimer : public Timer {
  public:
    explicit QtTimer(std::function<void()> tick) {
        QObject::connect(&timer_, &QTimer::timeout, std::move(tick));
    }
    void SetInterval(int milliseconds) override { timer_.setInterval(milliseconds); }
    void SetEnabled(bool enabled) override {
        if (enabled) {
            timer_.start();
        } else {
            timer_.stop();
        }
    }

  private:
    QTimer timer_;
};

}  // namespace

std::unique_ptr<Timer> QtTimers::Make(std::function<void()> tick) {
    return std::make_unique<QtTimer>(std::move(tick));
}

}  // namespace tessarin
