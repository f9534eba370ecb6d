// The pointer of the whole program, over whatever its windows show.
#pragma once

#include "platform/Services.h"

namespace tessarin {

/// However often a pointer is set, one `kNormal` brings the windows' own pointers back.
class QtPointer : public PointerControl {
  public:
    ~QtPointer() override;
    void SetPointer(MousePointer pointer) override;

  private:
    MousePointer shown_ = MousePointer::kNormal;
};

}  // namespace tessarin
