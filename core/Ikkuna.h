// A row of the table of windows.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace tessarin {

/// What a slot holds on to. The floors that know windows derive from it; this one only keeps it.
class WindowObject {
  public:
    WindowObject() = default;
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;
    virtual ~WindowObject() = default;
};

/// `Ikkuna` means window. The slot number is the window's id.
struct Ikkuna {
    bool Used = false;
    /// Shared, so that a window closed during its own work lives until that work returns.
    std::shared_ptr<WindowObject> Window;
    bool Selected = false;    ///< takes part in commands that go to the selected windows
    int16_t FileIndex = 0;    ///< slot in `Tiedostot`, 0 for none
    bool Selectable = false;  ///< can be selected and can receive a file
    std::string Type;         ///< "DotPlot", "Histogram" and so on
};

}  // namespace tessarin
