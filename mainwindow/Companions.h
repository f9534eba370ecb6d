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

/// A window that there is one of at most, and that a sheet knows too.
class SheetCompanion {
  public:
    virtual ~SheetCompanion() = default;
    /// Whether its menu item is checked.
    virtual bool OnkoNakyvissa() const = 0;
    /// Checks its menu item and shows it, or the opposite.
    virtual void AsetaNakyvyys(bool shown) = 0;
    /// Its settings as key lines of a sheet, without the word in front.
    virtual std::vector<std::string> SaveInfo() const = 0;
    /// Takes one whole line of a sheet.
    virtual void LoadInfo(std::string_view line) = 0;
};

/// The page composed for printing.
class PreviewPage : public SheetCompanion {
  public:
    virtual void Piirra() = 0;
};

/// The window that lists what is known of a file.
class FileInfoView : public SheetCompanion {
  public:
    /// Shows the file of that window.
    virtual void AsetaLista(int16_t window) = 0;
    /// A sheet was loaded: shows what is there now.
    virtual void FileInfonAsetusLatauksenJalkeen() = 0;
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

/// Each is null while the program has none.
struct Companions {
    ViewStore* views = nullptr;
    PreviewPage* preview = nullptr;
    FileInfoView* fileInfo = nullptr;
    ToolMenu* tools = nullptr;
};

}  // namespace tessarin
