#include "plots/EventText.h"

#include "core/Numbers.h"
#include "core/SafeFile.h"

namespace tessarin {

std::string TalletaTapahtumat(const PlotData& data, const std::string& path) {
    const auto xs = data.file.Data.Sarake(data.KanavaX);
    const auto ys = data.file.Data.Sarake(data.KanavaY);
    std::string text;
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        for (const int32_t event : events) {
            const auto row = static_cast<std::size_t>(event) - 1;
            text += NumberText(xs[row]) + "\t" + NumberText(ys[row]) + "\n";
        }
    }
    const std::string reason = WriteWhole(path, text);
    return reason.empty() ? "" : "The data could not be written to " + path + ": " + reason;
}

}  // namespace tessarin
