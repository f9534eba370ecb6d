#include "platform/scripted/ScriptedMainForm.h"

#include <stdexcept>

namespace tessarin {

void ScriptedMainForm::BuildMenus(std::span<const Menu> newMenus) {
    menus.assign(newMenus.begin(), newMenus.end());
}

MenuItem* ScriptedMainForm::Find(std::string_view command) {
    for (Menu& menu : menus) {
        for (MenuItem& item : menu.items) {
            if (item.command == command) {
                return &item;
            }
        }
    }
    return nullptr;
}

const MenuItem& ScriptedMainForm::Item(const std::string& command) const {
    for (const Menu& menu : menus) {
        for (const MenuItem& item : menu.items) {
            if (item.command == command) {
                return item;
            }
        }
    }
    throw std::out_of_range("no menu item " + command);
}

void ScriptedMainForm::SetItemEnabled(std::string_view command, bool on) {
    if (MenuItem* item = Find(command)) {
        item->enabled = on;
    }
}

void ScriptedMainForm::SetItemChecked(std::string_view command, bool on) {
    checked[std::string(command)] = on;
}

void ScriptedMainForm::SetStatus(std::span<const std::string> lines, StatusKind kind) {
    statusLines.assign(lines.begin(), lines.end());
    status = lines.empty() ? "" : lines.back();
    statusKind = kind;
}

void ScriptedMainForm::BuildPanel(int populations, int definitions) {
    rows.assign(static_cast<std::size_t>(populations) + static_cast<std::size_t>(definitions), {});
}

void ScriptedMainForm::SetPanelRow(int slot, const PanelRow& row) {
    rows.at(static_cast<std::size_t>(slot) - 1) = row;
}

std::unique_ptr<Form> ScriptedMainForm::MakeChild(FormEvents& formEvents) {
    auto form = std::make_unique<ScriptedForm>(
        formEvents, [this](ScriptedForm* gone) { std::erase(children, gone); });
    form->all = &children;
    children.push_back(form.get());
    return form;
}

void ScriptedMainForm::ShowAbout(std::span<const std::string> lines) {
    about.assign(lines.begin(), lines.end());
}

}  // namespace tessarin
