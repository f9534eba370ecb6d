// The smaller services of the platform, and all of them together.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Bitmap.h"
#include "platform/Dialogs.h"
#include "platform/MainForm.h"
#include "platform/Menus.h"

namespace tessarin {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(std::string_view text) = 0;
    virtual void SetImage(const Bitmap& image) = 0;
    /// The text on it; empty when there is none.
    virtual std::string Text() const = 0;
    /// The picture on it, also one of another program; without pixels when there is none.
    virtual Bitmap Image() const = 0;
};

/// The pointer of the whole program.
class PointerControl {
  public:
    virtual ~PointerControl() = default;
    virtual void SetPointer(MousePointer pointer) = 0;
};

/// Pop-up menus at the mouse.
class PopupMenus {
  public:
    virtual ~PopupMenus() = default;
    /// Shows the entries and waits until one is chosen or the menu is dismissed.
    virtual PopupChoice Show(const std::vector<PopupEntry>& entries) = 0;
};

class EventLoop {
  public:
    virtual ~EventLoop() = default;
    /// Lets waiting events run, then returns.
    virtual void Yield() = 0;
    /// The same, for callers whom no child window has called, such as a tool between two lines:
    /// windows that were closed meanwhile also give back their memory.
    virtual void YieldBetween() { Yield(); }
    /// Ends the program's event loop; the process ends with that status.
    virtual void Quit(int status) = 0;
};

class Browser {
  public:
    virtual ~Browser() = default;
    /// Opens the page at that address in the system's web browser. False when that fails.
    virtual bool Open(const std::string& address) = 0;
};

/// Ticks every so many milliseconds while it is enabled.
class Timer {
  public:
    virtual ~Timer() = default;
    virtual void SetInterval(int milliseconds) = 0;
    virtual void SetEnabled(bool enabled) = 0;
};

class Timers {
  public:
    virtual ~Timers() = default;
    /// A disabled timer that calls `tick` from the event loop.
    virtual std::unique_ptr<Timer> Make(std::function<void()> tick) = 0;
};

/// One page of paper.
class Printer {
  public:
    virtual ~Printer() = default;
    /// Asks the user for printer and settings; false for Cancel.
    virtual bool Choose() = 0;
    /// Paints a picture at (x, y) of the page's printable area with that size, as shares of the
    /// area's width: 0 to 1 spans it.
    virtual void PaintPicture(const Bitmap& picture, double x, double y, double width,
                              double height) = 0;
    /// Sends the page off.
    virtual void EndDoc() = 0;
};

/// Locks between running programs, each a small file.
class Locks {
  public:
    virtual ~Locks() = default;
    /// Takes the lock at that path until the program ends, however it does. False when another
    /// running program has it or the file cannot be made.
    virtual bool Take(const std::string& path) = 0;
};

/// Everything that the logic needs of the platform. The services outlive whoever is given them.
struct Platform {
    MainForm& mainForm;
    Dialogs& dialogs;
    Clipboard& clipboard;
    PointerControl& pointer;
    PopupMenus& popups;
    EventLoop& loop;
    Browser& browser;
    Timers& timers;
    Printer& printer;
    Locks& locks;
    std::string programFolder;  ///< where the program's own files lie, ending in "/"
    std::string dataFolder;     ///< the user's folder for its data, likewise; empty for none
    bool unseen = false;        ///< nobody sees a picture but whoever asks for it
};

}  // namespace tessarin
