#include "platform/qt/QtPrinter.h"

#include <QPrintDialog>

#include "platform/qt/Conversions.h"

namespace tessarin {

bool QtPrinter::Choose() {
    EndDoc();
    if (parent_ == nullptr && path_.empty()) {
        return false;
    }
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    if (parent_ != nullptr) {
        return QPrintDialog(printer_.get(), parent_).exec() == QDialog::Accepted;
    }
    printer_->setOutputFormat(QPrinter::PdfFormat);
    printer_->setOutputFileName(ToQt(path_));
    return true;
}

void QtPrinter::PaintPicture(const Bitmap& picture, double x, double y, double width,
                             double height) {
    if (!printer_ || (!painter_.isActive() && !painter_.begin(printer_.get()))) {
        return;
    }
    const double unit = painter_.viewport().width();
    painter_.drawImage(QRectF(x * unit, y * unit, width * unit, height * unit), ViewOf(picture));
}

void QtPrinter::EndDoc() {
    if (painter_.isActive()) {
        painter_.end();
    }
}

}  // namespace tessarin
