// The settings of a plot as key lines of a sheet.
#include <cmath>

#include "core/Numbers.h"
#include "plots/PlotWindow.h"

namespace tessarin {
namespace {

// What a sheet may ask for, in twips. A window further out would not be found again, and pictures
// larger than the largest screens only fill the memory.
constexpr double kFarthest = 120000;
constexpr double kWidest = 60000;
constexpr double kHighest = 36000;

}  // namespace

std::optional<std::vector<std::string>> PlotWindow::SaveInfo() {
    return KirjoitaAvaimet(Keys());
}

bool PlotWindow::LoadInfo(std::string_view line) {
    const SheetLine parts(line);
    LueAvain(Keys(), parts.KeyFrom(3), parts.value);
    // A sheet can name a file that did not load; the window stays empty then.
    if (File() == nullptr) {
        Ikkunat(ID).FileIndex = 0;
    }
    return true;
}

SheetKey PlotWindow::FormKey(std::string key, double most, Twips (Form::*read)() const,
                             std::function<void(Form& form, Twips value)> set) {
    return {std::move(key), [this, read] { return std::to_string((Lomake().*read)().count); },
            [this, most, set = std::move(set)](std::string_view value) {
                const auto number = SheetNumber(value);
                if (number && std::fabs(*number) <= most) {
                    set(Lomake(), {ToInt32(*number)});
                }
            }};
}

void PlotWindow::AddPlaceKeys(std::vector<SheetKey>& keys) {
    keys.push_back(FormKey("location.x", kFarthest, &Form::Left,
                           [](Form& form, Twips x) { form.SetPlace(x, form.Top()); }));
    keys.push_back(FormKey("location.y", kFarthest, &Form::Top,
                           [](Form& form, Twips y) { form.SetPlace(form.Left(), y); }));
    keys.push_back(FormKey("size.x", kWidest, &Form::OuterWidth, [](Form& form, Twips width) {
        form.SetOuterSize(width, form.OuterHeight());
    }));
    keys.push_back(FormKey("size.y", kHighest, &Form::OuterHeight, [](Form& form, Twips height) {
        form.SetOuterSize(form.OuterWidth(), height);
    }));
    keys.push_back(Lukuavain("file", Ikkunat(ID).FileIndex));
}

void PlotWindow::AddRegionKeys(std::vector<SheetKey>& keys) {
    const auto changed = [this] { SetRegionCaptions(); };
    keys.push_back(Lippuavain("regionlines.show", AlueViivat, changed));
    keys.push_back(Lippuavain("regionlines.showcreatedhere", VainTaallaLuodut, changed));
}

// There is no test against the limit: what was on when the sheet was saved is on again.
SheetKey PlotWindow::FastDrawKey() {
    return Lippuavain("fastdraw.enabled", nopea_.FastDraw, [this] {
        const Tiedosto* file = File();
        nopea_.PiirtoVali = nopea_.FastDraw && file != nullptr ? OhennusVali(file->EventCount) : 1;
        SetFastDrawCaption();
    });
}

SheetKey PlotWindow::BackgroundKey() {
    return {"background", [this] { return std::to_string(tausta_.Harmaa); },
            [this](std::string_view value) {
                const auto shade = SheetNumber(value);
                if (shade && *shade >= 0 && *shade < 256) {
                    TakeBackground(static_cast<uint8_t>(*shade));
                }
            }};
}

SheetKey PlotWindow::StatisticsPlaceKey(std::string_view axis, Twips (GridForm::*read)() const) {
    return {"statistics." + std::string(axis),
            [this, read] { return std::to_string((tilasto_.Ikkuna()->Lomake().*read)().count); },
            [this, axis](std::string_view value) {
                const auto place = SheetNumber(value);
                if (place && std::fabs(*place) <= kFarthest) {
                    LiikutaStatistiikkaLaatikkoa(axis, ToInt32(*place));
                }
            }};
}

void PlotWindow::AddViewKeys(std::vector<SheetKey>& keys, int items) {
    const auto flag = [](bool on) { return std::string(on ? "1" : "0"); };
    keys.push_back({"printview.window.visible", [this, flag] { return flag(Previewissa); },
                    [this](std::string_view value) { AsetaPreviewissa(value == "1"); }});
    keys.push_back(Lippuavain("printview.stat.visible", StatPreviewissa));
    keys.push_back({"statistics.enabled", [this, flag] { return flag(tilasto_.OnkoAuki()); },
                    [this](std::string_view value) {
                        if (value == "1" || value == "0") {
                            AvaaTaiSuljeStatistics(value == "1" ? "open" : "close");
                        }
                    }});
    if (!tilasto_.OnkoAuki()) {
        return;
    }
    keys.push_back(StatisticsPlaceKey("x", &GridForm::Left));
    keys.push_back(StatisticsPlaceKey("y", &GridForm::Top));
    for (int item = 1; item <= items; ++item) {
        keys.push_back({"statistics.column." + std::to_string(item) + ".visible",
                        [this, item, flag] { return flag(tilasto_.Ikkuna()->OnkoNakyvissa(item)); },
                        [this, item](std::string_view value) {
                            if (value == "1" || value == "0") {
                                tilasto_.Ikkuna()->AsetaNakyvyys(item, value == "1" ? 1 : 0);
                            }
                        }});
    }
}

}  // namespace tessarin
