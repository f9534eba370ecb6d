#include "platform/scripted/ScriptedPlatform.h"

#include <utility>

namespace tessarin {
namespace {

class SilentTimer : public Timer {
  public:
    explicit SilentTimer(bool& running) : running_(running) {}
    void SetInterval(int /*milliseconds*/) override {}
    void SetEnabled(bool enabled) override { running_ = enabled; }

  private:
    bool& running_;
};

}  // namespace

void ScriptedClipboard::Clear() {
    text.clear();
    image = {};
}

PopupChoice ScriptedPopups::Show(const std::vector<PopupEntry>& entries) {
    lastEntries = entries;
    if (choices.empty()) {
        return {};
    }
    const PopupChoice choice = choices.front();
    choices.pop_front();
    return choice;
}

void ScriptedEventLoop::Yield() {
    ++yields;
    if (atNextYield) {
        std::exchange(atNextYield, nullptr)();
    }
}

void ScriptedEventLoop::Quit(int newStatus) {
    quit = true;
    status = newStatus;
}

bool ScriptedBrowser::Open(const std::string& address) {
    opened.push_back(address);
    return true;
}

std::unique_ptr<Timer> ScriptedTimers::Make(std::function<void()> tick) {
    ticks.push_back(std::move(tick));
    return std::make_unique<SilentTimer>(running.emplace_back(false));
}

void ScriptedPrinter::PaintPicture(const Bitmap& picture, double /*x*/, double /*y*/,
                                   double /*width*/, double /*height*/) {
    painted.push_back(picture);
}

}  // namespace tessarin
