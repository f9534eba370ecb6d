// The program's plain values as Qt's, and back; all of this folder uses them.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <string>
#include <string_view>

#include "core/Bitmap.h"
#include "core/Color.h"

namespace tessarin {

QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

/// For menus and buttons: an ampersand in a name is shown, not taken as an Alt key.
QString WithoutAltKeys(std::string_view text);
/// For title bars, where "[*]" would stand for "modified".
QString AsTitle(std::string_view text);
/// For tooltips, where a name with angle brackets would be taken as marked up text. Lines stay
/// lines.
QString AsToolTip(const QString& text);

QColor ToQt(Rgb color);
Rgb FromQt(const QColor& color);

/// The image shares the picture's memory and must not outlive it.
QImage ViewOf(const Bitmap& picture);
Bitmap FromQt(const QImage& image);

}  // namespace tessarin
