#include "core/FCSWriter.h"

#include <algorithm>
#include <bit>
#include <new>
#include <span>

#include "core/BusyPointer.h"
#include "core/FcsText.h"
#include "core/Muuttujat.h"
#include "core/SafeFile.h"

namespace tessarin {
namespace {

constexpr std::size_t kValueBytes = sizeof(float);

// Puts values into every `stride`-th place from `to`, the most significant byte first.
void Encode(std::span<const float> values, char* to, std::size_t stride) {
    for (const float value : values) {
        const auto bits = std::bit_cast<uint32_t>(value);
        to[0] = static_cast<char>(bits >> 24U);
        to[1] = static_cast<char>(bits >> 16U & 0xffU);
        to[2] = static_cast<char>(bits >> 8U & 0xffU);
        to[3] = static_cast<char>(bits & 0xffU);
        to += stride;
    }
}

void WriteEvents(const Tiedosto& file, SafeFile& out) {
    // Small enough that a block's bytes stay near while the columns go into it.
    constexpr std::size_t kBlockBytes = std::size_t{1} << 17U;
    const auto events = static_cast<std::size_t>(file.EventsFromFile());
    const std::size_t stride = kValueBytes * static_cast<std::size_t>(file.ChannelCount);
    const std::size_t blockEvents = std::max<std::size_t>(1, kBlockBytes / stride);
    std::string block;
    for (std::size_t first = 0; first < events; first += blockEvents) {
        const std::size_t count = std::min(blockEvents, events - first);
        block.resize(count * stride);
        char* to = block.data();
        for (int channel = 1; channel <= file.ChannelCount; ++channel, to += kValueBytes) {
            Encode(file.RawData.Sarake(channel).subspan(first, count), to, stride);
        }
        out.Write(block);
    }
}

std::string WriteFile(const std::string& path, const Tiedosto& file) {
    const uint64_t dataBytes = kValueBytes * static_cast<uint64_t>(file.EventsFromFile()) *
                               static_cast<uint64_t>(file.ChannelCount);
    const auto start = BytesBeforeData(WrittenKeywords(file), dataBytes);
    if (!start) {
        return "The file has too many channels to be written as an FCS file";
    }
    SafeFile out(path);
    out.Write(*start);
    WriteEvents(file, out);
    return out.Commit() == WriteResult::kDone
               ? ""
               : "The FCS file could not be written to " + path + ": " + out.Reason();
}

}  // namespace

std::string KirjoitaFCS(const std::string& path, int16_t slot) {
    const BusyPointer busy;
    if (!Tiedostot.Holds(slot) || !Tiedostot(slot).Valid || Tiedostot(slot).ChannelCount < 1) {
        return "There is no data file to write";
    }
    if (Tiedostot(slot).WholeEvents == 0) {
        return "No event of the file could be read, so there is nothing to write";
    }
    try {
        return WriteFile(path, Tiedostot(slot));
    } catch (const std::bad_alloc&) {
        return "There is not enough memory to write the FCS file";
    }
}

}  // namespace tessarin
