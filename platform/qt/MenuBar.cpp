#include "platform/qt/MenuBar.h"

#include <QKeySequence>
#include <QMenu>
#include <set>
#include <utility>

#include "platform/qt/Conversions.h"

namespace tessarin {

MenuBar::MenuBar(QMenuBar& bar, std::function<void(const std::string&)> chosen)
    : bar_(bar), chosen_(std::move(chosen)) {}

void MenuBar::Build(std::span<const Menu> menus) {
    std::set<std::string> checked;
    for (const auto& [command, action] : actions_) {
        if (action->isChecked()) {
            checked.insert(command);
        }
    }
    actions_.clear();
    const QList<QMenu*> old = bar_.findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
    for (QMenu* menu : old) {
        bar_.removeAction(menu->menuAction());
        // Perhaps it is from this very menu that the program builds the new ones.
        menu->deleteLater();
    }
    for (const Menu& menu : menus) {
        QMenu* shown = bar_.addMenu(ToQt(menu.caption));
        shown->setObjectName(ToQt(menu.name));
        for (const MenuItem& item : menu.items) {
            AddItem(*shown, item);
        }
    }
    for (const std::string& command : checked) {
        SetChecked(command, true);
    }
}

void MenuBar::AddItem(QMenu& menu, const MenuItem& item) {
    if (item.caption == "-") {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(WithoutAltKeys(item.caption));
    action->setObjectName(ToQt(item.command));
    action->setShortcut(QKeySequence(ToQt(item.shortcut)));
    action->setCheckable(item.checkable);
    action->setEnabled(item.enabled);
    actions_[item.command] = action;
    connect(action, &QAction::triggered, this, [this, action, command = item.command](bool on) {
        if (action->isCheckable()) {
            // The program decides what is checked; Qt has toggled it already.
            action->setChecked(!on);
        }
        // Building menus anew destroys this function, and the name with it.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const std::string name = command;
        chosen_(name);
    });
}

QAction* MenuBar::Find(std::string_view command) const {
    const auto found = actions_.find(command);
    return found == actions_.end() ? nullptr : found->second;
}

void MenuBar::SetEnabled(std::string_view command, bool enabled) {
    if (QAction* action = Find(command)) {
        action->setEnabled(enabled);
    }
}

void MenuBar::SetChecked(std::string_view command, bool checked) {
    if (QAction* action = Find(command)) {
        action->setChecked(checked);
    }
}

}  // namespace tessarin
