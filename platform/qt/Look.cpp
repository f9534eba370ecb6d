#include "platform/qt/Look.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>

#include "platform/qt/Conversions.h"
#include "platform/qt/TitleStyle.h"

namespace tessarin {
namespace {

constexpr Rgb kText = Grey(25);
constexpr Rgb kFaintText = Grey(130);
constexpr Rgb kSurface = Grey(236);  // menus, dialogs, status bar
constexpr Rgb kHighlight{52, 101, 164};
constexpr int kPanelLetters = 11;  // pixels

}  // namespace

QPalette PaletteOn(Rgb background) {
    QPalette palette(ToQt(kButtonColor), ToQt(background));
    palette.setColor(QPalette::WindowText, ToQt(kText));
    palette.setColor(QPalette::Text, ToQt(kText));
    palette.setColor(QPalette::ButtonText, ToQt(kText));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, ToQt(Grey(245)));
    palette.setColor(QPalette::PlaceholderText, ToQt(kFaintText));
    palette.setColor(QPalette::Highlight, ToQt(kHighlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, ToQt(kHighlight));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::ToolTipText, ToQt(kText));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, ToQt(kFaintText));
    }
    return palette;
}

void SetLook() {
    QApplication::setStyle(new TitleStyle);
    QApplication::setPalette(PaletteOn(kSurface));
    QApplication::setWindowIcon(ProgramIcon());
}

QIcon ProgramIcon() {
    constexpr int kSize = 64;
    QPixmap picture(kSize, kSize);
    picture.fill(ToQt(kBackgroundColor));
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::white, 5));
    painter.drawLine(12, 8, 12, 52);
    painter.drawLine(12, 52, 58, 52);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(230, 70, 60));
    painter.drawEllipse(QPoint(27, 37), 8, 8);
    painter.setBrush(QColor(80, 160, 240));
    painter.drawEllipse(QPoint(44, 21), 11, 11);
    return {picture};
}

QFont PanelFont() {
    QFont font = QApplication::font();
    font.setPixelSize(kPanelLetters);
    return font;
}

QString PanelButtonStyle() {
    return QStringLiteral(
               "QPushButton { background: %1; color: %2; border: 1px solid #8a8a8a;"
               " border-radius: 2px; }"
               "QPushButton:hover { border-color: #3465a4; }"
               "QPushButton:pressed { background: #bdbdbd; }"
               "QPushButton:disabled { color: %3; border-color: #b0b0b0; }")
        .arg(ToQt(kButtonColor).name(), ToQt(kText).name(), ToQt(kFaintText).name());
}

}  // namespace tessarin
