// The system's web browser.
#pragma once

#include <QDesktopServices>
#include <QUrl>

#include "platform/Services.h"
#include "platform/qt/Conversions.h"

namespace tessarin {

class QtBrowser : public Browser {
  public:
    bool Open(const std::string& address) override {
        return QDesktopServices::openUrl(QUrl(ToQt(address)));
    }
};

}  // namespace tessarin
