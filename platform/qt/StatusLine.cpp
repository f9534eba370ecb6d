#include "platform/qt/StatusLine.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/Conversions.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

constexpr Rgb kWarning{150, 60, 0};  // dark enough to be read on the bar
constexpr int kSignSize = 16;
constexpr int kGap = 4;
constexpr int kPadding = 8;  // around the list of all lines

// A frame that goes with the next click elsewhere, above the line that it belongs to.
void PopUp(QWidget& line, const QStringList& lines) {
    auto* frame = new QFrame(&line, Qt::Popup);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* text = new QLabel(lines.join(QLatin1Char('\n')));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->addWidget(text);
    const int width = std::min(text->fontMetrics().size(0, text->text()).width() + 2,
                               line.width() - 2 * kPadding);
    text->setFixedWidth(width);
    text->setFixedHeight(text->heightForWidth(width));
    frame->adjustSize();
    frame->move(line.mapToGlobal(QPoint(0, -frame->height())));
    frame->show();
}

}  // namespace

StatusLine::StatusLine() : sign_(new QLabel), text_(new ElidedLabel), all_(new QPushButton) {
    sign_->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(kSignSize, kSignSize)));
    sign_->setObjectName(QStringLiteral("StatusSign"));
    text_->setObjectName(QStringLiteral("StatusLine"));
    all_->setObjectName(QStringLiteral("StatusAll"));
    all_->setFlat(true);
    // No higher than a line, so that the bar takes no room from the windows.
    all_->setFixedHeight(std::max(kSignSize, fontMetrics().height()));
    all_->setCursor(Qt::PointingHandCursor);
    connect(all_, &QPushButton::clicked, this, [this] { ShowAll(); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(sign_);
    row->addWidget(text_, 1);
    row->addWidget(all_);
    // As high as with all its parts, so that a remark never moves what stands above it.
    setFixedHeight(sizeHint().height());
    Show({}, StatusKind::kRemark);
}

void StatusLine::Show(const QStringList& lines, StatusKind kind) {
    lines_ = lines;
    const bool warns = kind == StatusKind::kOddFiles && !lines.isEmpty();
    sign_->setVisible(warns);
    QPalette colors = palette();
    if (warns) {
        colors.setColor(QPalette::WindowText, ToQt(kWarning));
    }
    text_->setPalette(colors);
    text_->SetFullText(lines.isEmpty() ? QString() : lines.back());
    text_->setToolTip(AsToolTip(lines.join(QLatin1Char('\n'))));
    all_->setVisible(lines.size() > 1);
    all_->setText(QStringLiteral("Show all %1").arg(lines.size()));
}

void StatusLine::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        ShowAll();
    }
}

void StatusLine::ShowAll() {
    if (!lines_.isEmpty()) {
        PopUp(*this, lines_);
    }
}

}  // namespace tessarin
