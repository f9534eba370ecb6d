// The axes of a window that each show one channel of its file.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/WindowRoles.h"
#include "windows/FileView.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// One axis: what tools and sheets call it, and its channel, counted from 1.
struct ChannelAxis {
    std::string_view word;  ///< "x", "y" or "z"
    int16_t channel = 1;    ///< also what it falls back to when the file has fewer channels
};

class ChannelAxes : public ChannelOwner {
  public:
    ChannelAxes(FrameWindow& window, FileView& view, std::initializer_list<ChannelAxis> axes);

    // ChannelOwner.
    std::string AnnaKanava(std::string_view axis) const override;
    void AsetaKanava(std::string_view axis, int16_t channel) override;
    void AsetaPiirtoMoodi(std::string_view mode) override { view_.AsetaPiirtoMoodi(mode); }

    /// The channel on axis n, from 1. REQUIRES: there is one.
    int16_t operator()(int n) const { return axes_[static_cast<std::size_t>(n) - 1].now; }
    /// Its record. REQUIRES: `Sovita` was told of that file.
    const Kanava& Kanavasta(const Tiedosto& file, int n) const { return file.Channels((*this)(n)); }
    /// Before a redraw: channels left over from a file with more of them are replaced.
    void Sovita(const Tiedosto& file);
    /// Lets the user choose the channel of axis n, then calls `chosen` and redraws. A list that is
    /// dismissed changes nothing.
    void Valitse(int n, const std::function<void()>& chosen = {});

    void AddKeys(SheetTable& keys);

  private:
    struct Axis {
        std::string_view word;
        int16_t now;
        int16_t fallback;
    };

    FrameWindow& window_;
    FileView& view_;
    std::vector<Axis> axes_;
};

/// Whether the mouse is where the title of the x axis stands, or left of the y axis.
bool OnkoXAkselilla(const PlotArea& area, PixelPoint mouse);
bool OnkoYAkselilla(const PlotArea& area, PixelPoint mouse);

}  // namespace tessarin
