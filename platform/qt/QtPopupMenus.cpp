#include "platform/qt/QtPopupMenus.h"

#include <QCursor>
#include <QMenu>
#include <map>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

using Choices = std::map<const QAction*, PopupChoice>;

void AddEntry(QMenu& menu, const PopupEntry& entry, PopupChoice choice, Choices& choices) {
    if (entry.caption == "-") {
        menu.addSeparator();
        return;
    }
    if (!entry.children.empty()) {
        QMenu* sub = menu.addMenu(WithoutAltKeys(entry.caption));
        sub->setEnabled(entry.enabled);
        for (const PopupEntry& child : entry.children) {
            ++choice.child;
            AddEntry(*sub, child, choice, choices);
        }
        return;
    }
    QAction* action = menu.addAction(WithoutAltKeys(entry.caption));
    action->setEnabled(entry.enabled);
    action->setCheckable(entry.checked);
    action->setChecked(entry.checked);
    choices[action] = choice;
}

}  // namespace

PopupChoice QtPopupMenus::Show(const std::vector<PopupEntry>& entries) {
    if (entries.empty()) {
        return {};  // an empty menu would wait with nothing to see
    }
    QMenu menu(&parent_);
    Choices choices;
    int item = 0;
    for (const PopupEntry& entry : entries) {
        AddEntry(menu, entry, {item, -1}, choices);
        ++item;
    }
    const auto chosen = choices.find(menu.exec(QCursor::pos()));
    return chosen == choices.end() ? PopupChoice{} : chosen->second;
}

}  // namespace tessarin
