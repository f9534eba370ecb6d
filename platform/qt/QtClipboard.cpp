#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/Conversions.h"

namespace tessarin {

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtClipboard::SetImage(const Bitmap& image) {
    QGuiApplication::clipboard()->setImage(ViewOf(image).copy());
}

std::string QtClipboard::Text() const {
    return FromQt(QGuiApplication::clipboard()->text());
}

Bitmap QtClipboard::Image() const {
    const QImage image = QGuiApplication::clipboard()->image();
    return image.isNull() ? Bitmap{} : FromQt(image.convertToFormat(QImage::Format_RGB32));
}

}  // namespace tessarin
