// Names of the files that a save goes to before it takes the place of its target.
//
//     .tessarin-TARGET-HOST-PROCESS.part
//
// TARGET and HOST stand for the names of target and machine, as eight hexadecimal digits each, so
// that the name fits wherever the target's does. PROCESS is the number of the process that writes;
// a second file of one process for one target has a further number behind it.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// The name for a target of that name; `number` is 1 for the first that is tried.
std::string TemporaryName(std::string_view target, int number);

/// Whether a file is called so. It holds no more than a part of what was being saved, whatever it
/// begins like, and is no file of the user's.
bool IsTemporaryName(std::string_view name);

/// Removes from `folder` what processes of this machine left behind there that ended while they
/// saved a target of that name.
void RemoveOrphans(const std::string& folder, std::string_view target);

}  // namespace tessarin
