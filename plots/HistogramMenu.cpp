// The pop-up menu of the histogram: the table of its items and what its own ones do.
#include <array>

#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/Histogram.h"

namespace tessarin {
namespace {

constexpr int kOutline = 13;  // an item of its own whose caption changes

}  // namespace

std::span<const PlotWindow::PopupItem> Histogram::Items() {
    static const std::array<PopupItem, 18> kItems = {{
        {"Open statistics", Action(&Histogram::ToggleStatistics)},
        {"Set Y scale", Action(&Histogram::SetScale)},
        {"Set smoothing", Action(&Histogram::SetSmoothing)},
        {"-"},
        {"Hide marker lines", Action(&Histogram::ToggleRegionLines)},
        {"Show only markers created here", Action(&Histogram::ToggleOnlyHere)},
        {"-"},
        {"Copy to clipboard (CTLR-C)", Action(&Histogram::CopyImage), Needs::kFile},
        {"Save as .BMP...", Action(&Histogram::SaveImage), Needs::kFile},
        {"-"},
        {"Change color", Action(&Histogram::ChangeColor)},
        {"Invert background color", Action(&Histogram::InvertBackground)},
        {"Don't draw outline", Action(&Histogram::ToggleOutline)},
        {"Fast draw mode", Action(&Histogram::ToggleFastDraw), Needs::kFile},
        {"-"},
        {"Copy histogram to clipboard", Action(&Histogram::CopyBins), Needs::kFile},
        {"-"},
        {"Show in print preview page", Action(&Histogram::TogglePreview), Needs::kPreviewPage},
    }};
    return kItems;
}

void Histogram::SetScale() {
    AskNumber("Set Y scale", "automatic", YSkaala);
}

void Histogram::SetSmoothing() {
    AskNumber("Set smoothing", "none", Tasoitus);
}

// An answer that is no number, or a negative one, is taken as none.
void Histogram::AskNumber(const std::string& title, std::string_view zero, int32_t& value) {
    const std::string prompt = title + "\n(0 = " + std::string(zero) + ")";
    const std::string answer = main_.Services().dialogs.Input(prompt, title, std::to_string(value));
    const auto number = ParseNumber(answer);
    if (number && *number >= 0) {
        value = ToInt32(Rounded(*number));
        Piirra();
    }
}

void Histogram::ChangeColor() {
    if (const auto color = main_.Services().dialogs.ChooseColor(Tayttovari)) {
        Tayttovari = *color;
        Piirra();
    }
}

void Histogram::ToggleOutline() {
    Reunus = !Reunus;
    SetOutlineCaption();
    Piirra();
}

void Histogram::SetOutlineCaption() {
    tekstit_.Aseta(kOutline, Reunus ? "Don't draw outline" : "Draw outline");
}

void Histogram::CopyBins() {
    std::string text;
    for (std::size_t bin = 1; bin < Histo.size(); ++bin) {
        text += NumberText(Histo[bin]);
        text += '\n';
    }
    Clipboard& clipboard = main_.Services().clipboard;
    clipboard.Clear();
    clipboard.SetText(text);
}

}  // namespace tessarin
