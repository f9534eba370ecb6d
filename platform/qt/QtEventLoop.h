// The program's event loop, and whether the program is on its way out.
#pragma once

#include "platform/Services.h"

namespace tessarin {

class QtEventLoop : public EventLoop {
  public:
    void Yield() override;
    void YieldBetween() override;
    void Quit(int status) override;

    /// Runs until `Quit`, which may have been called before; gives its status.
    int Run();
    bool IsQuitting() const { return quitting_; }
    int Status() const { return status_; }

  private:
    int depth_ = 0;  // yields within yields
    bool quitting_ = false;
    int status_ = 0;
};

}  // namespace tessarin
