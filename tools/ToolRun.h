// One run of a tool: its lines, conditions, loops and variables.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/Expression.h"
#include "tools/ToolConditions.h"
#include "tools/ToolLine.h"
#include "tools/ToolReport.h"
#include "tools/ToolUser.h"
#include "tools/ToolVariables.h"

namespace tessarin {

class PaaIkkuna;

/// `SkriptiKaynnissa` means a script runs: True from the start of a run to its end. Whoever sets
/// it False stops the run at the next line.
extern bool SkriptiKaynnissa;

/// `SkriptiSilmukka` means script loop.
struct SkriptiSilmukka {
    double Kierroksia = 0;   ///< the most rounds
    double Laskuri = 0;      ///< the round now running, from 1
    int32_t AlkuRivi = 0;    ///< index of the `do` line
    bool Kaynnissa = false;  ///< the loop is to go on
};

/// What a run needs besides the session.
struct ToolSurroundings {
    ToolUser& user;
    /// Shows the variables after a line; empty when nobody wants to see them.
    std::function<void(const std::string& list)> showVariables{};
    /// Shows the tool window in full.
    std::function<void()> showWindow{};
    /// Shows the line, counted from 1, that ends the run; empty when nobody sees its text.
    std::function<void(int row)> showRow{};
    /// Nobody sees a picture but whoever asks for it: those that the tool soon replaces are left
    /// out.
    bool unseen = false;
};

class ToolRun {
  public:
    ToolRun(PaaIkkuna& main, ToolSurroundings surroundings)
        : main_(main), surroundings_(std::move(surroundings)) {}

    /// `AjaOhjelma` means run the program: runs the lines of the text, which end in CR LF or LF;
    /// what stands behind the last line end is no line. Autosaves first, and lets events run after
    /// each line. False when the run was aborted.
    bool AjaOhjelma(const std::string& text);

    // What commands use.
    PaaIkkuna& Main() { return main_; }
    ToolUser& User() { return surroundings_.user; }
    ToolVariables& Muuttujat() { return variables_; }
    /// Aborts the run after this line; tells the user why, unless the user wanted it so.
    void Keskeyta(const std::string& message, const std::string& title = "");
    /// Ends the run after this line.
    void Lopeta() { SkriptiKaynnissa = false; }
    void ShowWindow();
    /// The window has taken another file: the status bar tells how far the run is in its folder.
    void KerroTiedosto(int16_t window);

    /// The loop that a file step ends: the innermost open one, or the spare one outside all.
    SkriptiSilmukka& Silmukka();
    void Aloita(double rounds);
    void Kierros(const std::string& condition);
    /// A condition: what follows is skipped up to its `endif` unless it holds.
    void Ehto(bool holds) { conditions_.Aseta(holds); }

    /// A path of the tool's: separators of other systems are understood.
    std::string Polku(std::string_view name) const;
    void AsetaKansio(std::string_view folder);

    std::string NykyinenKansio;  ///< current folder, ending in a separator once it is set
    bool AutoUpdate = true;      ///< whether population commands redraw at once
    bool TulostinAsetettu = false;
    ToolReport report;
    ExpressionEngine laskin;  ///< `laskin` means calculator

  private:
    void RunLine();
    /// Runs the line where the run is; what goes wrong in it ends the run with a word to the user.
    void TryLine();
    void CloseReport();
    void Execute(const std::string& whole);
    void RunUnseen(const ToolLine& line);
    /// `Edisty` means advance: says in the status bar where the run is; `loop` when its rounds are
    /// so many that they count.
    void Edisty(const SkriptiSilmukka* loop = nullptr);

    PaaIkkuna& main_;
    ToolSurroundings surroundings_;
    std::vector<std::string> lines_;
    int32_t RiviNumero = 0;
    Ehdot conditions_;
    int32_t SilmukkaSyvyys = 0;  // loop depth
    std::array<SkriptiSilmukka, 101> Silmukat;
    ToolVariables variables_;
    std::string file_;  // where the run is in a folder, for the status bar
    bool aborted_ = false;
};

}  // namespace tessarin
