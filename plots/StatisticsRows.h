// The loop behind every table of statistics: the shown events, and the members of each population.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/EventValues.h"
#include "core/Muuttujat.h"
#include "plots/UsedEvents.h"

namespace tessarin {

/// The population and definition slots, rising, for which `hasRow(slot)` holds.
template <class HasRow>
std::vector<int16_t> TilastoRivit(HasRow hasRow) {
    std::vector<int16_t> slots;
    for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
        if (hasRow(slot)) {
            slots.push_back(slot);
        }
    }
    return slots;
}

/// Goes through the events of `used`, a block at a time: `take(events)` is told each block, then
/// `add(0, count, masks)` with a mask of ones for each of its events, and `add(slot, count, masks)`
/// with those of the `count` members of a slot, unless there are none.
template <class Take, class Add>
void KayRivit(const Tiedosto& file, KaytetytTapahtumat used, const std::vector<int16_t>& slots,
              Take take, Add add) {
    std::array<uint64_t, KaytetytTapahtumat::kBlock> all;
    std::array<uint64_t, KaytetytTapahtumat::kBlock> masks;
    all.fill(~uint64_t{0});
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        take(events);
        add(int16_t{0}, static_cast<int32_t>(events.size()), all);
        for (const int16_t slot : slots) {
            const int32_t members = PoimiMaskit(file.Membership.Sarake(slot), events, masks);
            if (members > 0) {
                add(slot, members, masks);
            }
        }
    }
}

/// Sets `Osuus` of each slot's row to its share of row 0, which has all.
template <class Rows>
void LaskeOsuudet(Rows& rows, const std::vector<int16_t>& slots) {
    rows[0].Osuus = 1;
    for (const int16_t slot : slots) {
        auto& row = rows[static_cast<std::size_t>(slot)];
        row.Osuus = row.Lukumaara == 0 ? 0 : static_cast<double>(row.Lukumaara) / rows[0].Lukumaara;
    }
}

}  // namespace tessarin
