// The pop-up menu of a window, and the items that the frame has for every kind.
#include "core/Bitmap.h"
#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"
#include "windows/FrameWindow.h"

namespace tessarin {

void FrameWindow::ShowMenu() {
    NaytaNappiMenu(main_, ID, Items());
}

void FrameWindow::MenuValintaReaktio(int item) {
    const std::vector<WindowMenuItem> items = Items();
    if (item < 1 || item > static_cast<int>(items.size())) {
        return;
    }
    const WindowMenuItem& chosen = items[static_cast<std::size_t>(item) - 1];
    if (chosen.enabled && chosen.choose) {
        chosen.choose();
    }
}

WindowMenuItem FrameWindow::CopyItem(std::string_view caption) {
    return {std::string(caption),
            [this] {
                main_.Services().clipboard.Clear();
                CopyToClipboard();
                ClipSource = ID;
            },
            HasPicture()};
}

void FrameWindow::CopyToClipboard() {
    PiirraLykatty();
    main_.Services().clipboard.SetImage(Surface().Image());
}

WindowMenuItem FrameWindow::SaveImageItem(std::string_view caption) {
    return {std::string(caption), [this] { SaveImage(); }, HasPicture()};
}

void FrameWindow::SaveImage() {
    const std::string path = KysyTallennuspaikka(
        main_.Services().dialogs,
        {.title = "Save the image",
         .filter = std::string(kind_.imageFilter),
         .folder = File() != nullptr ? File()->Folder : main_.AktiivinenKansio()});
    if (path.empty()) {
        return;
    }
    PiirraLykatty();
    const std::string failure = TalletaKuva(Surface().Image(), path);
    if (!failure.empty()) {
        main_.Services().dialogs.Message(failure, "Save the image");
    }
}

WindowMenuItem FrameWindow::InvertItem() {
    return {"Invert background color", [this] {
                tausta_.MustaTausta = !tausta_.MustaTausta;
                Piirra();
            }};
}

WindowMenuItem FrameWindow::FlagItem(bool& flag, std::string_view on, std::string_view off) {
    return {std::string(flag ? on : off), [this, &flag] {
                flag = !flag;
                Piirra();
            }};
}

}  // namespace tessarin
