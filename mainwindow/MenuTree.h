// The menu bar of the main window as one table.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/Menus.h"

namespace tessarin {

/// The whole tree. An item for whose command `isBuilt` is false stands in its place, disabled.
std::vector<Menu> MenuTree(const std::function<bool(std::string_view)>& isBuilt);

}  // namespace tessarin
