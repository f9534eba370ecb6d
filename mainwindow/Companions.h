// What the main window calls on floors above its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// Saves the session and brings it back.
class ViewStore {
  public:
    virtual ~ViewStore() = default;
    /// Writes the session: "Sheet" and "Paketti" (a package) ask where, "Autosave" does not.
    virtual void TalletaNakyma(std::string_view mode) = 0;
    /// Replaces the session by a sheet; False when it stays as it is.
    virtual bool LataaNakyma(const std::string& path) = 0;
    /// The last run may have ended badly: asks whether to bring its session back.
    virtual void TarjoaPalautusta() = 0;
    /// Deletes the autosave file; the session has ended well.
    virtual void PoistaAutosave() = 0;
};

/// The page composed for printing.
class PreviewPage {
  public:
    virtual ~PreviewPage() = default;
    /// Whether it is shown.
    virtual bool OnkoNakyvissa() const = 0;
    virtual void Piirra() = 0;
    /// `Tulosta` means print: sends the page to the printer that was chosen last. Gives what went
    /// wrong; empty for success.
    virtual std::string Tulosta() = 0;
};

/// The tools that are installed beside the program.
class ToolMenu {
  public:
    virtual ~ToolMenu() = default;
    /// What the Tools menu calls them.
    virtual std::vector<std::string> Nimet() const = 0;
    /// Runs number `tool`, from 0.
    virtual void Aja(std::size_t tool) = 0;
};

/// A part of a sheet beside files, populations and windows: a window that there is one of at most.
class SheetSection {
  public:
    virtual ~SheetSection() = default;
    /// The first field of its keys, such as "fileinfo".
    virtual std::string_view SheetName() const = 0;
    /// Whether the window is shown, which a sheet notes and brings back.
    virtual bool OnkoNakyvissa() const = 0;
    virtual void AsetaNakyvyys(bool shown) = 0;
    /// Its settings as key lines without the first field; none when it does not save them now.
    virtual std::vector<std::string> SaveInfo() const = 0;
    /// Takes one whole line of a sheet.
    virtual void LoadInfo(std::string_view line) = 0;
    /// All of a sheet is there, and `Loading` is over.
    virtual void SheetLoaded() {}
};

/// Hears of what happens to windows.
class WindowListener {
  public:
    virtual ~WindowListener() = default;
    /// The window became the active one, or took another file.
    virtual void AsetaLista(int16_t window) = 0;
};

/// Each pointer is null while the program has none.
struct Companions {
    ViewStore* views = nullptr;
    PreviewPage* preview = nullptr;
    ToolMenu* tools = nullptr;
    std::vector<SheetSection*> sections{};
    std::vector<WindowListener*> listeners{};
};

}  // namespace tessarin
