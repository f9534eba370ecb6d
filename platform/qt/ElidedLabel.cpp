#include "platform/qt/ElidedLabel.h"

#include "platform/qt/Conversions.h"

namespace tessarin {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    // Its text must never make the window wider.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::SetFullText(const QString& text) {
    full_ = text;
    setToolTip(AsToolTip(text));
    Cut();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Cut();
}

void ElidedLabel::Cut() {
    setText(fontMetrics().elidedText(full_.simplified(), Qt::ElideRight, contentsRect().width()));
}

}  // namespace tessarin
