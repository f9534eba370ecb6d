// The events of a file that a window uses: the gate and the thinning.
#pragma once

#include <cstdint>

#include "mainwindow/WindowRoles.h"
#include "windows/FastDraw.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// A part of windows that show the events of a file.
class FileView : public GateOwner {
  public:
    explicit FileView(FrameWindow& window) : window_(window) {}

    // GateOwner.
    void NaytaPopulaatio(int16_t population) override;

    int16_t Portti() const override { return NaytettavaPopulaatio; }
    const NopeaPiirto& Nopea() const { return nopea_; }
    /// `PiirtoVali`, the step of all that is computed.
    int32_t Vali() const { return nopea_.PiirtoVali; }
    /// The step of the picture, which is thinner while the window is being resized.
    int32_t KuvanVali() const;

    /// `LatauksenJalkeen` of the window: the thinning follows the file, and whoever shows the file
    /// of the active window is told.
    void LatauksenJalkeen();
    /// Before a redraw: a gate on a population that is gone falls.
    void Sovita();
    /// "fast" or "full".
    void AsetaPiirtoMoodi(std::string_view mode);
    /// While a drag runs about 1000 events are drawn; False goes back to what was.
    void AsetaVeto(bool dragging);

    void DrawFastMark(const PlotArea& area) const;
    /// Tells of the gate in the upper right corner of the picture.
    void DrawGate() const;
    WindowMenuItem FastDrawItem();
    void AddShowKey(SheetTable& keys);
    void AddFastDrawKey(SheetTable& keys);

  private:
    FrameWindow& window_;
    int16_t NaytettavaPopulaatio = 0;
    NopeaPiirto nopea_;
    bool veto_ = false;
};

}  // namespace tessarin
