// The menu bar of the main window as one table.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Menus.h"

namespace tessarin {

/// The command of installed tool number `tool`, from 0: `SkriptiLista` means script list.
std::string ToolCommand(std::size_t tool);

/// The whole tree. An item for whose command `isBuilt` is false stands in its place, disabled. The
/// menu of tools lists those given, in their order; without any it keeps its one item, disabled.
std::vector<Menu> MenuTree(const std::function<bool(std::string_view)>& isBuilt,
                           const std::vector<std::string>& tools);

}  // namespace tessarin
