#include "platform/qt/ChildArea.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <algorithm>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

constexpr Rgb kHintColor = Grey(130);  // quiet on the dark background
constexpr int kHintLetters = 15;       // pixels

}  // namespace

ChildArea::ChildArea() {
    setBackground(ToQt(kBackgroundColor));
    setFrameShape(QFrame::NoFrame);
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
    // A new window has a size of its own, also while another one fills the area.
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setMouseTracking(true);
}

void ChildArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    const QList<QMdiSubWindow*> children = subWindowList();
    if (std::any_of(children.begin(), children.end(),
                    [](const QMdiSubWindow* child) { return !child->isHidden(); })) {
        return;
    }
    QPainter painter(viewport());
    QFont letters = font();
    letters.setPixelSize(kHintLetters);
    painter.setFont(letters);
    painter.setPen(ToQt(kHintColor));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     QStringLiteral("Open FCS\u2026 (Ctrl+O), or drop files here"));
}

}  // namespace tessarin
