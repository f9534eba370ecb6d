#include "platform/qt/ToolPane.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QTextBlock>
#include <algorithm>

#include "platform/Twips.h"
#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

// Left, top, width and height in twips.
constexpr QRect kText{120, 120, 6135, 4575};
constexpr QRect kExecute{120, 4800, 1455, 255};
constexpr QRect kCursorPlace{1680, 4800, 1455, 285};
constexpr QRect kClear{3240, 4800, 1455, 255};
constexpr QRect kSize{4800, 4800, 1455, 255};
constexpr QRect kVariablesLabel{120, 5160, 1335, 255};
constexpr QRect kVariables{120, 5400, 6135, 1935};
constexpr QSize kFull{6375, 7365};
constexpr int kSmallTop = 10;

constexpr int kTextLetters = 13;  // pixels
constexpr int kTabCharacters = 4;

QRect Pixels(const QRect& twips) {
    return {PixelsFromTwips({twips.left()}), PixelsFromTwips({twips.top()}),
            PixelsFromTwips({twips.width()}), PixelsFromTwips({twips.height()})};
}

}  // namespace

ToolPane::ToolPane(ToolFormEvents& events)
    : events_(&events),
      text_(MakeBox("Teksti")),
      execute_(MakeButton("Toteuta", "Execute", &ToolFormEvents::Toteuta_Click)),
      cursorPlace_(new QLineEdit(QStringLiteral("Row: 1"), this)),
      clear_(MakeButton("Tyhjenna", "Clear", &ToolFormEvents::Tyhjenna_Click)),
      size_(MakeButton("MuutaKokoa", "Minimize", &ToolFormEvents::MuutaKokoa_Click)),
      variablesLabel_(new QLabel(QStringLiteral("Variable values"), this)),
      variables_(MakeBox("Muuttujat")) {
    setFont(PanelFont());
    setCursor(Qt::ArrowCursor);  // else that of a window edge would stay
    setMouseTracking(true);
    cursorPlace_->setObjectName(QStringLiteral("KursorinPaikka"));
    cursorPlace_->setReadOnly(true);
    cursorPlace_->setFocusPolicy(Qt::NoFocus);
    cursorPlace_->setTextMargins(2, -2, 2, -2);  // the box is lower than its letters ask for
    variables_->setReadOnly(true);
    variables_->setUndoRedoEnabled(false);
    connect(text_, &QPlainTextEdit::cursorPositionChanged, this, [this] { TellRow(); });
    for (QWidget* part : findChildren<QWidget*>()) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
    SetSmall(true);
}

QPlainTextEdit* ToolPane::MakeBox(const char* name) {
    auto* box = new QPlainTextEdit(this);
    box->setObjectName(QString::fromLatin1(name));
    QFont font = TypewriterFont();
    font.setPixelSize(kTextLetters);
    box->setFont(font);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTabStopDistance(kTabCharacters * QFontMetrics(font).horizontalAdvance(' '));
    return box;
}

QPushButton* ToolPane::MakeButton(const char* name, const char* caption, Receiver clicked) {
    auto* button = new QPushButton(QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setStyleSheet(PanelButtonStyle());
    connect(button, &QPushButton::clicked, this, [this, clicked] {
        if (events_ != nullptr) {
            (events_->*clicked)();
        }
    });
    return button;
}

QSize ToolPane::FullSize() {
    return Pixels({{0, 0}, kFull}).size();
}

void ToolPane::SetSmall(bool small) {
    small_ = small;
    for (QWidget* part : std::initializer_list<QWidget*>{text_, cursorPlace_, clear_, size_,
                                                         variablesLabel_, variables_}) {
        part->setVisible(!small);
    }
    size_->setText(small ? QStringLiteral("Maximize") : QStringLiteral("Minimize"));
    Arrange();
}

// The text box takes what a larger window has to give; the rest keeps its distance from below.
void ToolPane::Arrange() {
    const QSize more = (size() - FullSize()).expandedTo({0, 0});
    QRect execute = Pixels(kExecute);
    if (small_) {
        execute.moveTop(PixelsFromTwips({kSmallTop}));
        execute_->setGeometry(execute);
        return;
    }
    text_->setGeometry(Pixels(kText).adjusted(0, 0, more.width(), more.height()));
    execute_->setGeometry(execute.translated(0, more.height()));
    cursorPlace_->setGeometry(Pixels(kCursorPlace).translated(0, more.height()));
    clear_->setGeometry(Pixels(kClear).translated(0, more.height()));
    size_->setGeometry(Pixels(kSize).translated(0, more.height()));
    variablesLabel_->setGeometry(Pixels(kVariablesLabel).translated(0, more.height()));
    variables_->setGeometry(
        Pixels(kVariables).translated(0, more.height()).adjusted(0, 0, more.width(), 0));
}

void ToolPane::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void ToolPane::TellMove() {
    if (events_ != nullptr) {
        events_->Form_MouseMove();
    }
}

void ToolPane::TellRow() {
    if (events_ != nullptr) {
        events_->Teksti_Row(text_->textCursor().blockNumber() + 1);
    }
}

bool ToolPane::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        TellMove();
    }
    return QWidget::eventFilter(receiver, event);
}

void ToolPane::mouseMoveEvent(QMouseEvent* /*event*/) {
    TellMove();
}

}  // namespace tessarin
