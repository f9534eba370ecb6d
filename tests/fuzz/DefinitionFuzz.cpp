// Works out any bytes as a definition, and as a packed tool. Called by a fuzzer, and by the test
// that replays what fuzzers found.
#include <cstdint>
#include <stdexcept>
#include <string>

#include "core/Muuttujat.h"
#include "populations/Definitions.h"
#include "tools/ToolPack.h"

namespace tessarin {
namespace {

constexpr int16_t kNames = 3;
constexpr int16_t kSlot = MaxPopulations + 1;
constexpr uint8_t kUntouched = 7;

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

// An event for each way to be in the populations or out of them.
void SetUp() {
    PalautaAlkutila();
    Tiedosto& file = Tiedostot(1);
    file.Valid = true;
    file.EventCount = 1 << kNames;
    file.Membership.Mitoita(file.EventCount, kPopulationSlots);
    for (int16_t slot = 1; slot <= kNames; ++slot) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Name = std::string(1, static_cast<char>('p' + slot));
        for (int32_t event = 1; event <= file.EventCount; ++event) {
            file.Membership.Aseta(event, slot,
                                  static_cast<uint8_t>((event - 1) >> (slot - 1) &
                                                       1));  // NOLINT(hicpp-signed-bitwise)
        }
    }
    for (uint8_t& member : file.Membership.OmaSarake(kSlot)) {
        member = kUntouched;
    }
}

void CheckDefinitionOf(const std::string& text) {
    SetUp();
    const std::string message = TarkistaMaaritelma(kSlot, text);
    for (const uint8_t member : Tiedostot(1).Membership.Sarake(kSlot)) {
        Require(message.empty() ? member <= 1 : member == kUntouched, "a member of no kind");
    }
    PalautaAlkutila();
}

}  // namespace
}  // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tessarin;
    const std::string text(data, data + size);
    CheckDefinitionOf(text);
    PuraPaketti(text);
    Require(PuraPaketti(TeePaketti(text)) == text, "a pack that does not come back");
    return 0;
}
