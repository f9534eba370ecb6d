#include "populations/PopulationPanel.h"

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {

void PopulationPanel::Rakenna() {
    form_.BuildPanel(MaxPopulations, MaxDefinitions);
    form_.SetPanelButtonEnabled(PanelButton::kLuoUusiRegion, true);
    form_.SetPanelButtonEnabled(PanelButton::kLuoUusiMaaritelma, true);
    form_.SetPanelButtonEnabled(PanelButton::kPoistaMaaritelma, true);
    Valitse(1);
    Valitse(MaxPopulations + 1);
    form_.SelectPanelRow(selectedPopulation_);
    form_.SelectPanelRow(selectedDefinition_);
}

void PopulationPanel::UpdateRow(int slot) {
    Populaatio& row = Populaatiot(slot);
    if (!row.Defined) {
        row.Name.clear();
        if (slot <= MaxPopulations) {
            row.Transparent = false;
        }
    }
    form_.SetPanelRow(slot, {row.Defined ? row.Name : "Not defined",
                             row.Defined && row.Transparent ? "T" : "C", row.Color()});
}

void PopulationPanel::PaivitaRegionLista() {
    const BusyPointer busy;
    naytaValikonPopulaatiot_.Clear();
    for (int slot = 1; slot <= kPopulationSlots; ++slot) {
        UpdateRow(slot);
        if (Populaatiot(slot).Defined) {
            naytaValikonPopulaatiot_.Mitoita(naytaValikonPopulaatiot_.size() + 1);
            naytaValikonPopulaatiot_(naytaValikonPopulaatiot_.size()) = static_cast<int16_t>(slot);
        }
    }
    PaivitaNapit();
}

void PopulationPanel::PaivitaNapit() {
    const bool defined = Populaatiot(selectedPopulation_).Defined;
    form_.SetPanelButtonEnabled(PanelButton::kPoistaRegion, defined);
    form_.SetPanelButtonEnabled(PanelButton::kMuutaRegioninNimi, defined);
    form_.SetPanelButtonDown(PanelButton::kLuoUusiRegion, UusiRegionPaalla);
}

void PopulationPanel::Valitse(int slot) {
    (slot <= MaxPopulations ? selectedPopulation_ : selectedDefinition_) =
        static_cast<int16_t>(slot);
    PaivitaNapit();
}

std::vector<std::string> PopulationPanel::ShowPopulation() const {
    std::vector<std::string> captions = {"All events"};
    for (const int16_t slot : naytaValikonPopulaatiot_) {
        captions.push_back(Populaatiot(slot).Name);
    }
    return captions;
}

int16_t PopulationPanel::NaytaValikonPopulaatio(int item) const {
    return naytaValikonPopulaatiot_.Holds(item) ? naytaValikonPopulaatiot_(item) : int16_t{0};
}

}  // namespace tessarin
