// Menus as plain values.
#pragma once

#include <string>
#include <vector>

namespace tessarin {

/// One item of the menu bar. `command` is the name that comes back when it is chosen; an item
/// with the caption "-" is a separator.
struct MenuItem {
    std::string command;
    std::string caption;
    std::string shortcut;  ///< such as "Ctrl+O"; empty for none
    bool enabled = true;
    bool checkable = false;
};

struct Menu {
    std::string name;
    std::string caption;  ///< "&" stands before the letter of its Alt key
    std::vector<MenuItem> items;
};

/// One item of a pop-up menu. An entry with `children` is a sub-menu.
struct PopupEntry {
    std::string caption;  ///< "-" is a separator
    bool enabled = true;
    bool checked = false;
    std::vector<PopupEntry> children{};
};

/// What was chosen: the place in the list from 0, and within a sub-menu the place there.
struct PopupChoice {
    int item = -1;   ///< -1 when the menu was dismissed
    int child = -1;  ///< -1 when the item is no sub-menu
};

}  // namespace tessarin
