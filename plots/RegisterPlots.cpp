#include "plots/RegisterPlots.h"

#include <memory>

#include "mainwindow/WindowRegistry.h"
#include "plots/DotPlot.h"

namespace tessarin {

void RekisteroiKuvaajat() {
    RekisteroiIkkunaLaji({"DotPlot", "CreateDotPlot", true, [](PaaIkkuna& main) {
                              return std::make_shared<DotPlot>(main);
                          }});
}

}  // namespace tessarin
