// Captions of a window's pop-up menu, as they change with the window's settings.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/Popups.h"

namespace tessarin {

/// `PopupTekstit` means pop-up texts. Items count from 1; the caption "-" is a separator.
class PopupTekstit {
  public:
    /// Adds the next item.
    void Lisaa(std::string_view caption) { captions_.emplace_back(caption); }
    /// REQUIRES: item is 1 to the number of captions.
    void Aseta(int item, std::string_view caption) { captions_[Place(item)] = caption; }
    const std::string& operator()(int item) const { return captions_[Place(item)]; }

    /// The menu as it is shown now.
    std::vector<WindowMenuItem> Items(const std::function<bool(int item)>& enabled) const {
        std::vector<WindowMenuItem> items;
        for (const std::string& caption : captions_) {
            items.push_back({caption, enabled(static_cast<int>(items.size()) + 1)});
        }
        return items;
    }

  private:
    static std::size_t Place(int item) { return static_cast<std::size_t>(item) - 1; }

    std::vector<std::string> captions_;
};

}  // namespace tessarin
