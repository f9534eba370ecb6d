// A whole platform without a screen: every service keeps what it was asked to do.
#pragma once

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "platform/Services.h"
#include "platform/scripted/ScriptedDialogs.h"
#include "platform/scripted/ScriptedMainForm.h"

namespace tessarin {

class ScriptedClipboard : public Clipboard {
  public:
    void Clear() override;
    void SetText(std::string_view newText) override { text = newText; }
    void SetImage(const Bitmap& newImage) override { image = newImage; }
    std::string Text() const override { return text; }
    Bitmap Image() const override { return image; }

    std::string text;
    Bitmap image;
};

class ScriptedPointer : public PointerControl {
  public:
    void SetPointer(MousePointer pointer) override { history.push_back(pointer); }
    std::vector<MousePointer> history;
};

class ScriptedPopups : public PopupMenus {
  public:
    /// Takes the next of `choices`; dismissed when there is none.
    PopupChoice Show(const std::vector<PopupEntry>& entries) override;

    std::deque<PopupChoice> choices;
    std::vector<PopupEntry> lastEntries;
};

class ScriptedEventLoop : public EventLoop {
  public:
    void Yield() override;
    void Quit(int status) override;

    /// Run once by the next `Yield`, as an event that waited.
    std::function<void()> atNextYield;
    int yields = 0;
    bool quit = false;
    int status = 0;
};

class ScriptedBrowser : public Browser {
  public:
    bool Open(const std::string& address) override;
    std::vector<std::string> opened;
};

class ScriptedTimers : public Timers {
  public:
    /// The timer ticks when the test calls what was given here.
    std::unique_ptr<Timer> Make(std::function<void()> tick) override;
    std::vector<std::function<void()>> ticks;
    std::deque<bool> running;  ///< whether it would tick by itself
};

class ScriptedPrinter : public Printer {
  public:
    bool Choose() override { return true; }
    void PaintPicture(const Bitmap& picture, double x, double y, double width,
                      double height) override;
    void EndDoc() override { ++pages; }

    std::vector<Bitmap> painted;
    int pages = 0;
};

class ScriptedLocks : public Locks {
  public:
    /// Not to be had for the paths that another program holds.
    bool Take(const std::string& path) override { return !others.contains(path); }
    std::set<std::string> others;
};

class ScriptedPlatform {
  public:
    ScriptedMainForm mainForm;
    ScriptedDialogs dialogs;
    ScriptedClipboard clipboard;
    ScriptedPointer pointer;
    ScriptedPopups popups;
    ScriptedEventLoop loop;
    ScriptedBrowser browser;
    ScriptedTimers timers;
    ScriptedPrinter printer;
    ScriptedLocks locks;
    std::string programFolder = "program/";
    std::string dataFolder;

    Platform Services() {
        return {mainForm, dialogs, clipboard, pointer, popups,        loop,
                browser,  timers,  printer,   locks,   programFolder, dataFolder};
    }
};

}  // namespace tessarin
