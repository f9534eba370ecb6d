#include "plots/BinnedChannel.h"

#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/Axes.h"
#include "plots/HistogramBars.h"

namespace tessarin {

void BinnedChannel::Laske(const ChannelData& data) {
    Histo = LaskeHistogrammi(data, Resoluutio);
    Tasoita(Histo, Tasoitus);
    Korkein = YSkaala == 0 ? KorkeinPylvas(Histo) : static_cast<float>(YSkaala);
}

void BinnedChannel::PiirraPalkit(const PlotArea& area, bool outline) const {
    PiirraPylvaat(window_.Surface(), area, Histo, {Korkein, Tayttovari, outline});
}

void BinnedChannel::PiirraHuippu(const PlotArea& area) const {
    PiirraYSkaala(window_.Surface(), area, " " + NumberText(Int(static_cast<double>(Korkein))));
}

double BinnedChannel::BinAt(float grid) const {
    return Int(static_cast<double>(grid) / kGrid * Resoluutio);
}

WindowMenuItem BinnedChannel::ScaleItem() {
    return {"Set Y scale", [this] { AskNumber("Set Y scale", "automatic", YSkaala); }};
}

WindowMenuItem BinnedChannel::SmoothingItem() {
    return {"Set smoothing", [this] { AskNumber("Set smoothing", "none", Tasoitus); }};
}

// An answer that is no number, or a negative one, is taken as none.
void BinnedChannel::AskNumber(const std::string& title, std::string_view zero, int32_t& value) {
    const std::string prompt = title + "\n(0 = " + std::string(zero) + ")";
    const std::string answer =
        window_.Main().Services().dialogs.Input(prompt, title, std::to_string(value));
    const auto number = ParseNumber(answer);
    if (number && *number >= 0) {
        value = ToInt32(Rounded(*number));
        window_.Piirra();
    }
}

WindowMenuItem BinnedChannel::ColorItem() {
    return {"Change color", [this] {
                if (const auto color = window_.Main().Services().dialogs.ChooseColor(Tayttovari)) {
                    Tayttovari = *color;
                    window_.Piirra();
                }
            }};
}

void BinnedChannel::AddColorKeys(SheetTable& keys) {
    LisaaVariavaimet(keys, "fill.", Tayttovari.red, Tayttovari.green, Tayttovari.blue);
}

void BinnedChannel::AddScaleKeys(SheetTable& keys) {
    keys.Add(Lukuavain("yscale", YSkaala, 0));
    keys.Add(Lukuavain("smoothing", Tasoitus, 0));
}

}  // namespace tessarin
