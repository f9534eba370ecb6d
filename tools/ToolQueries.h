// The queries of the tool language: values that begin with "@".
#pragma once

#include <optional>
#include <string>

#include "tools/ToolValue.h"

namespace tessarin {

class ToolRun;

/// `Kysy` means ask: the answer to a query such as "@.w.1.filename". Nothing for one that is not
/// known; throws ToolFault for one that asks for what is not there.
std::optional<ToolValue> Kysy(ToolRun& run, const std::string& query);

/// Whether the language has that query, or may have it once its variables are in place.
bool TunteeKysymyksen(const std::string& query);

}  // namespace tessarin
