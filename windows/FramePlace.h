// Where a form stands in the main window's area, and what a sheet keeps of that.
#pragma once

#include "platform/Form.h"

namespace tessarin {

/// The program moves and sizes a form through this part, which owns nothing. A place that was given
/// is kept as it was given, to the twip, and is what a sheet gets; on a screen too small for it the
/// form stands within reach all the same. Once the user moves the form, its place is his.
class FramePlace {
  public:
    /// The form must outlive it.
    explicit FramePlace(Form& form) : form_(form) {}

    Twips Left() const { return IsWhereGiven() ? givenLeft_ : form_.Left(); }
    Twips Top() const { return IsWhereGiven() ? givenTop_ : form_.Top(); }

    /// A sheet or a tool says where it is to stand.
    void SetLeft(Twips left) { Give(left, Top()); }
    void SetTop(Twips top) { Give(Left(), top); }
    /// Another outer size; a form that stands where the program put it stays within reach.
    void SetOuterSize(Twips width, Twips height);

    /// Nobody says where it is to stand: these look for room, unless somebody has.
    void FindRoom();
    void FindRoomBeside(const Form& owner);

  private:
    enum class By { kOthers, kSearch, kGift };

    bool IsWherePut() const;
    bool IsWhereGiven() const { return by_ == By::kGift && IsWherePut(); }
    void Give(Twips left, Twips top);
    void Settle();
    void Put(Twips left, Twips top, By by);

    Form& form_;
    By by_ = By::kOthers;  // who has put it where it was put last
    Twips putLeft_;
    Twips putTop_;
    Twips givenLeft_;
    Twips givenTop_;
};

}  // namespace tessarin
