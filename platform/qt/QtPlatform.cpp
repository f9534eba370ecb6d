#include "platform/qt/QtPlatform.h"

#include "platform/qt/Look.h"

namespace tessarin {
namespace {

template <typename Service>
Service& Either(Service* given, Service& own) {
    return given == nullptr ? own : *given;
}

// Style and colours must be there before the first widget is made.
const QtEventLoop& AfterLook(const QtEventLoop& loop) {
    SetLook();
    return loop;
}

}  // namespace

QtPlatform::QtPlatform(const Options& options)
    : loop_(options.unseen),
      mainForm_(AfterLook(loop_), options.headless, options.unseen),
      dialogs_(mainForm_.Window()),
      popups_(mainForm_.Window()),
      printer_(options.headless ? std::make_unique<QtPrinter>(options.printerPath)
                                : std::make_unique<QtPrinter>(mainForm_.Window())),
      services_{mainForm_,
                Either<Dialogs>(options.dialogs, dialogs_),
                Either<Clipboard>(options.clipboard, clipboard_),
                pointer_,
                Either<PopupMenus>(options.popups, popups_),
                loop_,
                Either<Browser>(options.browser, browser_),
                timers_,
                *printer_,
                locks_,
                options.programFolder,
                options.dataFolder,
                options.unseen} {}

}  // namespace tessarin
