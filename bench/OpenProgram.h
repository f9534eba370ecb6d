// How long the whole program takes to open and draw a file.
#pragma once

#include <string>

namespace tessarin {

/// Starts the built program without a screen, with the file of big-endian floats and without, and
/// prints a line with the difference, the start left out: the best of several. What the program
/// prints goes nowhere. Says so when it cannot be started.
void PrintOpenProgram(const std::string& program);

}  // namespace tessarin
