// The DATA segment of an FCS file: bytes into columns of values.
#pragma once

#include <cstdint>
#include <istream>

#include "core/TapahtumaTaulu.h"
#include "core/Tiedosto.h"

namespace tessarin {

/// How one value is stored.
struct ValueFormat {
    enum class Kind { kNotRead, kFloat, kInteger };
    Kind kind = Kind::kNotRead;
    int bytes = 0;  // 4 for floats, 2 or 4 for integers, 0 when not read
    bool littleEndian = false;
};

/// What $DATATYPE, $BYTEORD and $PnB of the last channel say together.
ValueFormat FormatOf(const FcsOtsikko& header);

/// What reading found.
struct DataReport {
    int32_t wholeEvents = 0;   // events of which every byte was there
    bool cutIntegers = false;  // some 32-bit integer had bits above the 24 that are read
};

/// Reads events one after the other from the place where `in` stands, channel by channel, into
/// `values`, until the table is full or the bytes end.
///
/// Integers are 24 bits wide: the most significant of four bytes is passed over. Each byte is
/// read only while there is one, so with data that end early the rest of the table repeats what
/// the byte buffer last held. With kNotRead nothing is read and the table stays as it is.
/// A failing disk is no end: what `in` throws then passes through.
/// REQUIRES: `in` throws when it goes bad.
DataReport LueTapahtumat(std::istream& in, const ValueFormat& format,
                         TapahtumaTaulu<float>& values);

}  // namespace tessarin
