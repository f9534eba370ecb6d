#include "mainwindow/WindowRegistry.h"

#include <map>
#include <utility>

namespace tessarin {
namespace {

std::map<std::string, WindowKind, std::less<>>& Kinds() {
    static std::map<std::string, WindowKind, std::less<>> kinds;
    return kinds;
}

}  // namespace

void RekisteroiIkkunaLaji(WindowKind kind) {
    std::string type = kind.type;
    Kinds().insert_or_assign(std::move(type), std::move(kind));
}

void PoistaIkkunaLaji(std::string_view type) {
    const auto found = Kinds().find(type);
    if (found != Kinds().end()) {
        Kinds().erase(found);
    }
}

const WindowKind* EtsiLaji(std::string_view type) {
    const auto found = Kinds().find(type);
    return found == Kinds().end() ? nullptr : &found->second;
}

const WindowKind* EtsiLajiKomennolla(std::string_view command) {
    for (const auto& [type, kind] : Kinds()) {
        if (!command.empty() && kind.command == command) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace tessarin
