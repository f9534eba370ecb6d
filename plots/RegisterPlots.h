// Tells the program which window kinds this folder has.
#pragma once

namespace tessarin {

/// Registers every kind. Called once at program start, before the main window starts.
void RekisteroiKuvaajat();

}  // namespace tessarin
