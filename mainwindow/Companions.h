// What the main window calls on floors above its own.
#pragma once

#include <cstdint>
#include <string_view>

namespace tessarin {

/// Writes the session to a file: "Sheet", "Paketti" (a package) or "Autosave".
class ViewStore {
  public:
    virtual ~ViewStore() = default;
    virtual void TalletaNakyma(std::string_view mode) = 0;
    /// Deletes the autosave file; the session has ended well.
    virtual void PoistaAutosave() = 0;
};

/// The page composed for printing.
class PreviewPage {
  public:
    virtual ~PreviewPage() = default;
    /// Whether the menu item "Print preview" is checked.
    virtual bool OnkoNakyvissa() const = 0;
    virtual void Piirra() = 0;
};

/// The window that lists what is known of a file.
class FileInfoView {
  public:
    virtual ~FileInfoView() = default;
    /// Shows the file of that window.
    virtual void AsetaLista(int16_t window) = 0;
};

/// Each is null while the program has none.
struct Companions {
    ViewStore* views = nullptr;
    PreviewPage* preview = nullptr;
    FileInfoView* fileInfo = nullptr;
};

}  // namespace tessarin
