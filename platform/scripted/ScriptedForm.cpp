#include "platform/scripted/ScriptedForm.h"

#include <algorithm>
#include <utility>

namespace tessarin {

ScriptedForm::ScriptedForm(FormEvents& newEvents, std::function<void(ScriptedForm*)> gone)
    : events(newEvents), gone_(std::move(gone)) {}

ScriptedForm::~ScriptedForm() {
    gone_(this);
}

void ScriptedForm::SetOuterSize(Twips newWidth, Twips newHeight) {
    Resize(newWidth, newHeight, false);
}

void ScriptedForm::Resize(Twips newWidth, Twips newHeight, bool byUser) {
    const bool changed = !(newWidth == width && newHeight == height);
    width = newWidth;
    height = newHeight;
    if (changed && shown) {
        events.Form_Resize(byUser);
    }
}

int ScriptedForm::ScaleWidth() const {
    return std::max(0, PixelsFromTwips(width) - kFrameWidth);
}

int ScriptedForm::ScaleHeight() const {
    return std::max(0, PixelsFromTwips(height) - kFrameHeight);
}

std::vector<PixelBox> ScriptedForm::Neighbours() const {
    std::vector<PixelBox> boxes;
    if (all != nullptr) {
        for (const ScriptedForm* form : *all) {
            if (form != this && form->shown) {
                boxes.push_back({PixelsFromTwips(form->left), PixelsFromTwips(form->top),
                                 PixelsFromTwips(form->width), PixelsFromTwips(form->height)});
            }
        }
    }
    return boxes;
}

void ScriptedForm::Show() {
    shown = true;
    Activate();
}

void ScriptedForm::Activate() {
    events.Form_Activate();
}

void ScriptedForm::Press(double x, double y, MouseButton button) {
    events.Kuva_MouseDown({button, false, x, y});
}

void ScriptedForm::DoubleClick(double x, double y) {
    Press(x, y);
    events.Kuva_DoubleClick({MouseButton::kLeft, false, x, y});
}

void ScriptedForm::Move(double x, double y) {
    events.Kuva_MouseMove({MouseButton::kNone, false, x, y});
}

void ScriptedForm::Release(double x, double y, MouseButton button) {
    events.Kuva_MouseUp({button, false, x, y});
}

}  // namespace tessarin
