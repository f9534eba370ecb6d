// Evaluates marker populations: which events of all files lie between their ends.
#pragma once

#include <cstdint>

namespace tessarin {

/// Rewrites the `Membership` column of a marker for all files, both ends counting as inside, then
/// re-evaluates the definitions that use it, and puts its ends in rising order. No event is left
/// out, whatever a window draws. A file that lacks the marker's channel has no members.
/// REQUIRES: slot is 1..MaxPopulations.
void TarkistaMarkkeri(int16_t slot);

}  // namespace tessarin
