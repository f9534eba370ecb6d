// Commands on a window.
#include <algorithm>
#include <vector>

#include "core/Bitmap.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Projektio.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "tools/ToolCommands.h"
#include "tools/ToolReach.h"
#include "tools/ToolRun.h"
#include "tools/ToolWindow.h"

namespace tessarin {
namespace {

// One command at work.
struct Call {
    ToolRun& run;
    const ToolLine& line;
    int16_t id;
    AnalysisWindow& window;

    const std::string& Text() const { return line.value.Text(); }
    double Number() const { return NumberOf(line.value); }
    /// The place of word n among a window's own things, such as its curves.
    int16_t Slot(std::size_t n) const { return SlotOf(line.Word(n), INT16_MAX); }
    Twips Size() const { return {ToInt32(Rounded(Number()))}; }
};

void Must(bool done, const char* otherwise) {
    if (!done) {
        throw ToolFault{otherwise};
    }
}

void SaveImage(const Call& call) {
    const std::string path = call.run.Polku(call.Text());
    std::string failure = PictureObstacle(path);
    if (failure.empty()) {
        call.window.PiirraLykatty();
        failure = TalletaKuva(call.window.Lomake().Surface().Image(), path);
    }
    if (!failure.empty()) {
        throw ToolFault{failure};
    }
}

bool HasFreeFile() {
    return std::any_of(Tiedostot.begin(), Tiedostot.end(),
                       [](const Tiedosto& file) { return file.Fingerprint == 0; });
}

void LoadFile(const Call& call) {
    if (HasFreeFile()) {
        const std::string path = call.run.Polku(call.Text());
        if (TiedostonLukuToimenPiteet(call.run.Main(), path, call.id, 0)) {
            call.run.KerroTiedosto(call.id);
        }
    }
}

// A step that finds no file ends the loop that it stands in.
void MoveFile(const Call& call) {
    ToolRun& run = call.run;
    PaaIkkuna& main = run.Main();
    if (call.Text() == "next") {
        run.Silmukka().Kaynnissa = SeuraavaTiedosto(main, call.id);
    } else if (call.Text() == "previous") {
        run.Silmukka().Kaynnissa = EdellinenTiedosto(main, call.id);
    } else if (call.Text() == "first") {
        const int16_t file = Ikkunat(call.id).FileIndex;
        if (run.NykyinenKansio.empty()) {
            Must(Tiedostot.Holds(file), "No folder was set, and the window has no file");
            run.AsetaKansio(Tiedostot(file).Folder);
        }
        run.Silmukka().Kaynnissa = EnsimmainenTiedostoHakemisto(main, call.id, run.NykyinenKansio);
    } else {
        return;
    }
    if (run.Silmukka().Kaynnissa) {
        run.KerroTiedosto(call.id);
    }
}

// "true" and "false" choose one of two words; any other value does nothing.
template <class Operation>
void Choose(const Call& call, std::string_view on, std::string_view off, Operation operation) {
    if (call.Text() == "true" || call.Text() == "false") {
        operation(call.Text() == "true" ? on : off);
    }
}

constexpr const char* kNoCurve = "There is no such curve, or it cannot take that value";

void MoveCurve(const Call& call, std::string_view what) {
    Must(Must(call.window.Curves()).SiirraKayraa(what, call.Slot(3), call.Text()), kNoCurve);
}

void MakeCurve(const Call& call, std::string_view what) {
    Must(Must(call.window.Curves()).LuoTaiPoista(what, call.Slot(3), call.Text()), kNoCurve);
}

void SetChannel(const Call& call, std::string_view axis) {
    Must(call.window.Channels()).AsetaKanava(axis, SlotOf(call.Text(), INT16_MAX));
}

struct WindowCommand {
    ToolPattern form;
    void (*run)(const Call& call);
};

void AddPlotCommands(std::vector<WindowCommand>& to) {
    to.insert(to.end(),
              {{ToolPattern("w|window.N.saveimage"), SaveImage},
               {ToolPattern("w|window.N.file.move"), MoveFile},
               {ToolPattern("w|window.N.file.load"), LoadFile},
               {ToolPattern("w|window.N.drawmode"),
                [](const Call& c) { Must(c.window.Channels()).AsetaPiirtoMoodi(c.Text()); }},
               {ToolPattern("w|window.N.axis.x"), [](const Call& c) { SetChannel(c, "x"); }},
               {ToolPattern("w|window.N.axis.y"), [](const Call& c) { SetChannel(c, "y"); }},
               {ToolPattern("w|window.N.size.x"),
                [](const Call& c) { c.window.AsetaKoko("x", c.Size()); }},
               {ToolPattern("w|window.N.size.y"),
                [](const Call& c) { c.window.AsetaKoko("y", c.Size()); }},
               {ToolPattern("w|window.N.position.x"),
                [](const Call& c) { c.window.AsetaPaikka("x", c.Size()); }},
               {ToolPattern("w|window.N.position.y"),
                [](const Call& c) { c.window.AsetaPaikka("y", c.Size()); }},
               {ToolPattern("w|window.N.statistics.visible"),
                [](const Call& c) {
                    StatisticsOwner& owner = Must(c.window.Stats());
                    Choose(c, "open", "close",
                           [&owner](std::string_view w) { owner.AvaaTaiSuljeStatistics(w); });
                }},
               {ToolPattern("w|window.N.statistics.position.x"),
                [](const Call& c) {
                    Must(c.window.StatsTable()).LiikutaStatistiikkaLaatikkoa("x", c.Size().count);
                }},
               {ToolPattern("w|window.N.statistics.position.y"),
                [](const Call& c) {
                    Must(c.window.StatsTable()).LiikutaStatistiikkaLaatikkoa("y", c.Size().count);
                }},
               {ToolPattern("w|window.N.quadrant.visible"),
                [](const Call& c) {
                    QuadrantOwner& owner = Must(c.window.Quadrant());
                    Choose(c, "open", "close",
                           [&owner](std::string_view w) { owner.NaytaTaiPiilotaKvadrantti(w); });
                }},
               {ToolPattern("w|window.N.quadrant.position.x"),
                [](const Call& c) { Must(c.window.Quadrant()).AsetaRegion("x", c.Number()); }},
               {ToolPattern("w|window.N.quadrant.position.y"), [](const Call& c) {
                    Must(c.window.Quadrant()).AsetaRegion("y", kGrid - c.Number());
                }}});
}

void AddOtherCommands(std::vector<WindowCommand>& to) {
    to.insert(
        to.end(),
        {{ToolPattern("w|window.N.rotate.x"),
          [](const Call& c) { Must(c.window.Space()).MuutaRotaatiota("x", c.Number()); }},
         {ToolPattern("w|window.N.rotate.y"),
          [](const Call& c) { Must(c.window.Space()).MuutaRotaatiota("y", c.Number()); }},
         {ToolPattern("w|window.N.distance"),
          [](const Call& c) { Must(c.window.Space()).MuutaEtaisyytta(c.Number()); }},
         {ToolPattern("w|window.N.zero"), [](const Call& c) { Must(c.window.Space()).Nollaa(); }},
         {ToolPattern("w|window.N.bgpicture"),
          [](const Call& c) {
              SpaceView& owner = Must(c.window.Space());
              Choose(c, "paalla", "poissa",
                     [&owner](std::string_view w) { owner.AsetaTaustaKuvanTila(w); });
          }},
         {ToolPattern("w|window.N.overlay.K.histogram"),
          [](const Call& c) {
              const int16_t source = SlotOf(c.Text(), INT16_MAX);
              Must(Must(c.window.Sources()).AsetaHistogram(c.Slot(3), source),
                   "There is no such histogram, or no such place for it");
          }},
         {ToolPattern("w|window.N.curve.C.height"), [](const Call& c) { MoveCurve(c, "korkeus"); }},
         {ToolPattern("w|window.N.curve.C.name"), [](const Call& c) { MoveCurve(c, "nimi"); }},
         {ToolPattern("w|window.N.curve.C.position"),
          [](const Call& c) { MoveCurve(c, "paikka"); }},
         {ToolPattern("w|window.N.curve.C.plateau"),
          [](const Call& c) { MoveCurve(c, "tasanne"); }},
         {ToolPattern("w|window.N.curve.C.deviation.left"),
          [](const Call& c) { MoveCurve(c, "hajontavasen"); }},
         {ToolPattern("w|window.N.curve.C.deviation.right"),
          [](const Call& c) { MoveCurve(c, "hajontaoikea"); }},
         {ToolPattern("w|window.N.curve.C.create"), [](const Call& c) { MakeCurve(c, "luo"); }},
         {ToolPattern("w|window.N.curve.C.delete"),
          [](const Call& c) { MakeCurve(c, "poista"); }}});
}

const std::vector<WindowCommand>& Commands() {
    static const std::vector<WindowCommand> commands = [] {
        std::vector<WindowCommand> all;
        AddPlotCommands(all);
        AddOtherCommands(all);
        return all;
    }();
    return commands;
}

}  // namespace

bool TunteeIkkunakomennon(std::span<const std::string> words) {
    return Tuntee(std::span<const WindowCommand>(Commands()), words);
}

bool SuoritaIkkunakomento(ToolRun& run, const ToolLine& line) {
    if (line.words[0] != "w" && line.words[0] != "window") {
        return false;
    }
    NumberOf(line.Word(1));
    const WindowCommand* command =
        EtsiMuoto(std::span<const WindowCommand>(Commands()), line.words);
    if (command != nullptr) {
        const int16_t id = SlotOf(line.Word(1), MaxWindows);
        const auto window = ToolWindow(id);  // lives until the line is done
        command->run({run, line, id, *window});
    }
    return true;
}

}  // namespace tessarin
