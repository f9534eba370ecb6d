#include "core/RegionMuuttujat.h"

namespace tessarin {

bool UusiRegionPaalla = false;
bool RegionAloitettu = false;
int16_t RegionIkkuna = 0;
int16_t KulmienMaara = 0;
std::array<float, kMaxCorners + 1> KulmaX{};
std::array<float, kMaxCorners + 1> KulmaY{};
int16_t MuokattavaRegion = 0;
int16_t MuokattavaKulma = 0;
int16_t SiirrettavaRegion = 0;
int16_t SiirrettavaOtsikko = 0;
int16_t ValikkoAkseli = 0;
int16_t ValittuKanava = 0;
int32_t ViimeKvadranttiX = 0;
int32_t ViimeKvadranttiY = 0;

void PalautaPiirtoele() {
    UusiRegionPaalla = false;
    RegionAloitettu = false;
    KulmienMaara = 0;
}

void PalautaEleet() {
    PalautaPiirtoele();
    RegionIkkuna = 0;
    KulmaX = {};
    KulmaY = {};
    MuokattavaRegion = 0;
    MuokattavaKulma = 0;
    SiirrettavaRegion = 0;
    SiirrettavaOtsikko = 0;
    ValikkoAkseli = 0;
    ValittuKanava = 0;
    ViimeKvadranttiX = 0;
    ViimeKvadranttiY = 0;
}

}  // namespace tessarin
