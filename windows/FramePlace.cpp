#include "windows/FramePlace.h"

#include "windows/Placing.h"

namespace tessarin {
namespace {

PixelBox BoxOf(const Form& form, Twips left, Twips top) {
    return {PixelsFromTwips(left), PixelsFromTwips(top), PixelsFromTwips(form.OuterWidth()),
            PixelsFromTwips(form.OuterHeight())};
}

PixelSize SizeOf(const Form& form) {
    return {PixelsFromTwips(form.OuterWidth()), PixelsFromTwips(form.OuterHeight())};
}

PixelSize AreaOf(const Form& form) {
    return {form.AreaWidth(), form.AreaHeight()};
}

}  // namespace

bool FramePlace::IsWherePut() const {
    return form_.Left() == putLeft_ && form_.Top() == putTop_;
}

void FramePlace::Put(Twips left, Twips top, By by) {
    form_.SetPlace(left, top);
    by_ = by;
    // As the form tells it, in whole pixels perhaps.
    putLeft_ = form_.Left();
    putTop_ = form_.Top();
}

void FramePlace::Give(Twips left, Twips top) {
    givenLeft_ = left;
    givenTop_ = top;
    by_ = By::kGift;
    Settle();
}

// From what was given each time, so that it makes no difference whether size or place comes first.
void FramePlace::Settle() {
    const PixelBox given = BoxOf(form_, givenLeft_, givenTop_);
    if (IsInReach(given, AreaOf(form_))) {
        Put(givenLeft_, givenTop_, By::kGift);
    } else {
        const PixelBox place = MovedIn(given, AreaOf(form_));
        Put(TwipsFromPixels(place.left), TwipsFromPixels(place.top), By::kGift);
    }
}

void FramePlace::SetOuterSize(Twips width, Twips height) {
    const bool isMine = by_ != By::kOthers && IsWherePut();
    form_.SetOuterSize(width, height);
    if (isMine && by_ == By::kGift) {
        Settle();
    } else if (isMine) {
        const PixelBox place = MovedIn(BoxOf(form_, putLeft_, putTop_), AreaOf(form_));
        Put(TwipsFromPixels(place.left), TwipsFromPixels(place.top), By::kSearch);
    }
}

void FramePlace::FindRoom() {
    if (by_ == By::kGift) {
        return;
    }
    const std::vector<PixelBox> taken = form_.Neighbours();
    const PixelBox place =
        FreePlace(SizeOf(form_), AreaOf(form_), taken)
            .value_or(MovedIn(BoxOf(form_, form_.Left(), form_.Top()), AreaOf(form_)));
    Put(TwipsFromPixels(place.left), TwipsFromPixels(place.top), By::kSearch);
}

void FramePlace::FindRoomBeside(const Form& owner) {
    if (by_ == By::kGift) {
        return;
    }
    const std::vector<PixelBox> taken = form_.Neighbours();
    const PixelBox place =
        PlaceBeside(BoxOf(owner, owner.Left(), owner.Top()), SizeOf(form_), AreaOf(form_), taken);
    Put(TwipsFromPixels(place.left), TwipsFromPixels(place.top), By::kSearch);
}

}  // namespace tessarin
