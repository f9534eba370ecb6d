#include "plots/RegisterPlots.h"

#include <memory>

#include "core/PopulationEvaluation.h"
#include "mainwindow/WindowRegistry.h"
#include "plots/DotPlot.h"
#include "plots/Histogram.h"
#include "plots/MarkerMembership.h"
#include "plots/PolygonMembership.h"
#include "populations/Definitions.h"

namespace tessarin {

void RekisteroiKuvaajat() {
    RekisteroiIkkunaLaji({"DotPlot", "CreateDotPlot", true,
                          [](PaaIkkuna& main) { return std::make_shared<DotPlot>(main); }});
    RekisteroiIkkunaLaji({"Histogram", "CreateHistogram", true,
                          [](PaaIkkuna& main) { return std::make_shared<Histogram>(main); }});
    AsetaArvioija("Polygon", TarkistaMonikulmio);
    AsetaArvioija("Histogram", TarkistaMarkkeri);
    AsetaMaaritelmanArvioija(CheckDefinition);
}

}  // namespace tessarin
