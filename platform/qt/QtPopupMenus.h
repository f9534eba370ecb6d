// Pop-up menus at the mouse.
#pragma once

#include <QWidget>

#include "platform/Services.h"

namespace tessarin {

class QtPopupMenus : public PopupMenus {
  public:
    explicit QtPopupMenus(QWidget& parent) : parent_(parent) {}
    PopupChoice Show(const std::vector<PopupEntry>& entries) override;

  private:
    QWidget& parent_;
};

}  // namespace tessarin
