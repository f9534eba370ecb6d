#include "platform/qt/PanelWidgets.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <utility>

#include "platform/qt/Conversions.h"

namespace tessarin {

void PanelOption::SetCaption(std::string_view caption) {
    full_ = ToQt(caption);
    setToolTip(AsToolTip(full_));
    Cut();
}

void PanelOption::resizeEvent(QResizeEvent* event) {
    QRadioButton::resizeEvent(event);
    Cut();
}

void PanelOption::Cut() {
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect room = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    const QString cut = fontMetrics().elidedText(full_.simplified(), Qt::ElideRight, room.width());
    setText(WithoutAltKeys(FromQt(cut)));
}

ColorBox::ColorBox(QWidget* parent, std::function<void(bool)> clicked)
    : QWidget(parent), clicked_(std::move(clicked)) {}

void ColorBox::SetColor(Rgb color) {
    color_ = color;
    update();
}

void ColorBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQt(Grey(90)));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), ToQt(color_));
}

void ColorBox::mousePressEvent(QMouseEvent* event) {
    down_ = event->button() == Qt::LeftButton;
}

void ColorBox::mouseReleaseEvent(QMouseEvent* event) {
    if (down_ && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        down_ = false;
        clicked_(false);
    }
}

void ColorBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        down_ = false;  // the release that follows is no click of its own
        clicked_(true);
    }
}

SlotLabel::SlotLabel(QWidget* parent, std::function<void()> doubleClicked)
    : QLabel(parent), doubleClicked_(std::move(doubleClicked)) {
    setTextFormat(Qt::PlainText);
}

void SlotLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        doubleClicked_();
    }
}

}  // namespace tessarin
