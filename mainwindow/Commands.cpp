#include "mainwindow/Commands.h"

#include <utility>

namespace tessarin {

void Komennot::Lisaa(Komento command) {
    std::string name = command.name;
    commands_.insert_or_assign(std::move(name), std::move(command));
}

void Komennot::Poista(std::string_view name) {
    const auto found = commands_.find(name);
    if (found != commands_.end()) {
        commands_.erase(found);
    }
}

const Komento* Komennot::Etsi(std::string_view name) const {
    const auto found = commands_.find(name);
    return found == commands_.end() ? nullptr : &found->second;
}

void Komennot::KayEhdolliset(const std::function<void(const Komento& command)>& visit) const {
    for (const auto& [name, command] : commands_) {
        if (command.enabled) {
            visit(command);
        }
    }
}

}  // namespace tessarin
