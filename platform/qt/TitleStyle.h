// The style of the whole program: the toolkit's own, with titles of child windows cut in the
// middle.
#pragma once

#include <QFontMetrics>
#include <QProxyStyle>

namespace tessarin {

/// The title as far as it fits, in pixels of these letters: what kind of window it is and the tail
/// of the file's name, which tells tubes of a series apart, stay legible for as long as they can.
QString ShortTitle(const QString& whole, const QFontMetrics& letters, int width);

/// The width that the style leaves a title in the part of a title bar that is for it, in pixels.
int TitleWidth(const QRect& label);

class TitleStyle : public QProxyStyle {
  public:
    TitleStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

}  // namespace tessarin
