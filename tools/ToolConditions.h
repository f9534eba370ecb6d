// Which lines of a tool a failed condition holds back.
#pragma once

#include <cstdint>
#include <string>

namespace tessarin {

/// `Ehdot` means conditions. They are counted by the letters on a line, wherever they stand.
class Ehdot {
  public:
    /// Takes the next line of the tool; True when it is passed over: as a comment, as one of the
    /// shortest, which count for nothing, or because a condition failed.
    bool OhitaRivi(const std::string& line);
    /// A condition on the line taken last: what follows is passed over up to its `endif` unless it
    /// holds.
    void Aseta(bool holds) { Ohita = !holds; }

  private:
    bool Ohita = false;        // passing over up to the matching endif
    int32_t OhitusSyvyys = 0;  // conditions opened meanwhile
};

}  // namespace tessarin
