// Keeps the side panel and the "Show populations" menu in line with the table of populations.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Taulu.h"
#include "platform/MainForm.h"

namespace tessarin {

class PopulationPanel {
  public:
    explicit PopulationPanel(MainForm& form) : form_(form) {}

    /// Builds one row for each slot and turns on the first of each frame.
    void Rakenna();

    /// `PaivitaRegionLista` means update the region list: brings rows and menu in line.
    void PaivitaRegionLista();

    /// `PaivitaNapit` means update the buttons: a free slot can be neither deleted nor renamed, and
    /// "Create" looks pressed while a region is armed.
    void PaivitaNapit();

    /// The option button of that slot was turned on.
    void Valitse(int slot);
    /// Slot of the population option that is on.
    int16_t ValittuPopulaatio() const { return selectedPopulation_; }
    /// Slot of the definition option that is on.
    int16_t ValittuMaaritelma() const { return selectedDefinition_; }

    /// Captions of the menu "Show populations"; item 0 is "All events".
    std::vector<std::string> ShowPopulation() const;
    /// The population slot that an item of that menu stands for; 0 for item 0 and unknown ones.
    int16_t NaytaValikonPopulaatio(int item) const;

  private:
    void UpdateRow(int slot);

    MainForm& form_;
    int16_t selectedPopulation_ = 1;
    int16_t selectedDefinition_ = MaxPopulations + 1;
    Taulu<int16_t> naytaValikonPopulaatiot_;  // the slot of each menu item behind item 0
};

}  // namespace tessarin
