#include "windows/RegionView.h"

#include "core/RegionMuuttujat.h"

namespace tessarin {

bool OnkoNakyva(const RegionView& view, int16_t slot) {
    const Populaatio& region = Populaatiot(slot);
    return region.Defined && region.Type == view.type &&
           (view.KanavaX == 0 || region.AxisX == view.KanavaX) &&
           (view.KanavaY == 0 || region.AxisY == view.KanavaY) &&
           (!view.VainTaallaLuodut || region.Created == view.window);
}

bool OnkoKadessa(int16_t slot) {
    return slot == MuokattavaRegion || slot == SiirrettavaRegion;
}

}  // namespace tessarin
