// The letters of a picture: text in cells of 7 pixels, across or upwards.
#pragma once

#include <QFont>
#include <QImage>
#include <string_view>

#include "core/Color.h"

namespace tessarin {

/// Letters of equal width, in Qt's own size.
QFont TypewriterFont();

/// UTF-8 text at (x, y) in pixels, `ratio` device pixels each.
struct Letters {
    std::string_view text;
    double x = 0;
    double y = 0;
    Rgb color;
    double ratio = 1;
};

/// (x, y) is the upper left corner of the first cell. Only characters on the image are drawn;
/// control characters leave their cell blank.
void PaintAcross(QImage& image, const Letters& letters);

/// The same turned a quarter to the left: (x, y) is where the text starts, at its lower end, with
/// the tops of the letters along x.
void PaintUpwards(QImage& image, const Letters& letters);

/// The same at any angle, in tenths of a degree to the left around (x, y).
void PaintTurned(QImage& image, const Letters& letters, int tenths);

}  // namespace tessarin
