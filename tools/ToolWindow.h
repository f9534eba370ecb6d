// The windows that a tool's line names, and what they must have for it.
#pragma once

#include <cstdint>
#include <memory>

#include "mainwindow/WindowList.h"
#include "tools/ToolValue.h"

namespace tessarin {

/// The window of that number, which lives as long as what is given; a fault when there is none.
inline std::shared_ptr<AnalysisWindow> ToolWindow(int16_t id) {
    auto window = IkkunaPaikassa(id);
    return window != nullptr ? window : throw ToolFault{"There is no window " + std::to_string(id)};
}

/// A role of a window; a fault for a kind that lacks it.
template <class Role>
Role& Must(Role* role) {
    return role != nullptr ? *role : throw ToolFault{"A window of its kind cannot do that"};
}

}  // namespace tessarin
