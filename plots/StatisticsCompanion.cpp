#include "plots/StatisticsCompanion.h"

#include "core/Muuttujat.h"

namespace tessarin {

Statistics* TilastoKumppani::Ikkuna() const {
    const int16_t id = owner_.TilastonIkkuna();
    return IkkunatStat.Holds(id) && IkkunatStat(id).Used
               ? static_cast<Statistics*>(IkkunatStat(id).Window.get())
               : nullptr;
}

bool TilastoKumppani::AvaaTaiSulje(std::string_view what) {
    const bool open = what == "open" || (what != "close" && !OnkoAuki());
    if (open == OnkoAuki()) {
        return false;
    }
    const int16_t id = owner_.TilastonIkkuna();
    const auto closing = std::move(IkkunatStat(id).Window);
    IkkunatStat(id) = tessarin::Ikkuna();
    if (open) {
        const std::string& type = Ikkunat(id).Type;
        IkkunatStat(id).Window = std::make_shared<Statistics>(main_, owner_, type);
        IkkunatStat(id).Used = true;
        IkkunatStat(id).Type = type;
    }
    return true;
}

}  // namespace tessarin
