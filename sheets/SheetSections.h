// The parts of a sheet behind its windows: those that there is one of at most.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "mainwindow/Companions.h"

namespace tessarin {

struct SheetSectionName {
    std::string_view key;    ///< the first field of its lines
    std::string_view title;  ///< the comment above them
};

/// In the order of a sheet, which has them all, shown or not.
inline constexpr std::array kSheetSections = {
    SheetSectionName{"printview", "Print view"},
    SheetSectionName{"fileinfo", "File info"},
};

/// The window that a section belongs to; nullptr while the program has none.
inline SheetSection* EtsiOsa(const Companions& companions, std::string_view key) {
    for (SheetSection* section : companions.sections) {
        if (section->SheetName() == key) {
            return section;
        }
    }
    return nullptr;
}

/// Whether lines that begin so belong to a section.
constexpr bool OnkoOsa(std::string_view key) {
    return std::ranges::find(kSheetSections, key, &SheetSectionName::key) != kSheetSections.end();
}

}  // namespace tessarin
