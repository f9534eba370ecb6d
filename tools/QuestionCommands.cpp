// Questions to whoever runs the tool.
#include <vector>

#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"
#include "tools/ToolCommands.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

struct Question {
    ToolPattern form;
    void (*ask)(ToolRun& run, const std::string& name, const std::string& text);
};

void AskInput(ToolRun& run, const std::string& name, const std::string& text) {
    const std::string answer = run.User().Input(name, KorvaaTeksti(text, "[enter]", "\r"));
    if (!answer.empty()) {
        run.Muuttujat().Lisaa(name).Arvo = answer;
    } else if (SkriptiKaynnissa) {  // not stopped in the box
        run.Keskeyta("You must give the value for each question. Aborting.");
    }
}

// The folder of the answer becomes the current one; the variable gets the name.
void AskFile(ToolRun& run, const std::string& name, FileQuestionKind kind,
             const std::string& text) {
    const PathParts path = SplitPath(run.User().File(name, kind, text));
    if (path.folder.empty() && path.name.empty()) {
        run.Keskeyta(kind == FileQuestionKind::kFolder
                         ? "You must give the valid folder. Aborting."
                         : "You must give the valid file name. Aborting.");
        return;
    }
    run.NykyinenKansio = KorvaaTeksti(path.folder, "\\", "/");
    run.Muuttujat().Lisaa(name).Arvo =
        kind == FileQuestionKind::kFolder ? run.NykyinenKansio : path.name;
}

void AskOpen(ToolRun& run, const std::string& name, const std::string& text) {
    AskFile(run, name, FileQuestionKind::kOpen, text);
}

void AskSave(ToolRun& run, const std::string& name, const std::string& text) {
    AskFile(run, name, FileQuestionKind::kSave, text);
}

void AskFolder(ToolRun& run, const std::string& name, const std::string& text) {
    AskFile(run, name, FileQuestionKind::kFolder, text);
}

void AskContinue(ToolRun& run, const std::string& name, const std::string& text) {
    if (!run.User().Continue(name, text)) {
        run.Keskeyta("");
    }
}

void AskPrinter(ToolRun& run, const std::string& /*name*/, const std::string& /*text*/) {
    run.TulostinAsetettu = run.Main().Services().printer.Choose();
    if (!run.TulostinAsetettu) {
        run.Keskeyta("Print aborted!");
    }
}

const std::vector<Question>& Questions() {
    static const std::vector<Question> questions = {
        {ToolPattern("question.printer.set"), AskPrinter},
        {ToolPattern("question.X.input"), AskInput},
        {ToolPattern("question.X.file.open"), AskOpen},
        {ToolPattern("question.X.file.save"), AskSave},
        {ToolPattern("question.X.folder.open"), AskFolder},
        {ToolPattern("question.X.continue"), AskContinue},
    };
    return questions;
}

}  // namespace

bool TunteeKysyvanKomennon(std::span<const std::string> words) {
    return Tuntee(std::span<const Question>(Questions()), words);
}

bool SuoritaKysymys(ToolRun& run, const ToolLine& line) {
    if (line.words[0] != "question") {
        return false;
    }
    if (const Question* question = EtsiMuoto(std::span<const Question>(Questions()), line.words)) {
        question->ask(run, line.Word(1), line.value.Text());
    }
    return true;
}

}  // namespace tessarin
