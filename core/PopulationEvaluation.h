// Re-evaluation of populations and definitions, without knowing the windows that do it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tessarin {

/// Computes `Membership` of one population slot for all files.
using PopulationEvaluator = std::function<void(int16_t slot)>;

/// Names who evaluates populations of a `Type`. A window kind calls it once at program start.
void AsetaArvioija(const std::string& type, PopulationEvaluator evaluator);

/// Names who re-evaluates definitions; called once at program start.
void AsetaMaaritelmanArvioija(PopulationEvaluator evaluator);

/// Forgets all evaluators.
void PoistaArvioijat();

/// `TarkistaPopulaatio` means check a population: re-evaluates one slot through the evaluator of
/// its `Type`; a type that none is named for keeps its `Membership`.
/// REQUIRES: slot is 1..MaxPopulations.
void TarkistaPopulaatio(int16_t slot);

/// Re-evaluates every defined population, then every definition, which read the former.
void TarkistaPopulaatiot();

}  // namespace tessarin
