#include "platform/qt/GridWidget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

void SetRange(QScrollBar& bar, int whole, int shown) {
    bar.setPageStep(shown);
    bar.setSingleStep(kGridRowPixels);
    bar.setRange(0, std::max(0, whole - shown));
}

}  // namespace

GridWidget::GridWidget(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::ArrowCursor);  // else that of a window edge would stay
    viewport()->setMouseTracking(true);
    for (QWidget* part : {viewport(), static_cast<QWidget*>(horizontalScrollBar()),
                          static_cast<QWidget*>(verticalScrollBar())}) {
        part->setContextMenuPolicy(Qt::PreventContextMenu);
    }
}

void GridWidget::SetCells(GridCells cells) {
    cells.KeepWidths(cells_);
    cells_ = std::move(cells);
    FitScrollBars();
    viewport()->update();
}

QPoint GridWidget::Corner() const {
    return {-horizontalScrollBar()->value(), -verticalScrollBar()->value()};
}

void GridWidget::FitScrollBars() {
    // When all of it fits, both bars go at once: each of them might be there for the other only.
    const QSize whole = cells_.Size();
    const QSize room = maximumViewportSize();
    const bool fits = whole.boundedTo(room) == whole;
    const QSize shown = fits ? room : viewport()->size();
    SetRange(*horizontalScrollBar(), whole.width(), shown.width());
    SetRange(*verticalScrollBar(), whole.height(), shown.height());
}

void GridWidget::resizeEvent(QResizeEvent* /*event*/) {
    FitScrollBars();
}

bool GridWidget::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QAbstractScrollArea::viewportEvent(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), AsToolTip(cells_.CutTextAt(help.pos() - Corner())),
                       viewport());
    return true;
}

void GridWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().window());
    painter.translate(Corner());
    cells_.Paint(painter, event->rect().translated(-Corner()));
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const int column = cells_.LineAt(event->pos() - Corner());
        hold_ = {column, event->pos().x(), column < 0 ? 0 : cells_.ColumnWidth(column)};
    } else if (event->button() == Qt::RightButton) {
        // Qt sends another event after a right press, to a widget that may be gone when a pop-up
        // menu was waited for in between.
        QTimer::singleShot(0, this, [this] {
            const auto told = onRightPress;
            if (told) {
                told();
            }
        });
    }
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        LetGo();  // the button may have come up elsewhere
        const bool line = cells_.LineAt(event->pos() - Corner()) >= 0;
        viewport()->setCursor(line ? Qt::SplitHCursor : Qt::ArrowCursor);
    } else if (hold_.column >= 0 && hold_.column < cells_.Cols()) {
        DrawLine(event->pos().x());
    }
}

// From where it was taken hold of, not from the corner, which moves when the table gets narrower.
void GridWidget::DrawLine(int mouse) {
    cells_.SetColumnWidth(hold_.column, hold_.width + mouse - hold_.mouse);
    FitScrollBars();
    viewport()->update();
}

void GridWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        LetGo();
    }
}

void GridWidget::LetGo() {
    const Hold held = std::exchange(hold_, Hold());
    if (held.column < 0 || held.column >= cells_.Cols() ||
        cells_.ColumnWidth(held.column) == held.width) {
        return;
    }
    const auto told = onColumnWidth;
    if (told) {
        told();
    }
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

}  // namespace tessarin
