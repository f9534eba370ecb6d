#include "platform/qt/Conversions.h"

namespace tessarin {

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
    return text.toStdString();
}

QString WithoutAltKeys(std::string_view text) {
    return ToQt(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString AsTitle(std::string_view text) {
    return ToQt(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

QString AsToolTip(const QString& text) {
    return text.isEmpty()
               ? QString()
               : QLatin1String("<span>%1</span>")
                     .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QColor ToQt(Rgb color) {
    return {color.red, color.green, color.blue};
}

Rgb FromQt(const QColor& color) {
    const QRgb pixel = color.rgb();
    return {static_cast<uint8_t>(qRed(pixel)), static_cast<uint8_t>(qGreen(pixel)),
            static_cast<uint8_t>(qBlue(pixel))};
}

QImage ViewOf(const Bitmap& picture) {
    const void* bytes = picture.pixels.data();
    QImage image(static_cast<const uchar*>(bytes), picture.width, picture.height,
                 qsizetype{picture.width} * 4, QImage::Format_RGB32);
    image.setDevicePixelRatio(picture.ratio);
    return image;
}

Bitmap FromQt(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_RGB32);
    Bitmap picture{plain.width(), plain.height(), plain.devicePixelRatio(), {}};
    const auto width = static_cast<std::size_t>(plain.width());
    picture.pixels.reserve(width * static_cast<std::size_t>(plain.height()));
    for (int y = 0; y < plain.height(); ++y) {
        const void* line = plain.constScanLine(y);
        const auto* pixels = static_cast<const uint32_t*>(line);
        picture.pixels.insert(picture.pixels.end(), pixels, pixels + width);
    }
    return picture;
}

}  // namespace tessarin
