#include "plots/HistogramFollowers.h"

#include "core/Muuttujat.h"
#include "mainwindow/WindowList.h"

namespace tessarin {

void PiirraHistogrammienSeuraajat() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        const auto window = IkkunaPaikassa(id);
        if (window != nullptr && window->Sources() != nullptr) {
            window->Piirra();
        }
    }
}

}  // namespace tessarin
