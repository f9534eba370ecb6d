// Compensation: the step from the values as loaded to the values that every window reads.
#pragma once

#include "core/Tiedosto.h"

namespace tessarin {

/// `LaskeKompensaatio` means compute compensation: makes `Data` from `RawData`.
///
/// With `Compensate` off the two are then equal. With it on, the spill of every channel a into
/// channel b, `Compensation(a, b)` times the raw value of a, is taken off channel b, always from
/// the raw values. Channels that nothing spills into share their memory with the raw values.
/// Throws std::bad_alloc with `Data` as it was.
void LaskeKompensaatio(Tiedosto& file);

}  // namespace tessarin
