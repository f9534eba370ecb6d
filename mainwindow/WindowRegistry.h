// Which kinds of analysis windows there are, and how each is made.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "mainwindow/AnalysisWindow.h"

namespace tessarin {

class PaaIkkuna;

struct WindowKind {
    std::string type;       ///< as tables and sheets name it, such as "DotPlot"
    std::string command;    ///< the menu command that makes one; empty when none does
    bool autosaves = true;  ///< whether making one by its command ends with an autosave
    /// Makes the window and its form, not shown yet.
    std::function<std::shared_ptr<AnalysisWindow>(PaaIkkuna&)> make;
};

/// Adds a kind, or replaces the one of that type. Called once for each kind at program start.
void RekisteroiIkkunaLaji(WindowKind kind);
/// Takes a kind out again.
void PoistaIkkunaLaji(std::string_view type);

/// By type or by command; nullptr when there is none.
const WindowKind* EtsiLaji(std::string_view type);
const WindowKind* EtsiLajiKomennolla(std::string_view command);

}  // namespace tessarin
