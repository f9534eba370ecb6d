#include "platform/qt/Letters.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "platform/qt/Conversions.h"
#include "platform/raster/Layer.h"

namespace tessarin {
namespace {

constexpr int kCell = 7;         // width of a character
constexpr int kLine = 14;        // height of a line
constexpr int kBaseline = 10;    // from the top of the line
constexpr int kLetterSize = 11;  // 8.25 points at 96 dots an inch

// Text that starts farther away than this is nowhere to be seen.
constexpr double kFarAway = 1e7;

// Characters `first` up to but not including `last` of a text.
struct Part {
    QList<uint> characters;
    int first = 0;
};

QFont LetterFont(double ratio) {
    QFont font = TypewriterFont();
    font.setPixelSize(std::max(1, NearestPixel(kLetterSize * ratio)));
    // Full hinting keeps the stems on whole pixels; coloured fringes would end up in saved
    // pictures.
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

bool StartsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// What of the text can be seen when its cells run from `start` to the right and the image spans
// 0 to `length`, both in pixels. A cell more at either end holds letters that reach over.
Part VisiblePart(std::string_view text, double start, double length) {
    const int first = std::max(0, static_cast<int>(std::floor(-start / kCell)) - 1);
    const int last = static_cast<int>(std::ceil((length - start) / kCell)) + 1;
    std::size_t from = text.size();
    std::size_t to = text.size();
    int character = -1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        character += StartsCharacter(text[i]) ? 1 : 0;
        if (character == first && from == text.size()) {
            from = i;
        }
        if (character == last) {
            to = i;
            break;
        }
    }
    if (last <= first || from >= to) {
        return {};
    }
    return {ToQt(text.substr(from, to - from)).toUcs4(), first};
}

// The painter's origin is the upper left corner of cell 0.
void DrawCells(QPainter& painter, const Part& part, const Letters& letters) {
    painter.setFont(LetterFont(letters.ratio));
    painter.setPen(ToQt(letters.color));
    const int baseline = NearestPixel(kBaseline * letters.ratio);
    int cell = part.first;
    for (const uint character : part.characters) {
        if (QChar::isPrint(character) && !QChar::isSpace(character)) {
            const char32_t code = character;
            painter.drawText(NearestPixel(cell * kCell * letters.ratio), baseline,
                             QString::fromUcs4(&code, 1));
        }
        ++cell;
    }
}

bool IsFarAway(const Letters& letters) {
    return !(std::abs(letters.x) < kFarAway && std::abs(letters.y) < kFarAway);
}

}  // namespace

QFont TypewriterFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                      QStringLiteral("DejaVu Sans Mono")});
    font.setStyleHint(QFont::TypeWriter);
    return font;
}

void PaintAcross(QImage& image, const Letters& letters) {
    const double ratio = letters.ratio;
    if (IsFarAway(letters) || letters.y > image.height() / ratio || letters.y + kLine + kCell < 0) {
        return;
    }
    const Part part = VisiblePart(letters.text, letters.x, image.width() / ratio);
    if (part.characters.isEmpty()) {
        return;
    }
    QPainter painter(&image);
    painter.translate(NearestPixel(letters.x * ratio), NearestPixel(letters.y * ratio));
    DrawCells(painter, part, letters);
}

void PaintUpwards(QImage& image, const Letters& letters) {
    const double ratio = letters.ratio;
    if (IsFarAway(letters) || letters.x > image.width() / ratio || letters.x + kLine + kCell < 0) {
        return;
    }
    const double height = image.height() / ratio;
    Part part = VisiblePart(letters.text, height - letters.y, height);
    if (part.characters.isEmpty()) {
        return;
    }
    // Letters turned by the painter lose their hinting, so they are written across and the pixels
    // are turned.
    const int skipped = part.first;
    part.first = 0;
    const auto count = static_cast<int>(part.characters.size());
    QImage across(NearestPixel((count + 1) * kCell * ratio), NearestPixel(kLine * ratio),
                  QImage::Format_ARGB32_Premultiplied);
    across.fill(Qt::transparent);
    {
        QPainter painter(&across);
        DrawCells(painter, part, letters);
    }
    const QImage upwards = across.transformed(QTransform().rotate(-90));
    const int start = NearestPixel(letters.y * ratio) - NearestPixel(skipped * kCell * ratio);
    QPainter painter(&image);
    painter.drawImage(NearestPixel(letters.x * ratio), start - upwards.height(), upwards);
}

void PaintTurned(QImage& image, const Letters& letters, int tenths) {
    constexpr int kMost = 1000;  // characters; a longer text has long left the image
    if (IsFarAway(letters)) {
        return;
    }
    const Part part = VisiblePart(letters.text, 0, kMost * kCell);
    if (part.characters.isEmpty()) {
        return;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(letters.x * letters.ratio, letters.y * letters.ratio);
    painter.rotate(-tenths / 10.0);
    DrawCells(painter, part, letters);
}

}  // namespace tessarin
