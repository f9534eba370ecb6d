#include "tools/ToolConditions.h"

#include "core/Text.h"

namespace tessarin {

bool Ehdot::OhitaRivi(const std::string& line) {
    constexpr std::size_t kShortest = 3;
    if (Length(line) < kShortest || line[0] == '#') {
        return true;
    }
    if (line.find("endif") != std::string::npos) {
        if (OhitusSyvyys == 0) {
            Ohita = false;
        } else {
            --OhitusSyvyys;
        }
    }
    if (Ohita && line.find("if.") != std::string::npos) {
        ++OhitusSyvyys;
    }
    return Ohita;
}

}  // namespace tessarin
