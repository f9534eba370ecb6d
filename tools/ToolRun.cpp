#include "tools/ToolRun.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <new>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "tools/ToolCommands.h"
#include "tools/ToolQueries.h"

namespace tessarin {

bool SkriptiKaynnissa = false;

namespace {

constexpr const char* kFatal = "Fatal error";

// A loop takes this long before anybody wonders how far it is.
constexpr double kRoundsThatCount = 1000;

bool IsFileStep(const ToolLine& line) {
    static const ToolPattern step("w|window.N.file");
    return step.Fits(line.words) == ToolPattern::Fit::kYes;
}

// Variables, conditions, loops and the report neither look at a picture nor change what it shows.
bool LeavesPictures(const ToolLine& line) {
    constexpr std::array<std::string_view, 5> kOthers = {"output", "do", "loop", "if", "endif"};
    const std::string& first = line.words[0];
    return first.find('$') != std::string::npos ||
           std::find(kOthers.begin(), kOthers.end(), first) != kOthers.end();
}

// What boxes carry beside their own buttons while it lives.
class BoxButton {
  public:
    BoxButton(Dialogs& dialogs, ExtraButton button)
        : dialogs_(dialogs), before_(dialogs.SetExtraButton(std::move(button))) {}
    ~BoxButton() { dialogs_.SetExtraButton(std::move(before_)); }
    BoxButton(const BoxButton&) = delete;
    BoxButton& operator=(const BoxButton&) = delete;

