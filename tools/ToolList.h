// The tools in the folder beside the program, for the Tools menu.
#pragma once

#include <string>
#include <vector>

#include "mainwindow/Companions.h"

namespace tessarin {

class PaaIkkuna;
class Skripti;

/// `SkriptiTieto` means script record.
struct SkriptiTieto {
    std::string Nimi;          ///< in the menu: the file's name up to its first full stop
    std::string TiedostoNimi;  ///< the whole name
};

class ToolList : public ToolMenu {
  public:
    /// Lists the tools in `scripts/` beside the program by their names. Without that folder there
    /// are none. They run in `window`; what is saved there stands in the menu at once.
    ToolList(PaaIkkuna& main, Skripti& window);
    ~ToolList() override;
    ToolList(const ToolList&) = delete;
    ToolList& operator=(const ToolList&) = delete;

    std::vector<std::string> Nimet() const override;
    /// Reads the tool and runs it; questions go to the user.
    void Aja(std::size_t tool) override;

  private:
    /// `Lue` means read: the folder.
    void Lue();

    PaaIkkuna& main_;
    Skripti& window_;
    std::string folder_;
    std::vector<SkriptiTieto> tools_;
};

}  // namespace tessarin
