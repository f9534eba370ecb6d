#include "platform/scripted/ScriptedForm.h"

#include <algorithm>
#include <utility>

namespace tessarin {

ScriptedForm::ScriptedForm(FormEvents& events, std::function<void(ScriptedForm*)> gone)
    : events_(events), gone_(std::move(gone)) {}

ScriptedForm::~ScriptedForm() {
    gone_(this);
}

void ScriptedForm::SetOuterSize(Twips width, Twips height) {
    const bool changed = !(width == width_ && height == height_);
    width_ = width;
    height_ = height;
    if (changed && shown) {
        events_.Form_Resize();
    }
}

int ScriptedForm::ScaleWidth() const {
    return std::max(0, PixelsFromTwips(width_) - kFrameWidth);
}

int ScriptedForm::ScaleHeight() const {
    return std::max(0, PixelsFromTwips(height_) - kFrameHeight);
}

void ScriptedForm::Show() {
    shown = true;
    Activate();
}

void ScriptedForm::Activate() {
    events_.Form_Activate();
}

void ScriptedForm::Press(double x, double y, MouseButton button) {
    events_.Kuva_MouseDown({button, false, x, y});
}

void ScriptedForm::Move(double x, double y) {
    events_.Kuva_MouseMove({MouseButton::kNone, false, x, y});
}

void ScriptedForm::Release(double x, double y, MouseButton button) {
    events_.Kuva_MouseUp({button, false, x, y});
}

}  // namespace tessarin
