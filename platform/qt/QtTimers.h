// Timers of the event loop.
#pragma once

#include "platform/Services.h"

namespace tessarin {

class QtTimers : public Timers {
  public:
    std::unique_ptr<Timer> Make(std::function<void()> tick) override;
};

}  // namespace tessarin
