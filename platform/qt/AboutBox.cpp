#include "platform/qt/AboutBox.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Conversions.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

constexpr int kMargin = 32;
constexpr int kLeastWidth = 340;
constexpr double kFirstLineScale = 1.8;

}  // namespace

AboutBox::AboutBox(QWidget* parent, std::span<const std::string> lines) : QDialog(parent) {
    setObjectName(QStringLiteral("AboutLaatikko"));
    setWindowTitle(QStringLiteral("About Tessarin"));
    QPalette colors = PaletteOn(kBackgroundColor);
    colors.setColor(QPalette::WindowText, Qt::white);
    setPalette(colors);
    setMinimumWidth(kLeastWidth);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    for (const std::string& line : lines) {
        auto* label = new QLabel(ToQt(line));
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        if (&line == lines.data()) {
            QFont large = label->font();
            large.setPointSizeF(large.pointSizeF() * kFirstLineScale);
            label->setFont(large);
        }
        column->addWidget(label);
    }
    auto* close = new QPushButton(QStringLiteral("Close"));
    close->setObjectName(QStringLiteral("SuljeNappi"));
    close->setPalette(PaletteOn(kPanelColor));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column->addSpacing(kMargin / 2);
    column->addWidget(close, 0, Qt::AlignCenter);
}

void AboutBox::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    const QRect main = parentWidget()->frameGeometry();
    move(main.center() - rect().center());
}

}  // namespace tessarin
