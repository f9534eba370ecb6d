#include "platform/qt/TitleStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionTitleBar>

#include "platform/qt/ChildWindow.h"

namespace tessarin {
namespace {

constexpr qsizetype kShortestTail = 8;  // with the dots in front
constexpr int kTitleMargin = 14;        // what the toolkit's style keeps free beside a title

}  // namespace

QString ShortTitle(const QString& whole, const QFontMetrics& letters, int width) {
    if (letters.horizontalAdvance(whole) <= width) {
        return whole;
    }
    for (const QLatin1String mark : {QLatin1String(" - "), QLatin1String(": ")}) {
        const qsizetype at = whole.indexOf(mark);
        if (at < 0) {
            continue;
        }
        const qsizetype behind = at + mark.size();
        const QString head = whole.left(behind);
        const QString tail = letters.elidedText(whole.mid(behind), Qt::ElideLeft,
                                                width - letters.horizontalAdvance(head));
        if (tail.size() >= kShortestTail) {
            return head + tail;
        }
    }
    return letters.elidedText(whole, Qt::ElideMiddle, width);
}

int TitleWidth(const QRect& label) {
    return label.width() - kTitleMargin;
}

TitleStyle::TitleStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void TitleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const auto* child = dynamic_cast<const ChildWindow*>(widget);
    if (control != CC_TitleBar || bar == nullptr || child == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionTitleBar shown(*bar);
    const QRect room = subControlRect(CC_TitleBar, bar, SC_TitleBarLabel, widget);
    // With the letters that it is drawn in: the style cuts the end of what is too long for it.
    shown.text = ShortTitle(child->WholeTitle(), painter->fontMetrics(), TitleWidth(room));
    QProxyStyle::drawComplexControl(control, &shown, painter, widget);
}

}  // namespace tessarin
