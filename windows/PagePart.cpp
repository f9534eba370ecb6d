#include "windows/PagePart.h"

#include "mainwindow/PaaIkkuna.h"

namespace tessarin {

void PagePart::AsetaPreviewissa(bool shown) {
    Previewissa = shown;
    if (shown) {
        window_.Piirra();
    } else if (PreviewPage* page = window_.Main().Kumppanit().preview) {
        page->Piirra();
    }
}

WindowMenuItem PagePart::Item() {
    return {Previewissa ? "Don't show in print preview page" : "Show in print preview page",
            [this] { AsetaPreviewissa(!Previewissa); },
            window_.Main().Kumppanit().preview != nullptr};
}

void PagePart::AddWindowKey(SheetTable& keys) {
    keys.Add({"printview.window.visible", [this] { return std::string(Previewissa ? "1" : "0"); },
              [this](std::string_view value) {
                  if (value == "1" || value == "0") {
                      AsetaPreviewissa(value == "1");
                  }
              }});
}

void PagePart::AddStatisticsKey(SheetTable& keys) {
    keys.Add(Lippuavain("printview.stat.visible", StatPreviewissa));
}

}  // namespace tessarin
