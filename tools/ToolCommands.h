// The commands of the tool language.
#pragma once

#include <span>
#include <string>

#include "tools/ToolLine.h"

namespace tessarin {

class ToolRun;

/// `SuoritaKomento` means carry out the command: of one line whose value is ready. A line that no
/// command takes does nothing. Throws ToolFault for one that cannot be carried out.
void SuoritaKomento(ToolRun& run, const ToolLine& line);

/// Whether the language has a command of those words. Those that only fail a condition, such as
/// "if.maybe", do not count.
bool TunteeKomennon(std::span<const std::string> words);

/// Whether the condition behind `loop:` ends the loop: its two sides are equal for "=", the left
/// one is greater for ">", or less for "<".
bool LoppuuSilmukka(const std::string& condition);

// The families of commands, each with its own table. False when a line is of another family.
bool SuoritaMuuttujakomento(ToolRun& run, const ToolLine& line);
bool SuoritaIkkunakomento(ToolRun& run, const ToolLine& line);
bool SuoritaPopulaatiokomento(ToolRun& run, const ToolLine& line);
bool SuoritaTiedostokomento(ToolRun& run, const ToolLine& line);
bool SuoritaKysymys(ToolRun& run, const ToolLine& line);

// Whether a family has a command of those words.
bool TunteeMuuttujakomennon(std::span<const std::string> words);
bool TunteeIkkunakomennon(std::span<const std::string> words);
bool TunteePopulaatiokomennon(std::span<const std::string> words);
bool TunteeTiedostokomennon(std::span<const std::string> words);
bool TunteeKysyvanKomennon(std::span<const std::string> words);

}  // namespace tessarin
