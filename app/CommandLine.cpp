#include "app/CommandLine.h"

#include <array>
#include <string_view>

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr int32_t kMostMenus = 1000;  // windows, and items of a menu

// One option: what it does to the result, given its value. Those without a value get "".
struct Option {
    std::string_view name;
    std::string_view value;  // what the help calls its value; empty when it takes none
    std::string_view help;
    bool (*take)(CommandLine& line, const std::string& value);
};

bool TakeLimit(std::optional<int32_t>& limit, const std::string& value) {
    limit = ParseWholeNumber(value);
    return limit && *limit > 0;
}

bool TakeMenu(std::vector<MenuChoice>& menu, const std::string& value) {
    const auto pieces = Split(value, ':');
    if (pieces.size() != 2) {
        return false;
    }
    const auto window = ParseWholeNumber(pieces[0]);
    const auto item = ParseWholeNumber(pieces[1]);
    if (!window || !item || *window < 1 || *window > kMostMenus || *item < 1 ||
        *item > kMostMenus) {
        return false;
    }
    menu.push_back({static_cast<int16_t>(*window), *item});
    return true;
}

bool TakeFcsSave(std::vector<FcsSave>& saves, const std::string& value) {
    const std::size_t equals = value.find('=');
    const auto window = ParseWholeNumber(value.substr(0, equals));
    if (equals == std::string::npos || equals + 1 == value.size() || !window || *window < 1 ||
        *window > kMostMenus) {
        return false;
    }
    saves.push_back({static_cast<int16_t>(*window), value.substr(equals + 1)});
    return true;
}

bool TakeAnswer(std::map<std::string, std::string>& answers, const std::string& value) {
    const std::size_t equals = value.find('=');
    if (equals == std::string::npos || equals == 0) {
        return false;
    }
    answers[value.substr(0, equals)] = value.substr(equals + 1);
    return true;
}

bool TakePath(std::string& path, const std::string& value) {
    path = value;
    return !value.empty();
}

constexpr std::array kOptions = {
    Option{"--headless", "", "no window and no display; messages go to standard error",
           [](CommandLine& line, const std::string&) { return line.headless = true; }},
    Option{"--max-events", "N", "load at most N events of each file",
           [](CommandLine& line, const std::string& value) {
               return TakeLimit(line.maxEvents, value);
           }},
    Option{"--fast-draw-limit", "N", "draw files of more than N events thinned",
           [](CommandLine& line, const std::string& value) {
               return TakeLimit(line.fastDrawLimit, value);
           }},
    Option{"--neg-bumper", "", "use the neg value bumper",
           [](CommandLine& line, const std::string&) { return line.negBumper = true; }},
    Option{"--run", "TOOL", "run a tool",
           [](CommandLine& line, const std::string& value) { return TakePath(line.tool, value); }},
    Option{"--answer", "NAME=TEXT", "answer the tool's question for that variable",
           [](CommandLine& line, const std::string& value) {
               return TakeAnswer(line.answers, value);
           }},
    Option{"--pack", "TOOL", "write a tool packed to FILE, and nothing else",
           [](CommandLine& line, const std::string& value) { return TakePath(line.pack, value); }},
    Option{"--save-sheet", "FILE", "save the session as an analysis sheet",
           [](CommandLine& line, const std::string& value) { return TakePath(line.sheet, value); }},
    Option{
        "--save-fcs", "WINDOW=FILE", "save that window's data as an FCS file",
        [](CommandLine& line, const std::string& value) { return TakeFcsSave(line.fcs, value); }},
    Option{
        "--snapshot", "FILE.png", "save a picture of the main window",
        [](CommandLine& line, const std::string& value) { return TakePath(line.snapshot, value); }},
    Option{"--clipboard", "FILE", "save the text on the clipboard",
           [](CommandLine& line, const std::string& value) {
               return TakePath(line.clipboard, value);
           }},
    Option{
        "--printer", "FILE.pdf", "the printer of a headless run",
        [](CommandLine& line, const std::string& value) { return TakePath(line.printer, value); }},
    Option{"--menu", "WINDOW:ITEM", "choose that item of that window's pop-up menu",
           [](CommandLine& line, const std::string& value) { return TakeMenu(line.menu, value); }},
    Option{"--help", "", "show this text",
           [](CommandLine& line, const std::string&) { return line.help = true; }},
    Option{"--version", "", "show the version",
           [](CommandLine& line, const std::string&) { return line.version = true; }},
};

const Option* Find(std::string_view name) {
    for (const Option& option : kOptions) {
        if (option.name == name) {
            return &option;
        }
    }
    return nullptr;
}

// Goes through the words once; `at` stands at the next one.
class Words {
  public:
    explicit Words(std::span<const std::string> words) : words_(words) {}

    CommandLine Take() {
        while (at_ < words_.size() && line_.error.empty()) {
            const std::string& word = words_[at_++];
            if (word == "--") {
                line_.files.insert(line_.files.end(), words_.begin() + static_cast<long>(at_),
                                   words_.end());
                break;
            }
            if (word.starts_with("-") && word != "-") {
                TakeOption(word);
            } else {
                line_.files.push_back(word);
            }
        }
        return line_;
    }

  private:
    void TakeOption(const std::string& word) {
        const std::size_t equals = word.find('=');
        const bool hasValue = equals != std::string::npos;
        const std::string name = word.substr(0, equals);
        const Option* option = Find(name);
        if (option == nullptr || (hasValue && option->value.empty())) {
            line_.error = "unknown option " + word;
            return;
        }
        std::string value = hasValue ? word.substr(equals + 1) : "";
        if (!option->value.empty() && !hasValue) {
            if (at_ == words_.size()) {
                line_.error = name + " needs a value";
                return;
            }
            value = words_[at_++];
        }
        if (!option->take(line_, value)) {
            line_.error = "'" + value + "' is no value for " + name;
        }
    }

    std::span<const std::string> words_;
    std::size_t at_ = 0;
    CommandLine line_;
};

}  // namespace

CommandLine TakeCommandLine(std::span<const std::string> words) {
    return Words(words).Take();
}

std::string HelpText() {
    std::string text =
        "Usage: tessarin [OPTION]... [FILE]...\n"
        "Opens each FILE of flow cytometry data in a dot plot; one ending in .tessarin is an\n"
        "analysis sheet and replaces the session.\n\n";
    for (const Option& option : kOptions) {
        constexpr std::size_t kColumn = 26;
        std::string left = "  " + std::string(option.name) + " " + std::string(option.value);
        left.resize(kColumn, ' ');
        text += left + std::string(option.help) + "\n";
    }
    return text +
           "\nExit status: 0 when all was done, 1 when an error message was shown, 2 for wrong\n"
           "usage or a FILE that isn't there.\n";
}

}  // namespace tessarin
