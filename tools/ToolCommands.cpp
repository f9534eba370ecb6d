#include "tools/ToolCommands.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/PopulationEvaluation.h"
#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "mainwindow/WindowRegistry.h"
#include "populations/Definitions.h"
#include "tools/ToolRun.h"
#include "tools/ToolWindow.h"

namespace tessarin {
namespace {

struct Command {
    ToolPattern form;
    void (*run)(ToolRun& run, const ToolLine& line);
    bool meant = true;  // somebody writes it on purpose
};

std::string WithEnters(const std::string& text) {
    return KorvaaTeksti(text, "[enter]", "\r");
}

void RequireVersion(ToolRun& run, const ToolLine& line) {
    const auto pieces = Split(line.value.Text(), '.');
    for (std::size_t i = 0; i < ProgramVersion.size(); ++i) {
        if (i >= pieces.size()) {
            throw ToolFault{"A version has three numbers"};
        }
        const double wanted = NumberOf(pieces[i]);
        if (wanted != ProgramVersion[i]) {
            if (wanted > ProgramVersion[i]) {
                run.Keskeyta("This tool requires at least version " + line.value.Text() +
                             ". Aborting.");
            }
            return;
        }
    }
}

void UpdateWindow(ToolRun& run, const ToolLine& line) {
    if (line.value.Text() == "all") {
        run.Main().PiirraKaikki();
        return;
    }
    ToolWindow(SlotOf(line.value.Text(), MaxWindows))->Piirra();
}

void UpdatePopulation(ToolRun& /*run*/, const ToolLine& line) {
    if (line.value.Text() == "all") {
        TarkistaPopulaatiot();
        return;
    }
    const int16_t slot = SlotOf(line.value.Text(), kPopulationSlots);
    slot <= MaxPopulations ? TarkistaPopulaatio(slot) : CheckDefinition(slot);
}

void SetFastDrawLimit(ToolRun& /*run*/, const ToolLine& line) {
    const double limit = Rounded(NumberOf(line.value));
    FastDrawLimit = limit >= 1 ? ToInt32(limit) : throw ToolFault{"The limit is at least 1"};
}

void Create(ToolRun& run, const ToolLine& line) {
    const int16_t id = SlotOf(line.value.Text(), MaxWindows);
    if (const auto window = IkkunaPaikassa(id)) {
        window->Lomake().Hide();
        window->UnloadWindow();
    }
    constexpr std::array<std::array<std::string_view, 2>, 3> kKinds = {
        {{"dotplot", "DotPlot"}, {"histogram", "Histogram"}, {"dad", "DAD"}}};
    for (const auto& [word, type] : kKinds) {
        if (line.Word(1) == word && EtsiLaji(type) != nullptr) {
            LuoIkkunaPaikkaan(run.Main(), type, id);
        }
    }
}

void SetReport(ToolRun& run, const ToolLine& line) {
    run.report.Open(run.Polku(line.value.Text()));
}

void WriteReport(ToolRun& run, const ToolLine& line) {
    run.report.Write(KorvaaTeksti(line.value.Text(), "[tab]", "\t") + "\r\n");
}

void CloseReport(ToolRun& run, const ToolLine& /*line*/) {
    run.report.Close();
}

void PrintPage(ToolRun& run, const ToolLine& /*line*/) {
    if (!run.TulostinAsetettu) {
        run.Keskeyta("The printer has not been set! Aborting.");
        return;
    }
    PreviewPage* page = run.Main().Kumppanit().preview;
    const std::string failure =
        page == nullptr ? std::string("There is no page to print.") : page->Tulosta();
    if (!failure.empty()) {
        run.Main().Huomauta(failure);
    }
}

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = {
        {ToolPattern("if.true"),
         [](ToolRun& run, const ToolLine& line) { run.Ehto(line.value.Text() == "true"); }},
        {ToolPattern("if.false"),
         [](ToolRun& run, const ToolLine& line) { run.Ehto(line.value.Text() == "false"); }},
        {ToolPattern("if.X"), [](ToolRun& run, const ToolLine& /*line*/) { run.Ehto(false); },
         false},
        {ToolPattern("version.require"), RequireVersion},
        {ToolPattern("do"),
         [](ToolRun& run, const ToolLine& line) { run.Aloita(Int(NumberOf(line.value))); }},
        {ToolPattern("loop"),
         [](ToolRun& run, const ToolLine& line) { run.Kierros(line.value.Text()); }},
        {ToolPattern("autoupdate"),
         [](ToolRun& run, const ToolLine& line) {
             const std::string& value = line.value.Text();
             run.AutoUpdate = value == "on" || (run.AutoUpdate && value != "off");
         }},
        {ToolPattern("update.window"), UpdateWindow},
        {ToolPattern("update.population"), UpdatePopulation},
        {ToolPattern("folder.set"),
         [](ToolRun& run, const ToolLine& line) { run.AsetaKansio(line.value.Text()); }},
        {ToolPattern("create.X"), Create},
        {ToolPattern("output.set"), SetReport},
        {ToolPattern("output.write"), WriteReport},
        {ToolPattern("output.close"), CloseReport},
        {ToolPattern("fastdraw.limit"), SetFastDrawLimit},
        {ToolPattern("printpreview.print"), PrintPage},
        {ToolPattern("end"), [](ToolRun& run, const ToolLine& /*line*/) { run.Lopeta(); }},
        {ToolPattern("message"),
         [](ToolRun& run, const ToolLine& line) {
             run.User().Message(WithEnters(line.value.Text()));
         }},
        {ToolPattern("showscripter"),
         [](ToolRun& run, const ToolLine& /*line*/) { run.ShowWindow(); }},
    };
    return commands;
}

}  // namespace

bool LoppuuSilmukka(const std::string& condition) {
    const auto holds = [&condition](char sign, auto test) {
        const auto sides = Split(condition, sign);
        return sides.size() > 1 && test(NumberOf(sides[0]), NumberOf(sides[1]));
    };
    const bool equal = holds('=', [](double a, double b) { return a == b; });
    const bool greater = holds('>', [](double a, double b) { return a > b; });
    const bool less = holds('<', [](double a, double b) { return a < b; });
    return equal || greater || less;
}

bool TunteeKomennon(std::span<const std::string> words) {
    const auto fits = [words](const Command& command) {
        return command.meant && command.form.Fits(words) == ToolPattern::Fit::kYes;
    };
    return TunteeMuuttujakomennon(words) || TunteeIkkunakomennon(words) ||
           TunteePopulaatiokomennon(words) || TunteeTiedostokomennon(words) ||
           TunteeKysyvanKomennon(words) || std::ranges::any_of(Commands(), fits);
}

void SuoritaKomento(ToolRun& run, const ToolLine& line) {
    if (SuoritaMuuttujakomento(run, line) || SuoritaIkkunakomento(run, line) ||
        SuoritaPopulaatiokomento(run, line) || SuoritaTiedostokomento(run, line) ||
        SuoritaKysymys(run, line)) {
        return;
    }
    if (const Command* command = EtsiMuoto(std::span<const Command>(Commands()), line.words)) {
        command->run(run, line);
    }
}

}  // namespace tessarin
