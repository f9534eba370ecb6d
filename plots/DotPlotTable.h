// Lays out the statistics of a dot plot as a table.
#pragma once

#include "platform/GridForm.h"
#include "plots/Statistics.h"
#include "plots/Tilastot.h"

namespace tessarin {

/// What stands in the table besides the numbers.
struct DotPlotTableLook {
    int16_t KanavaX = 1;
    int16_t KanavaY = 2;
    bool FastDraw = false;
    bool kvadrantit = false;  ///< with rows for the four quadrants
    bool kopio = false;       ///< a header row has its value in one cell only
};

/// The visible columns and header rows of the statistics window, a row for the shown events, one
/// for each population that has one, and the quadrants.
GridTable DotPlotTaulukko(const Statistics& window, const Tiedosto& file, const Tilastot& tilastot,
                          const DotPlotTableLook& look);

}  // namespace tessarin
