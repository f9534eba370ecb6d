// What all forms do with their child windows: caption, size, place, showing, the end.
#pragma once

#include <QPointer>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "platform/Twips.h"
#include "platform/qt/ActiveChild.h"
#include "platform/qt/ChildArea.h"
#include "platform/qt/ChildWindow.h"

namespace tessarin {

/// A length that was given in twips, which a window has in whole pixels: until somebody else
/// changes those, the twips are what was given.
class GivenLength {
  public:
    /// `pixels` is what came of it.
    void Set(Twips twips, int pixels) {
        twips_ = twips;
        pixels_ = pixels;
    }
    /// The twips of a window that has so many pixels now.
    Twips At(int pixels) const { return pixels == pixels_ ? twips_ : TwipsFromPixels(pixels); }

  private:
    Twips twips_;
    int pixels_ = 0;
};

/// The handle through which a form holds its window. The main window may go first; every call is
/// harmless then, and sizes and places are 0. Destroying it takes the window off the screen, and
/// nobody hears of that window again.
class ChildFrame {
  public:
    /// Takes over the content, which fills the window.
    ChildFrame(ChildArea& area, ActiveChild& active, QWidget* content, ChildEvents& events);
    ~ChildFrame();
    ChildFrame(const ChildFrame&) = delete;
    ChildFrame& operator=(const ChildFrame&) = delete;

    void SetCaption(std::string_view caption);
    void SetOuterSize(Twips width, Twips height);
    Twips OuterWidth() const;
    Twips OuterHeight() const;
    bool HasOwnSize() const;
    /// Whether the user can give it another size.
    void SetResizable(bool resizable);
    /// Size of the content in pixels, also before the window is shown.
    QSize ClientSize() const;

    /// Upper left corner within the area.
    Twips Left() const;
    Twips Top() const;
    void SetPlace(Twips left, Twips top);
    /// Size of the area in pixels.
    QSize AreaSize() const;
    /// Where the other windows stand that are shown, and what covers a part of the area. A window
    /// that fills it will go back to its own place.
    std::vector<PixelBox> Neighbours() const;

    void Show();
    /// Shows it while another child stays the active one.
    void ShowBeside();
    void Hide();

  private:
    QPointer<ChildArea> area_;
    QPointer<ChildWindow> window_;
    QPointer<ActiveChild> active_;
    bool resizable_ = true;
    GivenLength width_;
    GivenLength height_;
    GivenLength left_;
    GivenLength top_;
};

}  // namespace tessarin
