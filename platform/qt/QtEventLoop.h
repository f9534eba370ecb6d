// The program's event loop, and whether the program is on its way out.
#pragma once

#include <QElapsedTimer>

#include "platform/Services.h"

namespace tessarin {

class QtEventLoop : public EventLoop {
  public:
    /// `unseen`: nobody acts on the program, so that looking for events a thousand times a second
    /// is enough between the lines of a tool.
    explicit QtEventLoop(bool unseen = false) : unseen_(unseen) {}

    void Yield() override;
    void YieldBetween() override;
    void Quit(int status) override;

    /// Runs until `Quit`, which may have been called before; gives its status.
    int Run();
    bool IsQuitting() const { return quitting_; }
    int Status() const { return status_; }

  private:
    bool unseen_;
    QElapsedTimer sinceYield_;
    int depth_ = 0;  // yields within yields
    bool quitting_ = false;
    int status_ = 0;
};

}  // namespace tessarin
