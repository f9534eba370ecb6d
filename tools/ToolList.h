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
    /// Lists the tools in `scripts/` beside the program, in the order that the file system gives
    /// them. Without that folder there are none.
    /// They run in `window`.
    ToolList(PaaIkkuna& main, Skripti& window);

    std::vector<std::string> Nimet() const override;
    /// Reads the tool and runs it; questions go to the user.
    void Aja(std::size_t tool) override;

  private:
    PaaIkkuna& main_;
    Skripti& window_;
    std::string folder_;
    std::vector<SkriptiTieto> tools_;
};

}  // namespace tessarin
