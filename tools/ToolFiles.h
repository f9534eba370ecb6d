// Tools that are opened in the tool window and saved from it.
#pragma once

#include <optional>
#include <string>

#include "platform/Services.h"

namespace tessarin {

/// `TyokaluKansio` means folder of tools: beside the program, ending in "/".
std::string TyokaluKansio(const Platform& services);

/// A tool text and where it lies.
struct AvattuTyokalu {
    std::string path;
    std::string text;
};

/// `AvaaTyokalu` means open a tool: asks for one, starting in `folder`. Nothing when the user
/// thinks better of it, or when it cannot be read, which is told.
std::optional<AvattuTyokalu> AvaaTyokalu(Dialogs& dialogs, const std::string& folder);

/// `TalletaTyokalu` means save a tool: asks where, starting at `start`, and writes the text with
/// line ends of CR LF, also behind the last line. Gives the place; empty when nothing was written,
/// which is told if it failed.
std::string TalletaTyokalu(Dialogs& dialogs, const std::string& start, const std::string& text);

}  // namespace tessarin