  private:
    Dialogs& dialogs_;
    ExtraButton before_;
};

// Puts pictures off while it lives, or not.
class PuttingOff {
  public:
    explicit PuttingOff(bool on) { LykkaaPiirto = on; }
    ~PuttingOff() { LykkaaPiirto = false; }
    PuttingOff(const PuttingOff&) = delete;
    PuttingOff& operator=(const PuttingOff&) = delete;
};

}  // namespace

bool ToolRun::AjaOhjelma(const std::string& text) {
    SkriptiKaynnissa = true;
    main_.TalletaNakyma("Autosave");
    lines_ = LinesOf(text);
    if (text.empty()) {
        lines_.emplace_back("   ");  // what is empty altogether is a line that says nothing
    }
    const auto count = static_cast<int32_t>(lines_.size());
    for (RiviNumero = 0; SkriptiKaynnissa && !Closing && RiviNumero < count; ++RiviNumero) {
        TryLine();
        if (surroundings_.showVariables) {
            surroundings_.showVariables(variables_.Luettelo());
        }
        main_.Services().loop.YieldBetween();
    }
    CloseReport();
    SkriptiKaynnissa = false;
    main_.Huomautukset().Edistyma("");
    PiirraLykatyt();
    return !aborted_;
}

void ToolRun::TryLine() {
    const std::string number = std::to_string(RiviNumero + 1);
    try {
        RunLine();
    } catch (const std::bad_alloc&) {
        Keskeyta("There is not enough memory for line " + number + ". Aborting.", kFatal);
    } catch (const ToolFault& fault) {
        constexpr int kShown = 80;
        const std::string& line = lines_[static_cast<std::size_t>(RiviNumero)];
        Keskeyta("There is an error in the code on line " + number + ". Aborting.\n" +
                     fault.reason + (line.empty() ? "." : ": " + Shortened(line, kShown)),
                 kFatal);
    }
}

// No line is at fault when the last of the report finds no place.
void ToolRun::CloseReport() {
    try {
        report.Close();
    } catch (const ToolFault& fault) {
        surroundings_.showRow = {};
        Keskeyta(fault.reason + ".", kFatal);
    }
}

// A tool that shows one box after the other leaves no time for the Stop button of its window.
void ToolRun::RunLine() {
    const BoxButton stop(main_.Services().dialogs, {"Stop", [] { SkriptiKaynnissa = false; }});
    std::string& line = lines_[static_cast<std::size_t>(RiviNumero)];
    if (!conditions_.OhitaRivi(line)) {
        line = std::string(Trimmed(line));
        const std::string whole = line;
        Execute(whole);
    }
}

void ToolRun::Execute(const std::string& whole) {
    ToolLine line(whole);
    std::string text = line.value.Text();
    variables_.Sijoita(text);
    line.value = ToolValue(std::move(text));
    variables_.SijoitaSanat(line.words);
    if (line.value.Text().starts_with('@')) {
        if (auto result = Kysy(*this, line.value.Text())) {
            line.value = std::move(*result);
        }
    }
    if (surroundings_.unseen) {
        RunUnseen(line);
    } else {
        SuoritaKomento(*this, line);
    }
}

// Most pictures of a run through a folder give way to the next file's before anybody asks for them.
// A step to a file puts its picture off, and every line that could look at a picture, or change
// what it shows, has it drawn first.
void ToolRun::RunUnseen(const ToolLine& line) {
    const bool step = IsFileStep(line);
    if (!step && !LeavesPictures(line)) {
        PiirraLykatyt();
    }
    const PuttingOff pictures(step);
    SuoritaKomento(*this, line);
}

void ToolRun::Keskeyta(const std::string& message, const std::string& title) {
    aborted_ = true;
    SkriptiKaynnissa = false;
    if (!message.empty()) {
        if (surroundings_.showRow) {
            surroundings_.showRow(RiviNumero + 1);
        }
        const BoxButton none(main_.Services().dialogs, {});
        User().Abort(message, title);
    }
}

void ToolRun::ShowWindow() {
    if (surroundings_.showWindow) {
        surroundings_.showWindow();
    }
}

// A run that nobody watches saves itself the listing of the folder.
void ToolRun::KerroTiedosto(int16_t window) {
    if (surroundings_.unseen) {
        return;
    }
    const KansioPaikka place = AnnaKansioPaikka(window);
    if (place.number > 0) {
        file_ = "file " + std::to_string(place.number) + " of " + std::to_string(place.files) +
                ", " + Tiedostot(Ikkunat(window).FileIndex).FileName;
        Edisty();
    }
}

void ToolRun::Edisty(const SkriptiSilmukka* loop) {
    std::string where = file_;
    if (loop != nullptr) {
        where += where.empty() ? "" : ", ";
        where +=
            "round " + NumberText(loop->Laskuri) + " of at most " + NumberText(loop->Kierroksia);
    }
    main_.Huomautukset().Edistyma(where.empty() ? "" : "Tool running: " + where);
}

SkriptiSilmukka& ToolRun::Silmukka() {
    if (SilmukkaSyvyys < 0) {
        throw ToolFault{"No loop is open"};
    }
    return Silmukat[static_cast<std::size_t>(SilmukkaSyvyys)];
}

void ToolRun::Aloita(double rounds) {
    if (rounds == 0) {
        Keskeyta("You must give the max loop times. Aborting.");
        return;
    }
    if (SilmukkaSyvyys + 1 >= static_cast<int32_t>(Silmukat.size())) {
        throw ToolFault{"Loops stand at most 100 deep in each other"};
    }
    ++SilmukkaSyvyys;
    Silmukka() = {rounds, 1, RiviNumero, true};
}

void ToolRun::Kierros(const std::string& condition) {
    SkriptiSilmukka& loop = Silmukka();
    if (loop.Kaynnissa && loop.Laskuri >= loop.Kierroksia) {
        loop.Kaynnissa = false;
    }
    if (!condition.empty() && loop.Kaynnissa) {
        loop.Kaynnissa = !LoppuuSilmukka(condition);
    }
    const bool counts = loop.Laskuri >= kRoundsThatCount;
    if (loop.Kaynnissa) {
        ++loop.Laskuri;
        RiviNumero = loop.AlkuRivi;
        if (std::fmod(loop.Laskuri, kRoundsThatCount) == 0) {
            Edisty(&loop);
        }
    } else {
        --SilmukkaSyvyys;
        if (counts) {
            Edisty();
        }
    }
}

std::string ToolRun::Polku(std::string_view name) const {
    return NykyinenKansio + KorvaaTeksti(name, "\\", "/");
}

void ToolRun::AsetaKansio(std::string_view folder) {
    NykyinenKansio = KorvaaTeksti(folder, "\\", "/");
    if (!NykyinenKansio.ends_with('/')) {
        NykyinenKansio += '/';
    }
}

}  // namespace tessarin
