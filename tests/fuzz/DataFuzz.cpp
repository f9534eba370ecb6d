// Reads any bytes as a data file: as FCS, and as a text table. Called by a fuzzer, and by the test
// that replays what fuzzers found.
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/FCSReader.h"
#include "core/FCSWriter.h"
#include "core/Kompensaatio.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "core/TXTReader.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

// What windows count on, at the corners of the tables.
void CheckShape(const Tiedosto& file) {
    Require(file.EventCount >= 0 && file.EventCount <= MaxLoadedEvents, "a count of events");
    Require(file.ChannelCount >= 1, "a count of channels");
    Require(file.Fingerprint != 0, "a valid file that would leave its slot free");
    for (const int32_t event : {1, file.EventCount}) {
        for (const int channel : {1, int{file.ChannelCount}}) {
            if (file.EventCount > 0) {
                const auto place = AnnaPaikka(file, event, static_cast<int16_t>(channel), 10000.0);
                Require(place >= 0, "a place left of the axis");
            }
        }
    }
}

void ReadFcs(const TemporaryFolder& folder, const std::string& path) {
    Tiedosto file = LueFCS(path);
    if (!file.Valid) {
        Require(file.EventCount == 0 && file.ChannelCount == 0, "a refused file with contents");
        return;
    }
    CheckShape(file);
    LaskeKompensaatio(file);
    CheckShape(file);
    Tiedostot(1) = std::move(file);
    const std::string written = folder.Path("written.fcs");
    if (KirjoitaFCS(written, 1).empty()) {
        const Tiedosto again = LueFCS(written);
        Require(again.Valid && again.EventCount == Tiedostot(1).EventCount &&
                    again.ChannelCount == Tiedostot(1).ChannelCount,
                "a written file that is not read back");
    }
    PalautaAlkutila();
}

}  // namespace
}  // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tessarin;
    static const TemporaryFolder folder;
    PalautaAlkutila();
    MaxLoadedEvents = 2000;
    const std::string path = folder.Write("data", std::string(data, data + size));
    ReadFcs(folder, path);
    MaxLoadedEvents = 2000;
    const TxtTulos table = LueTXT(path);
    if (table.file.Valid) {
        CheckShape(table.file);
        TaulukkoTekstina(table.file);
    }
    PalautaAlkutila();
    return 0;
}
