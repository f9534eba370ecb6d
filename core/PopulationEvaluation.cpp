#include "core/PopulationEvaluation.h"

#include <map>
#include <utility>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"

namespace tessarin {
namespace {

std::map<std::string, PopulationEvaluator>& Evaluators() {
    static std::map<std::string, PopulationEvaluator> evaluators;
    return evaluators;
}

PopulationEvaluator& DefinitionEvaluator() {
    static PopulationEvaluator evaluator;
    return evaluator;
}

}  // namespace

void AsetaArvioija(const std::string& type, PopulationEvaluator evaluator) {
    Evaluators()[type] = std::move(evaluator);
}

void AsetaMaaritelmanArvioija(PopulationEvaluator evaluator) {
    DefinitionEvaluator() = std::move(evaluator);
}

void PoistaArvioijat() {
    Evaluators().clear();
    DefinitionEvaluator() = nullptr;
}

void TarkistaPopulaatio(int16_t slot) {
    const auto found = Evaluators().find(Populaatiot(slot).Type);
    if (found != Evaluators().end()) {
        found->second(slot);
    }
}

void TarkistaPopulaatiot() {
    const BusyPointer busy;
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (Populaatiot(slot).Defined) {
            TarkistaPopulaatio(slot);
        }
    }
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        if (Populaatiot(slot).Defined && DefinitionEvaluator()) {
            DefinitionEvaluator()(slot);
        }
    }
}

}  // namespace tessarin
