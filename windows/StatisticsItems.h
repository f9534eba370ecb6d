// Which columns and header rows a statistics window can show.
#pragma once

#include <initializer_list>
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

/// The items of a statistics window as they are at first; item n is at n - 1: the value columns of
/// its owner by these captions, all on, then the header rows, off, then the print preview item.
std::vector<TilastoValinta> TilastoValinnat(std::initializer_list<std::string_view> columns);

}  // namespace tessarin
