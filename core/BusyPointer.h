// The hourglass during long operations, without knowing what shows it.
#pragma once

#include <functional>

namespace tessarin {

/// Called with True when the first long operation begins and with False when the last one ends.
/// The program sets it once at start; while it is empty nothing is shown.
extern std::function<void(bool)> NaytaTiimalasi;

/// Shows the busy pointer for as long as it lives. Operations inside each other show it once.
class BusyPointer {
  public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

}  // namespace tessarin
