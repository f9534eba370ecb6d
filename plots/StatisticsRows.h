// The loop behind every table of statistics: the shown events, and the members of each population.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

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
/// `add(0, i)` for each of its events and `add(slot, i)` for those that are members of a slot.
template <class Take, class Add>
void KayRivit(const Tiedosto& file, KaytetytTapahtumat used, const std::vector<int16_t>& slots,
              Take take, Add add) {
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        take(events);
        for (std::size_t i = 0; i < events.size(); ++i) {
            add(0, i);
        }
        for (const int16_t slot : slots) {
            const auto members = file.Membership.Sarake(slot);
            for (std::size_t i = 0; i < events.size(); ++i) {
                if (members[static_cast<std::size_t>(events[i]) - 1] == 1) {
                    add(slot, i);
                }
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
