// The settings of a window as key lines of a sheet: what the frame has for every kind.
#include <cmath>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "windows/FrameWindow.h"

namespace tessarin {
namespace {

// What a sheet may ask for, in twips. A window further out would not be found again, and pictures
// larger than the largest screens only fill the memory.
constexpr double kFarthest = 120000;
constexpr double kWidest = 60000;
constexpr double kHighest = 36000;

}  // namespace

const SheetTable& FrameWindow::Keys() {
    if (keys_ == nullptr) {
        keys_ = std::make_unique<SheetTable>();
        AddKeys(*keys_);
    }
    return *keys_;
}

std::vector<std::string> FrameWindow::SaveInfo() {
    return Keys().Lines();
}

void FrameWindow::LoadInfo(std::string_view line) {
    constexpr std::size_t kOwnWords = 3;  // behind "window" and its number
    const SheetLine parts(line);
    Keys().Take(parts.KeyFrom(kOwnWords), parts.value);
    // A sheet can name a file that did not load; the window stays empty then.
    if (File() == nullptr) {
        Ikkunat(ID).FileIndex = 0;
    }
}

SheetKey FrameWindow::FormKey(std::string key, double most, std::function<Twips()> read,
                              std::function<void(Twips value)> set) {
    return {std::move(key), [read = std::move(read)] { return std::to_string(read().count); },
            [most, set = std::move(set)](std::string_view value) {
                const auto number = SheetNumber(value);
                if (number && std::fabs(*number) <= most) {
                    set({ToInt32(*number)});
                }
            }};
}

void FrameWindow::AddPlaceKeys(SheetTable& keys) {
    keys.Add(FormKey(
        "location.x", kFarthest, [this] { return place_.Left(); },
        [this](Twips x) { place_.SetLeft(x); }));
    keys.Add(FormKey(
        "location.y", kFarthest, [this] { return place_.Top(); },
        [this](Twips y) { place_.SetTop(y); }));
}

void FrameWindow::AddSizeKeys(SheetTable& keys) {
    keys.Add(FormKey(
        "size.x", kWidest, [this] { return form_->OuterWidth(); },
        [this](Twips width) { AsetaKoko("x", width); }));
    keys.Add(FormKey(
        "size.y", kHighest, [this] { return form_->OuterHeight(); },
        [this](Twips height) { AsetaKoko("y", height); }));
}

void FrameWindow::AddFileKey(SheetTable& keys) {
    keys.Add(Lukuavain("file", Ikkunat(ID).FileIndex));
}

void FrameWindow::AddBackgroundKey(SheetTable& keys) {
    keys.Add({"background", [this] { return std::to_string(tausta_.Harmaa); },
              [this](std::string_view value) {
                  const auto shade = SheetNumber(value);
                  if (shade && *shade >= 0 && *shade < 256) {
                      TakeBackground(static_cast<uint8_t>(*shade));
                  }
              }});
}

// Only the two shades that a sheet is written with choose the background.
void FrameWindow::TakeBackground(uint8_t shade) {
    tausta_.Harmaa = shade;
    if (shade == 0 || shade == 255) {
        tausta_.MustaTausta = shade != 0;
    }
}

}  // namespace tessarin
