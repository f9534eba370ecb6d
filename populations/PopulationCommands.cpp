#include "populations/PopulationCommands.h"

#include <algorithm>
#include <string>

#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "populations/Definitions.h"

namespace tessarin {

void PopulationCommands::Paina(PanelButton button) {
    switch (button) {
        case PanelButton::kLuoUusiRegion:
            return LuoUusiRegion();
        case PanelButton::kPoistaRegion:
            return PoistaRegion();
        case PanelButton::kMuutaRegioninNimi:
            return MuutaRegioninNimi();
        case PanelButton::kLuoUusiMaaritelma:
            return LuoUusiMaaritelma();
        case PanelButton::kPoistaMaaritelma:
            return PoistaMaaritelma();
    }
}

void PopulationCommands::ShowChange() {
    panel_.PaivitaRegionLista();
    view_.PiirraKaikki();
}

void PopulationCommands::CheckDefinitions() {
    std::string lost;
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        const bool before = Populaatiot(slot).Defined;
        CheckDefinition(slot);
        if (before && !Populaatiot(slot).Defined) {
            lost += (lost.empty() ? "" : "; ") + Populaatiot(slot).Name;
        }
    }
    if (!lost.empty()) {
        view_.Huomauta("No longer defined: " + lost);
    }
}

void PopulationCommands::LuoUusiRegion() {
    if (UusiRegionPaalla) {
        UusiRegionPaalla = false;  // a second press cancels
        if (RegionAloitettu) {
            PalautaPiirtoele();
            view_.PiirraKaikki();
        }
        view_.PiirtoMuuttui();
        return;
    }
    UusiRegionPaalla =
        !Populaatiot(panel_.ValittuPopulaatio()).Defined ||
        dialogs_.Ask("Population has been already defined. Do you want to re-define it?",
                     "Population already defined", QuestionButtons::kOkCancel, SafeAnswer::kNo);
    view_.PiirtoMuuttui();
}

void PopulationCommands::MuutaRegioninNimi() {
    Populaatio& population = Populaatiot(panel_.ValittuPopulaatio());
    if (!population.Defined) {
        return;
    }
    const std::string name =
        dialogs_.Input("Give a new name for population", "Rename population", population.Name);
    if (name.empty()) {
        return;
    }
    NimeaMaaritelmissa(population.Name, name);
    population.Name = name;
    CheckDefinitions();
    ShowChange();
}

void PopulationCommands::PoistaRegion() {
    const int16_t slot = panel_.ValittuPopulaatio();
    if (!Populaatiot(slot).Defined ||
        !dialogs_.Ask("Do you really want to delete the selected population?", "Delete population",
                      QuestionButtons::kOkCancel, SafeAnswer::kNo)) {
        return;
    }
    Populaatiot(slot).Defined = false;
    Populaatiot(slot).Name.clear();
    CheckDefinitions();
    panel_.PaivitaRegionLista();
    for (Tiedosto& file : Tiedostot) {
        if (file.Valid) {
            file.Membership.NollaaSarake(slot);
        }
    }
    view_.PiirraKaikki();
}

void PopulationCommands::LuoUusiMaaritelma() {
    const int16_t slot = panel_.ValittuMaaritelma();
    Populaatio& definition = Populaatiot(slot);
    if (definition.Defined &&
        !dialogs_.Ask("The definition has been already defined. To you want to re-define it?",
                      "Definition already defined", QuestionButtons::kOkCancel, SafeAnswer::kNo)) {
        return;
    }
    std::string expression = definition.Defined ? definition.Name : "";
    std::string failure;
    do {
        // What was refused stands in the box again, to be mended.
        expression = dialogs_.Input(
            "Create a new definition (case insensitive)\n"
            "Examples:\n"
            "  Poly-1 and Poly-2\n"
            "  Poly-1 and (Histo-2 or Poly-3)\n"
            "  Poly-1 and Histo-2 and not Poly-3",
            "Create definition", expression);
        if (expression.empty()) {
            return;
        }
        failure = TarkistaMaaritelma(slot, expression);
        if (!failure.empty()) {
            dialogs_.Message(failure, "Create definition");
        }
    } while (!failure.empty());
    definition.Name = expression;
    definition.Defined = true;
    ShowChange();
}

void PopulationCommands::PoistaMaaritelma() {
    Populaatio& definition = Populaatiot(panel_.ValittuMaaritelma());
    if (definition.Defined &&
        dialogs_.Ask("Do you really want to delete the definition?", "Delete definition",
                     QuestionButtons::kOkCancel, SafeAnswer::kNo)) {
        definition.Defined = false;
        definition.Name.clear();
        ShowChange();
    }
}

void PopulationCommands::VaihdaVari(int slot, bool twice) {
    Populaatio& row = Populaatiot(slot);
    const bool isPopulation = slot <= MaxPopulations;
    if (isPopulation != twice) {
        return;
    }
    if (const auto color = dialogs_.ChooseColor(row.Color())) {
        row.Red = color->red;
        row.Green = color->green;
        row.Blue = color->blue;
        ShowChange();
    }
}

void PopulationCommands::VaihdaLapinakyvyys(int slot) {
    Populaatio& row = Populaatiot(slot);
    row.Transparent = !row.Transparent;
    ShowChange();
}

}  // namespace tessarin
