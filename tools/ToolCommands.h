// The commands of the tool language.
#pragma once

#include <string>

#include "tools/ToolLine.h"

namespace tessarin {

class ToolRun;

/// `SuoritaKomento` means carry out the command: of one line whose value is ready. A line that no
/// command takes does nothing. Throws ToolFault for one that cannot be carried out.
void SuoritaKomento(ToolRun& run, const ToolLine& line);

/// Whether the condition behind `loop:` ends the loop: its two sides are equal for "=", the left
/// one is greater for ">", or less for "<".
bool LoppuuSilmukka(const std::string& condition);

// The families of commands, each with its own table. False when a line is of another family.
bool SuoritaMuuttujakomento(ToolRun& run, const ToolLine& line);
bool SuoritaIkkunakomento(ToolRun& run, const ToolLine& line);
bool SuoritaPopulaatiokomento(ToolRun& run, const ToolLine& line);
bool SuoritaTiedostokomento(ToolRun& run, const ToolLine& line);
bool SuoritaKysymys(ToolRun& run, const ToolLine& line);

}  // namespace tessarin
