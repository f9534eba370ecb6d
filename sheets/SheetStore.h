// Saving the session, loading it, and keeping it safe from a crash.
#pragma once

#include <string>
#include <string_view>

#include "mainwindow/Companions.h"
#include "sheets/SheetWriter.h"

namespace tessarin {

class PaaIkkuna;

class SheetStore : public ViewStore {
  public:
    /// Without `autosaves`, as in a run that nobody watches, there is no autosave file and no
    /// offer to recover one.
    SheetStore(PaaIkkuna& main, bool autosaves);

    void TalletaNakyma(std::string_view mode) override;
    bool LataaNakyma(const std::string& path) override;
    void TarjoaPalautusta() override;
    void PoistaAutosave() override;

  private:
    void Autosave();
    void AskAndSave(NakymaLaji kind);
    void Report(const Tallennustulos& saved, const std::string& path);

    PaaIkkuna& main_;
    bool AutosaveKaytossa;      // False stops all autosaving for the rest of the process
    std::string autosavePath_;  // empty until one is taken
    std::string autosaved_;     // what stands in it
    bool failing_ = false;      // the last autosave failed, and the user knows
};

}  // namespace tessarin
