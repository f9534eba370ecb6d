// Fills the menu bar from plain values and sends the commands that are chosen there.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <map>
#include <span>
#include <string>

#include "platform/Menus.h"

namespace tessarin {

class MenuBar : public QObject {
  public:
    /// `chosen` gets the name of the command.
    MenuBar(QMenuBar& bar, std::function<void(const std::string&)> chosen);

    /// Replaces all menus; an item of the same command stays checked.
    void Build(std::span<const Menu> menus);
    void SetEnabled(std::string_view command, bool enabled);
    void SetChecked(std::string_view command, bool checked);

  private:
    void AddItem(QMenu& menu, const MenuItem& item);
    QAction* Find(std::string_view command) const;

    QMenuBar& bar_;
    std::function<void(const std::string&)> chosen_;
    std::map<std::string, QAction*, std::less<>> actions_;
};

}  // namespace tessarin
