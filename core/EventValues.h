// The values of chosen events, taken out of a column into a list.
#pragma once

#include <cstdint>
#include <span>

namespace tessarin {

/// `OvatPerakkain` means they follow each other: whether each event is one above that before it.
bool OvatPerakkain(std::span<const int32_t> events);

/// `PoimiArvot` means pick the values: `taken[i]` becomes `column[events[i] - 1]`. Events that
/// follow each other are taken fastest.
/// REQUIRES: events are 1 to the column's length; taken is at least as long as events.
void PoimiArvot(std::span<const float> column, std::span<const int32_t> events,
                std::span<double> taken);

/// `PoimiMaskit` means pick the masks: `masks[i]` becomes all ones when the event is a member, that
/// is `members[events[i] - 1]` is 1, else 0. Gives how many are.
/// REQUIRES: the same.
int32_t PoimiMaskit(std::span<const uint8_t> members, std::span<const int32_t> events,
                    std::span<uint64_t> masks);

}  // namespace tessarin
