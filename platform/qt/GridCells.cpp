#include "platform/qt/GridCells.h"

#include <QFontMetrics>
#include <algorithm>
#include <utility>

#include "core/Color.h"
#include "core/Numbers.h"
#include "platform/qt/Conversions.h"
#include "platform/qt/Look.h"
#include "platform/raster/Layer.h"

namespace tessarin {
namespace {

constexpr Rgb kLineColor = Grey(200);
constexpr Rgb kLetterColor = Grey(25);
constexpr int kPadding = 3;         // between a grid line and the text
constexpr int kWidest = 8192;       // of one column, whatever is asked for
constexpr int kNarrowest = 16;      // of a column that the user has hold of
constexpr int kHold = 3;            // how near to a line it can be taken hold of
constexpr int kStripHeight = 8192;  // Qt paints no image beyond 32767 pixels

// Absolute, for names that are written from right to left.
constexpr int kToTheLeft =
    Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine;
constexpr int kToTheRight =
    Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine;

bool IsNumber(std::string_view text) {
    return ParseNumber(text) || text == "NaN" || text == "Infinity" || text == "-Infinity";
}

QRect TextPlace(const SeenCell& cell) {
    return cell.place.adjusted(kPadding, 0, -kPadding, 0);
}

// The letters of a cell in one line.
QString OneLine(std::string_view text) {
    QString line = ToQt(text);
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c.isSpace(); }, QLatin1Char(' '));
    return line;
}

QString Elided(const SeenCell& cell) {
    return QFontMetrics(PanelFont())
        .elidedText(cell.text, Qt::ElideRight, std::max(0, TextPlace(cell).width()));
}

}  // namespace

GridCells::GridCells(GridTable table) : table_(std::move(table)) {
    for (const Twips width : table_.columnWidths) {
        lines_.push_back(lines_.back() + std::clamp(PixelsFromTwips(width), 0, kWidest));
    }
}

QSize GridCells::Size() const {
    if (table_.Rows() == 0 || table_.Cols() == 0) {
        return {0, 0};
    }
    return {lines_.back() + 1, table_.Rows() * kGridRowPixels + 1};
}

QRect GridCells::Between(int row, int firstColumn, int lastColumn) const {
    const auto before = static_cast<std::size_t>(firstColumn);
    const auto behind = static_cast<std::size_t>(lastColumn) + 1;
    return {QPoint(lines_[before] + 1, row * kGridRowPixels + 1),
            QPoint(lines_[behind] - 1, (row + 1) * kGridRowPixels - 1)};
}

std::vector<SeenCell> GridCells::Row(int row) const {
    const GridRow& from = table_.rows[static_cast<std::size_t>(row)];
    const std::vector<std::string>& texts = from.cells;
    const std::size_t count = std::min(texts.size(), table_.columnWidths.size());
    std::vector<SeenCell> cells;
    for (std::size_t first = 0; first < count;) {
        std::size_t next = first + 1;
        while (from.merged && next < count && texts[next] == texts[first]) {
            ++next;
        }
        // Names stand in column 0 and values of the whole file in merged rows, whatever they read.
        cells.push_back({Between(row, static_cast<int>(first), static_cast<int>(next) - 1),
                         OneLine(texts[first]),
                         first > 0 && !from.merged && IsNumber(texts[first])});
        first = next;
    }
    return cells;
}

QString GridCells::CutTextAt(QPoint place) const {
    if (!QRect(QPoint(0, 0), Size()).contains(place)) {
        return {};
    }
    for (const SeenCell& cell : Row(std::min(place.y() / kGridRowPixels, Rows() - 1))) {
        if (cell.place.contains(place) && Elided(cell) != cell.text) {
            return cell.text;
        }
    }
    return {};
}

int GridCells::LineAt(QPoint place) const {
    if (place.y() < 0 || place.y() >= Size().height()) {
        return -1;
    }
    // The last of several at one place, so that a column of no width can be drawn open.
    const std::vector<SeenCell> cells = Row(std::min(place.y() / kGridRowPixels, Rows() - 1));
    for (int column = Cols() - 1; column >= 0; --column) {
        const int line = lines_[static_cast<std::size_t>(column) + 1];
        const bool seen = std::any_of(cells.begin(), cells.end(), [line](const SeenCell& cell) {
            return cell.place.right() == line - 1;
        });
        if (seen && std::abs(place.x() - line) <= kHold) {
            return column;
        }
    }
    return -1;
}

int GridCells::ColumnWidth(int column) const {
    const auto before = static_cast<std::size_t>(column);
    return lines_[before + 1] - lines_[before];
}

void GridCells::SetColumnWidth(int column, int pixels) {
    const int width = std::clamp(pixels, kNarrowest, kWidest);
    const int more = width - ColumnWidth(column);
    for (std::size_t line = static_cast<std::size_t>(column) + 1; line < lines_.size(); ++line) {
        lines_[line] += more;
    }
    given_[column] = width;
}

// What stands on top of a column, below what is said of the whole table.
const std::string& GridCells::Head(int column) const {
    static const std::string kNone;
    const auto row = std::find_if(table_.rows.begin(), table_.rows.end(),
                                  [](const GridRow& each) { return !each.merged; });
    const auto cell = static_cast<std::size_t>(column);
    return row == table_.rows.end() || cell >= row->cells.size() ? kNone : row->cells[cell];
}

int GridCells::ColumnOf(const std::string& head) const {
    int column = Cols() - 1;
    while (column > 0 && Head(column) != head) {
        --column;
    }
    return column > 0 ? column : -1;
}

void GridCells::KeepWidths(const GridCells& before) {
    const bool same = Cols() == before.Cols();
    for (const auto& [column, width] : before.given_) {
        const int now = same || column == 0 ? column : ColumnOf(before.Head(column));
        if (now >= 0 && now < Cols()) {
            SetColumnWidth(now, width);
        }
    }
}

void GridCells::Paint(QPainter& painter, const QRect& exposed) const {
    const QRect seen = exposed.intersected(QRect(QPoint(0, 0), Size()));
    if (seen.isEmpty()) {
        return;
    }
    // What the cells leave uncovered are the lines.
    painter.fillRect(seen, ToQt(kLineColor));
    painter.setFont(PanelFont());
    painter.setPen(ToQt(kLetterColor));
    const int last = std::min(seen.bottom() / kGridRowPixels, Rows() - 1);
    for (int row = seen.top() / kGridRowPixels; row <= last; ++row) {
        for (const SeenCell& cell : Row(row)) {
            painter.fillRect(cell.place, Qt::white);
            painter.drawText(TextPlace(cell), cell.number ? kToTheRight : kToTheLeft, Elided(cell));
        }
    }
}

Bitmap GridCells::Picture(double ratio) const {
    const QSize size = Size();
    Bitmap picture{
        NearestPixel(size.width() * ratio), NearestPixel(size.height() * ratio), ratio, {}};
    for (int top = 0; top < picture.height; top += kStripHeight) {
        QImage strip(picture.width, std::min(kStripHeight, picture.height - top),
                     QImage::Format_RGB32);
        strip.setDevicePixelRatio(ratio);
        strip.fill(Qt::white);
        QPainter painter(&strip);
        painter.translate(0, -top / ratio);
        Paint(painter, painter.transform().inverted().mapRect(QRect(QPoint(0, 0), strip.size())));
        painter.end();
        const Bitmap part = FromQt(strip);
        picture.pixels.insert(picture.pixels.end(), part.pixels.begin(), part.pixels.end());
    }
    return picture;
}

}  // namespace tessarin
