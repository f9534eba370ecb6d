// The side panel's width: a thin strip that slides open under the mouse.
#pragma once

#include "platform/MainForm.h"

namespace tessarin {

class SlidingPanel {
  public:
    static constexpr Twips PanelWidthOpen{4000};
    static constexpr Twips PanelWidthClosed{150};

    explicit SlidingPanel(MainForm& form) : form_(form) {}

    /// The state at program start: collapsed.
    void Alusta();
    /// The mouse came to the panel.
    void Avaa();
    /// The mouse is elsewhere: closes the panel unless it is frozen.
    void Sulje();

  private:
    MainForm& form_;
};

}  // namespace tessarin
