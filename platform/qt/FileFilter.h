// The filters of file dialogs in Qt's way of writing.
#pragma once

#include <QString>
#include <string_view>

namespace tessarin {

/// "FCS files (*.*)|*.*|Text|*.txt;*.csv" becomes "FCS files (*);;Text (*.txt *.csv)". The pattern
/// "*.*" means all files, also those without a dot in their name. Empty stays empty.
QString QtFilter(std::string_view filter);

}  // namespace tessarin
