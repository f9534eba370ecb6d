// The mark that puts a window, and its statistics, on the print preview page.
#pragma once

#include "mainwindow/WindowRoles.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// A part of every kind that can stand on the page.
class PagePart : public PageItem {
  public:
    explicit PagePart(FrameWindow& window) : window_(window) {}

    // PageItem.
    bool OnkoPreviewissa() const override { return Previewissa; }
    void AsetaPreviewissa(bool shown) override;
    bool OnkoStatPreviewissa() const override { return StatPreviewissa; }
    void AsetaStatPreviewissa(bool shown) override { StatPreviewissa = shown; }

    /// "Show in print preview page", or the opposite.
    WindowMenuItem Item();
    void AddWindowKey(SheetTable& keys);
    void AddStatisticsKey(SheetTable& keys);

  private:
    FrameWindow& window_;
    bool Previewissa = false;
    bool StatPreviewissa = false;  // stays False in a kind without statistics
};

}  // namespace tessarin
