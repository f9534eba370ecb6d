#include "platform/qt/QtGridForm.h"

namespace tessarin {

QtGridForm::QtGridForm(QMdiArea& area, ActiveChild& active, GridFormEvents& events)
    : events_(events), grid_(new GridWidget(events)), frame_(area, active, grid_, *this) {}

QtGridForm::~QtGridForm() {
    if (grid_) {
        grid_->Detach();
    }
}

void QtGridForm::SetTable(const GridTable& table) {
    if (grid_) {
        grid_->SetCells(GridCells(table));
    }
}

void QtGridForm::SetOuterSize(Twips width, Twips height) {
    // The size follows the table, which changes whenever its plot is drawn: that is no reason to
    // bring back a window that the user put away.
    if (!grid_ || !frame_.HasOwnSize()) {
        return;
    }
    frame_.SetOuterSize(width, height);
    // Title and edges are not equally thick everywhere, and the scroll bars would hide a whole row
    // for the sake of a few pixels.
    const QSize missing = (grid_->Cells().Size() - frame_.ClientSize()).expandedTo({0, 0});
    if (missing.width() < kGridRowPixels && missing.height() < kGridRowPixels) {
        frame_.SetOuterSize(
            TwipsFromPixels(PixelsFromTwips(frame_.OuterWidth()) + missing.width()),
            TwipsFromPixels(PixelsFromTwips(frame_.OuterHeight()) + missing.height()));
    }
}

Bitmap QtGridForm::Picture() const {
    return grid_ ? grid_->Cells().Picture(grid_->devicePixelRatioF()) : Bitmap{};
}

}  // namespace tessarin
