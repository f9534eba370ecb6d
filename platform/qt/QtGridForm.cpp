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
    const QSize asked(PixelsFromTwips(width), PixelsFromTwips(height));
    const QSize needed = grid_->Cells().Size();
    if (asked == asked_ && needed == needed_ && OuterSize() == fitted_) {
        return;
    }
    frame_.SetOuterSize(width, height);
    // Title and edges are not equally thick everywhere, and the scroll bars would hide a whole row
    // for the sake of a few pixels.
    const QSize missing = (needed - frame_.ClientSize()).expandedTo({0, 0});
    if (missing.width() < kGridRowPixels && missing.height() < kGridRowPixels) {
        const QSize fitting = OuterSize() + missing;
        frame_.SetOuterSize(TwipsFromPixels(fitting.width()), TwipsFromPixels(fitting.height()));
    }
    if (!asked_.isValid() && !placed_) {
        frame_.MoveIn();
    }
    asked_ = asked;
    needed_ = needed;
    fitted_ = OuterSize();
}

void QtGridForm::SetPlace(Twips left, Twips top) {
    placed_ = true;
    frame_.SetPlace(left, top);
}

QSize QtGridForm::OuterSize() const {
    return {PixelsFromTwips(frame_.OuterWidth()), PixelsFromTwips(frame_.OuterHeight())};
}

Bitmap QtGridForm::Picture() const {
    return grid_ ? grid_->Cells().Picture(grid_->devicePixelRatioF()) : Bitmap{};
}

}  // namespace tessarin
