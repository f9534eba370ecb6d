// The gesture variables: one gesture on a region runs at a time in the whole program.
#pragma once

#include <array>
#include <cstdint>

#include "core/Populaatio.h"

namespace tessarin {

extern bool UusiRegionPaalla;  // the user has armed the drawing of a new region
extern bool RegionAloitettu;   // its first corner has been placed
extern int16_t RegionIkkuna;   // id of the window in which corners are being placed
extern int16_t KulmienMaara;   // corners in KulmaX, KulmaY
extern std::array<float, kMaxCorners + 1> KulmaX;  // corners under work, in pixels, from entry 1
extern std::array<float, kMaxCorners + 1> KulmaY;
extern int16_t MuokattavaRegion;    // population whose corner is being dragged, 0 for none
extern int16_t MuokattavaKulma;     // that corner
extern int16_t SiirrettavaRegion;   // population being moved whole, 0 for none
extern int16_t SiirrettavaOtsikko;  // population whose name is being dragged, 0 for none
extern int16_t ValikkoAkseli;       // the channel pop-up is for: 0 none, 1 the x axis, 2 the y axis
extern int16_t ValittuKanava;       // item chosen in the channel pop-up, from 0
extern int32_t ViimeKvadranttiX;    // where the last quadrant drag ended, in grid units; 0 none yet
extern int32_t ViimeKvadranttiY;

/// `PalautaPiirtoele` means put the drawing gesture back: no region is armed or begun.
void PalautaPiirtoele();

/// Puts them all back to the state at program start.
void PalautaEleet();

}  // namespace tessarin
