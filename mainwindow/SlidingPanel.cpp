#include "mainwindow/SlidingPanel.h"

#include "core/Muuttujat.h"

namespace tessarin {

void SlidingPanel::Alusta() {
    PanelCollapsed = true;
    form_.SetPanelWidth(PanelWidthClosed);
}

void SlidingPanel::Avaa() {
    if (PanelCollapsed) {
        PanelCollapsed = false;
        form_.SetPanelWidth(PanelWidthOpen);
    }
}

void SlidingPanel::Sulje() {
    if (!PanelCollapsed && !PanelFrozen) {
        PanelCollapsed = true;
        form_.SetPanelWidth(PanelWidthClosed);
    }
}

}  // namespace tessarin
