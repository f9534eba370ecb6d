// Which columns and header rows a statistics window can show.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// `Laji` means kind.
enum class TilastoLaji { kOther = 0, kColumn = 1, kHeader = 2 };

struct TilastoValinta {
    std::string Teksti;  ///< caption in the pop-up menu; "-" is a separator
    TilastoLaji Laji = TilastoLaji::kOther;
    bool Nakyvissa = false;  ///< on
};

/// The items of a statistics window whose owner is of that `Type`, as they are at first; item n
/// is at n - 1. The last is the print preview item. Empty for kinds without statistics.
std::vector<TilastoValinta> TilastoValinnat(std::string_view type);

}  // namespace tessarin
