// All services of the platform as Qt gives them; `main` makes one of these.
#pragma once

#include <memory>
#include <string>

#include "platform/Services.h"
#include "platform/qt/QtBrowser.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtLocks.h"
#include "platform/qt/QtMainForm.h"
#include "platform/qt/QtPointer.h"
#include "platform/qt/QtPopupMenus.h"
#include "platform/qt/QtPrinter.h"
#include "platform/qt/QtTimers.h"

namespace tessarin {

class QtPlatform {
  public:
    struct Options {
        bool headless = false;
        std::string programFolder;  ///< ends in "/"
        std::string printerPath;    ///< headless: the PDF file that is printed to; empty for none
        // Taken instead of the ones on the screen; nullptr for those. They must outlive this.
        Dialogs* dialogs = nullptr;
        Clipboard* clipboard = nullptr;
        PopupMenus* popups = nullptr;
        Browser* browser = nullptr;

        bool unseen = false;       ///< nothing is painted but what is asked for as a picture
        std::string dataFolder{};  ///< the user's folder for data, ends in "/", or empty
    };

    /// REQUIRES: the QApplication exists and outlives this.
    explicit QtPlatform(const Options& options);

    Platform& Services() { return services_; }
    QtEventLoop& Loop() { return loop_; }
    QtMainForm& Main() { return mainForm_; }

  private:
    QtEventLoop loop_;
    QtMainForm mainForm_;
    QtDialogs dialogs_;
    QtClipboard clipboard_;
    QtPointer pointer_;
    QtPopupMenus popups_;
    QtBrowser browser_;
    QtTimers timers_;
    QtLocks locks_;
    std::unique_ptr<QtPrinter> printer_;
    Platform services_;
};

}  // namespace tessarin
