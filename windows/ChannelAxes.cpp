#include "windows/ChannelAxes.h"

#include <algorithm>

#include "core/RegionMuuttujat.h"
#include "mainwindow/Popups.h"

namespace tessarin {

ChannelAxes::ChannelAxes(FrameWindow& window, FileView& view,
                         std::initializer_list<ChannelAxis> axes)
    : window_(window), view_(view) {
    for (const ChannelAxis& axis : axes) {
        axes_.push_back({axis.word, axis.channel, axis.channel});
    }
}

std::string ChannelAxes::AnnaKanava(std::string_view axis) const {
    const auto found = std::ranges::find(axes_, axis, &Axis::word);
    return found == axes_.end() ? "" : std::to_string(found->now);
}

void ChannelAxes::AsetaKanava(std::string_view axis, int16_t channel) {
    const auto found = std::ranges::find(axes_, axis, &Axis::word);
    if (found != axes_.end()) {
        found->now = channel;
    }
    window_.Piirra();
}

void ChannelAxes::Sovita(const Tiedosto& file) {
    for (Axis& axis : axes_) {
        if (axis.now < 1 || axis.now > file.ChannelCount) {
            axis.now = std::min(axis.fallback, file.ChannelCount);
        }
    }
}

void ChannelAxes::Valitse(int n, const std::function<void()>& chosen) {
    const Tiedosto* file = window_.File();
    if (file == nullptr) {
        return;
    }
    ValikkoAkseli = static_cast<int16_t>(n);
    const int16_t channel = NaytaKanavaLista(window_.Main(), *file, (*this)(n));
    if (channel == 0) {
        return;
    }
    axes_[static_cast<std::size_t>(n) - 1].now = channel;
    if (chosen) {
        chosen();
    }
    window_.Piirra();
}

void ChannelAxes::AddKeys(SheetTable& keys) {
    for (Axis& axis : axes_) {
        keys.Add(Lukuavain("axis." + std::string(axis.word), axis.now));
    }
}

bool OnkoXAkselilla(const PlotArea& area, PixelPoint mouse) {
    return mouse.x > area.Left() && mouse.x < area.W() && mouse.y > area.Bottom() &&
           mouse.y < area.H();
}

bool OnkoYAkselilla(const PlotArea& area, PixelPoint mouse) {
    return mouse.x > 0 && mouse.x < area.Left() && mouse.y > area.Top() && mouse.y < area.Bottom();
}

}  // namespace tessarin
