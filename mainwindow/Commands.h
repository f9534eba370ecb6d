// The commands of the program: what a menu item or a short cut does.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tessarin {

class PaaIkkuna;

/// `Komento` means command.
struct Komento {
    std::string name;  ///< as the menu tree names it, such as "FileExit"
    std::function<void(PaaIkkuna& main)> run;
    /// Whether it can be chosen now; always when there is no function. Asked again whenever
    /// something about files, windows or populations changed.
    std::function<bool(const PaaIkkuna& main)> enabled = {};
};

/// `Komennot` means commands. Floors above the main window add theirs before the menus are built;
/// an item of the menu tree without a command stands there disabled.
class Komennot {
  public:
    /// Adds a command, or replaces the one of that name.
    void Lisaa(Komento command);
    /// `Poista` means remove: the owner of what it runs goes.
    void Poista(std::string_view name);
    /// By name; nullptr when there is none.
    const Komento* Etsi(std::string_view name) const;
    /// Calls `visit` for each command that is not always enabled.
    void KayEhdolliset(const std::function<void(const Komento& command)>& visit) const;

  private:
    std::map<std::string, Komento, std::less<>> commands_;
};

/// Adds what the main window itself can do.
void LisaaOmatKomennot(Komennot& commands);

}  // namespace tessarin
