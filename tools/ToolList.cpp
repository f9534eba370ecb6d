#include "tools/ToolList.h"

#include <algorithm>
#include <filesystem>

#include "core/InputFile.h"
#include "core/NaturalOrder.h"
#include "mainwindow/PaaIkkuna.h"
#include "tools/Skripti.h"
#include "tools/ToolFiles.h"
#include "tools/ToolPack.h"
#include "tools/ToolUser.h"

namespace tessarin {

ToolList::ToolList(PaaIkkuna& main, Skripti& window)
    : main_(main), window_(window), folder_(TyokaluKansio(main.Services())) {
    Lue();
    window_.onSaved = [this] {
        Lue();
        main_.RakennaValikot();
    };
}

ToolList::~ToolList() {
    window_.onSaved = nullptr;
}

void ToolList::Lue() {
    tools_.clear();
    std::error_code error;
    std::filesystem::directory_iterator entry(folder_, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (OnkoTyokalu(name) && FileObstacle(entry->path().string()).empty()) {
            tools_.push_back({name.substr(0, name.find('.')), std::move(name)});
        }
    }
    std::ranges::sort(tools_, NaturalLess, &SkriptiTieto::TiedostoNimi);
}

std::vector<std::string> ToolList::Nimet() const {
    std::vector<std::string> names;
    for (const SkriptiTieto& tool : tools_) {
        names.push_back(tool.Nimi);
    }
    return names;
}

void ToolList::Aja(std::size_t tool) {
    const std::string path = folder_ + tools_[tool].TiedostoNimi;
    const Tyokalu read = LueTyokalu(path);
    if (!read.Valid) {
        main_.Services().dialogs.Message(
            "The tool '" + path + "' could not be read: " + read.refusal, "Tools");
        return;
    }
    DialogToolUser user(main_.Services().dialogs, main_.AktiivinenKansio());
    window_.AjaValikosta(read.text, user);
}

}  // namespace tessarin
