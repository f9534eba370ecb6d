// The words of the command line, checked and taken apart.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tessarin {

/// An item of a window's pop-up menu, to be chosen; both numbers count from 1.
struct MenuChoice {
    int16_t window = 0;
    int item = 0;
};

/// A window's data to be written as an FCS file.
struct FcsSave {
    int16_t window = 0;
    std::string path;
};

struct CommandLine {
    bool help = false;
    bool version = false;
    bool headless = false;
    std::optional<int32_t> maxEvents;
    std::optional<int32_t> fastDrawLimit;
    bool negBumper = false;
    std::string tool;                            ///< the tool to run; empty for none
    std::map<std::string, std::string> answers;  ///< to its questions, by variable
    std::string pack;                            ///< a tool to be packed into the one file
    std::string snapshot;            ///< where to put a picture of the main window; empty for none
    std::string sheet;               ///< where to save the session as a sheet; empty for nowhere
    std::vector<FcsSave> fcs;        ///< in order
    std::string clipboard;           ///< where to put the clipboard's text; empty for nowhere
    std::string printer;             ///< the PDF file that a headless run prints to
    std::vector<MenuChoice> menu;    ///< in order
    std::vector<std::string> files;  ///< as they were written

    /// Why the words cannot be used, for the user; empty when they can.
    std::string error;
};

/// `words` are the arguments behind the program's name. An option that takes a value has it in
/// the next word or behind "=". Everything behind "--" is a file.
CommandLine TakeCommandLine(std::span<const std::string> words);

/// The text of --help.
std::string HelpText();

}  // namespace tessarin
