// Commands on populations and files, which stand in the tables of the session.
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/PopulationEvaluation.h"
#include "core/Projektio.h"
#include "mainwindow/PaaIkkuna.h"
#include "tools/ToolCommands.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

struct PopulationCall {
    ToolRun& run;
    const ToolLine& line;
    int16_t slot;
    Populaatio& row;
};

struct PopulationCommand {
    ToolPattern form;
    void (*run)(const PopulationCall& call);
};

void SetColor(const PopulationCall& call, uint8_t& part) {
    constexpr double kMost = 255;
    const double value = Rounded(NumberOf(call.line.value));
    if (value < 0 || value > kMost) {
        throw ToolFault{NumberText(value) + " is not from 0 to 255"};
    }
    part = static_cast<uint8_t>(value);
}

void Redraw(ToolRun& run) {
    if (run.AutoUpdate) {
        run.Main().PiirraKaikki();
    }
}

void Reevaluate(const PopulationCall& call) {
    if (call.run.AutoUpdate) {
        TarkistaPopulaatio(call.slot);
        call.run.Main().PiirraKaikki();
    }
}

// Sets a place of a population of that type; a value that is not on the grid does nothing.
bool Place(const PopulationCall& call, std::string_view type, float& place, bool fromTop) {
    const double value = NumberOf(call.line.value);
    if (call.row.Type != type || value < 0 || value > kGrid) {
        return false;
    }
    place = static_cast<float>(fromTop ? kGrid - value : value);
    return true;
}

void PlaceLeft(const PopulationCall& call) {
    if (Place(call, "Histogram", call.row.X[1], false)) {
        Reevaluate(call);
    }
}

void PlaceRight(const PopulationCall& call) {
    if (call.run.AutoUpdate && Place(call, "Histogram", call.row.X[2], false)) {
        call.run.Main().PiirraKaikki();
    }
}

void PlaceCorner(const PopulationCall& call, bool y) {
    constexpr std::size_t kCornerWord = 3;
    const auto corner = static_cast<std::size_t>(SlotOf(call.line.Word(kCornerWord), kMaxCorners));
    if (Place(call, "Polygon", y ? call.row.Y[corner] : call.row.X[corner], y)) {
        Reevaluate(call);
    }
}

const std::vector<PopulationCommand>& ColorCommands() {
    static const std::vector<PopulationCommand> commands = {
        {ToolPattern("p|population.N.color.red"),
         [](const PopulationCall& c) { SetColor(c, c.row.Red); }},
        {ToolPattern("p|population.N.color.green"),
         [](const PopulationCall& c) { SetColor(c, c.row.Green); }},
        {ToolPattern("p|population.N.color.blue"),
         [](const PopulationCall& c) { SetColor(c, c.row.Blue); }},
    };
    return commands;
}

const std::vector<PopulationCommand>& PlaceCommands() {
    static const std::vector<PopulationCommand> commands = {
        {ToolPattern("p|population.N.position.left"), PlaceLeft},
        {ToolPattern("p|population.N.position.right"), PlaceRight},
        {ToolPattern("p|population.N.position.K.x"),
         [](const PopulationCall& c) { PlaceCorner(c, false); }},
        {ToolPattern("p|population.N.position.K.y"),
         [](const PopulationCall& c) { PlaceCorner(c, true); }},
    };
    return commands;
}

void RunOne(const std::vector<PopulationCommand>& commands, const PopulationCall& call) {
    const PopulationCommand* command =
        EtsiMuoto(std::span<const PopulationCommand>(commands), call.line.words);
    if (command != nullptr) {
        command->run(call);
    }
}

struct FileCall {
    ToolRun& run;
    const ToolLine& line;
    Tiedosto& file;

    int16_t Channel(std::size_t n) const { return SlotOf(line.Word(n), file.ChannelCount); }
    int32_t Event(std::size_t n) const { return EventOf(line.Word(n), file.EventCount); }
};

struct FileCommand {
    ToolPattern form;
    void (*run)(const FileCall& call);
};

void SetLog(const FileCall& call) {
    constexpr std::size_t kChannelWord = 3;
    bool& isLog = call.file.Channels(call.Channel(kChannelWord)).IsLog;
    const std::string& value = call.line.value.Text();
    isLog = value == "true" || (isLog && value != "false");
    call.run.Main().PiirraKaikki();
}

void SetCell(const FileCall& call) {
    constexpr std::size_t kEventWord = 3;
    const int32_t event = call.Event(kEventWord);
    const int16_t channel = call.Channel(kEventWord + 1);
    call.file.Data.Aseta(event, channel, static_cast<float>(NumberOf(call.line.value)));
}

const std::vector<FileCommand>& FileCommands() {
    static const std::vector<FileCommand> commands = {
        {ToolPattern("f|file.N.parameter.K.log"), SetLog},
        {ToolPattern("f|file.N.cell.I.J.value"), SetCell},
    };
    return commands;
}

}  // namespace

bool TunteePopulaatiokomennon(std::span<const std::string> words) {
    return Tuntee(std::span<const PopulationCommand>(ColorCommands()), words) ||
           Tuntee(std::span<const PopulationCommand>(PlaceCommands()), words);
}

bool TunteeTiedostokomennon(std::span<const std::string> words) {
    return Tuntee(std::span<const FileCommand>(FileCommands()), words);
}

bool SuoritaPopulaatiokomento(ToolRun& run, const ToolLine& line) {
    if (line.words[0] != "p" && line.words[0] != "population") {
        return false;
    }
    const int16_t slot = SlotOf(line.Word(1), kPopulationSlots);
    const PopulationCall call{run, line, slot, Populaatiot(slot)};
    RunOne(ColorCommands(), call);
    run.Main().Paneeli().PaivitaRegionLista();
    Redraw(run);
    if (slot <= MaxPopulations) {
        RunOne(PlaceCommands(), call);
    }
    return true;
}

bool SuoritaTiedostokomento(ToolRun& run, const ToolLine& line) {
    if (line.words[0] != "f" && line.words[0] != "file") {
        return false;
    }
    const FileCommand* command =
        EtsiMuoto(std::span<const FileCommand>(FileCommands()), line.words);
    if (command != nullptr) {
        Tiedosto& file = Tiedostot(SlotOf(line.Word(1), MaxFiles));
        if (!file.Valid) {
            throw ToolFault{"There is no file " + line.Word(1)};
        }
        command->run({run, line, file});
    }
    return true;
}

}  // namespace tessarin
