#include "platform/qt/QtControls.h"

#include <QColor>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <algorithm>

#include "platform/qt/Conversions.h"
#include "platform/qt/GridWidget.h"
#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

constexpr int kTextLetters = 13;  // pixels
constexpr int kTabCharacters = 4;
constexpr QColor kMarkedLine(255, 200, 190);

// Calls a receiver that may go, and the control with it, during the call.
template <class... Told>
void Tell(const std::function<void(Told...)>& receiver, Told... told) {
    const auto kept = receiver;
    if (kept) {
        kept(told...);
    }
}

/// What all of them do with their widget, which is the content's and may go before them.
template <class Kind, class Widget>
class QtControl : public Kind {
  public:
    explicit QtControl(Widget* shown) : shown_(shown) {}
    ~QtControl() override {
        if (shown_) {
            // The widget may be what called here.
            QObject::disconnect(shown_, nullptr, nullptr, nullptr);
            shown_->hide();
            shown_->deleteLater();
        }
    }
    void SetPlace(const PixelBox& place) override {
        if (shown_) {
            shown_->setGeometry(place.left, place.top, place.width, place.height);
        }
    }
    void SetVisible(bool visible) override {
        if (shown_) {
            shown_->setVisible(visible);
        }
    }
    void SetEnabled(bool enabled) override {
        if (shown_) {
            shown_->setEnabled(enabled);
        }
    }
    Widget* Shown() const { return shown_; }

  protected:
    QPointer<Widget> shown_;
};

class QtButton : public QtControl<Button, QPushButton> {
  public:
    QtButton(QWidget* parent, const ControlSpec& spec)
        : QtControl(new QPushButton(ToQt(spec.caption), parent)) {
        shown_->setStyleSheet(PanelButtonStyle());
        QObject::connect(shown_, &QPushButton::clicked, shown_, [this] { Tell(onClick); });
    }
    void SetCaption(std::string_view caption) override {
        if (shown_) {
            shown_->setText(ToQt(caption));
        }
    }
};

class QtLabel : public QtControl<Label, QLabel> {
  public:
    QtLabel(QWidget* parent, const ControlSpec& spec)
        : QtControl(new QLabel(ToQt(spec.caption), parent)) {
        shown_->setTextFormat(Qt::PlainText);
    }
    void SetText(std::string_view text) override {
        if (shown_) {
            shown_->setText(ToQt(text));
        }
    }
};

class QtTextField : public QtControl<TextField, QLineEdit> {
  public:
    QtTextField(QWidget* parent, const ControlSpec& spec) : QtControl(new QLineEdit(parent)) {
        shown_->setReadOnly(spec.readOnly);
        shown_->setTextMargins(2, -2, 2, -2);  // it may be lower than its letters ask for
        if (spec.readOnly) {
            shown_->setFocusPolicy(Qt::NoFocus);
        }
        QObject::connect(shown_, &QLineEdit::textEdited, shown_, [this] { Tell(onEdit); });
    }
    void SetText(std::string_view text) override {
        if (shown_) {
            shown_->setText(ToQt(text));
        }
    }
    std::string Text() const override { return shown_ ? FromQt(shown_->text()) : ""; }
};

class QtTextBox : public QtControl<TextBox, QPlainTextEdit> {
  public:
    QtTextBox(QWidget* parent, const ControlSpec& spec) : QtControl(new QPlainTextEdit(parent)) {
        QFont font = TypewriterFont();
        font.setPixelSize(kTextLetters);
        shown_->setFont(font);
        shown_->setLineWrapMode(QPlainTextEdit::NoWrap);
        shown_->setTabStopDistance(kTabCharacters * QFontMetrics(font).horizontalAdvance(' '));
        shown_->setReadOnly(spec.readOnly);
        shown_->setUndoRedoEnabled(!spec.readOnly);
        QObject::connect(shown_, &QPlainTextEdit::cursorPositionChanged, shown_,
                         [this] { CursorMoved(); });
        QObject::connect(shown_, &QPlainTextEdit::textChanged, shown_, [this] { TextChanged(); });
    }
    void SetText(std::string_view text) override;
    std::string Text() const override { return shown_ ? FromQt(shown_->toPlainText()) : ""; }
    std::string SelectedText() const override {
        return shown_ ? FromQt(shown_->textCursor().selection().toPlainText()) : "";
    }
    void SetFocus() override {
        if (shown_) {
            shown_->setFocus();
        }
    }
    void GoToRow(int row) override;

  private:
    void CursorMoved();
    void TextChanged();

    bool setting_ = false;  // the program changes the text
    int marked_ = 0;        // the line that is marked, from 1; 0 for none
};

void QtTextBox::GoToRow(int row) {
    if (!shown_) {
        return;
    }
    const int last = shown_->document()->blockCount();
    marked_ = std::clamp(row, 1, last);
    const QTextCursor cursor(shown_->document()->findBlockByNumber(marked_ - 1));
    QTextEdit::ExtraSelection line;
    line.cursor = cursor;
    line.format.setBackground(kMarkedLine);
    line.format.setForeground(QColor(Qt::black));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    shown_->setExtraSelections({line});
    shown_->setTextCursor(cursor);
    shown_->ensureCursorVisible();
}

void QtTextBox::CursorMoved() {
    const int row = shown_->textCursor().blockNumber() + 1;
    if (row != marked_) {
        marked_ = 0;
        shown_->setExtraSelections({});
    }
    Tell(onRow, row);
}

void QtTextBox::TextChanged() {
    marked_ = 0;
    shown_->setExtraSelections({});
    if (!setting_) {
        Tell(onEdit);
    }
}

void QtTextBox::SetText(std::string_view text) {
    if (!shown_) {
        return;
    }
    setting_ = true;
    if (shown_->isReadOnly()) {
        // It may change at each line of a tool: who reads on stays at his place.
        QScrollBar& bar = *shown_->verticalScrollBar();
        const int place = bar.value();
        shown_->setPlainText(ToQt(text));
        bar.setValue(place);
    } else {
        // Not setPlainText, after which the user could not take it back.
        QTextCursor cursor(shown_->document());
        cursor.select(QTextCursor::Document);
        cursor.insertText(ToQt(text));
    }
    setting_ = false;
}

class QtTable : public QtControl<Table, GridWidget> {
  public:
    explicit QtTable(QWidget* parent) : QtControl(new GridWidget(parent)) {
        shown_->onRightPress = [this] { Tell(onRightPress); };
        shown_->onColumnWidth = [this] { Tell(onColumnWidth); };
    }
    ~QtTable() override {
        if (shown_) {
            shown_->onRightPress = nullptr;
            shown_->onColumnWidth = nullptr;
        }
    }
    void SetTable(const GridTable& table) override {
        if (shown_) {
            shown_->SetCells(GridCells(table));
        }
    }
    int NeededWidth() const override { return shown_ ? shown_->Cells().Size().width() : 0; }
    int NeededHeight() const override { return shown_ ? shown_->Cells().Size().height() : 0; }
    Bitmap Picture() const override {
        return shown_ ? shown_->Cells().Picture(shown_->devicePixelRatioF()) : Bitmap{};
    }
};

}  // namespace

// What every new control has in common.
template <class Kind>
std::unique_ptr<Kind> QtControlMaker::Made(const ControlSpec& spec, std::unique_ptr<Kind> control) {
    QWidget* shown = control->Shown();
    shown->setObjectName(ToQt(spec.name));
    shown->setAccessibleName(ToQt(spec.caption));
    if (qobject_cast<QPlainTextEdit*>(shown) == nullptr) {
        shown->setFont(PanelFont());
    }
    QList<QWidget*> parts = shown->findChildren<QWidget*>();
    parts.append(shown);
    for (QWidget* part : parts) {
        part->setMouseTracking(true);
        part->setAttribute(Qt::WA_NoMousePropagation);  // the content's mouse is for the surface
        part->installEventFilter(this);
    }
    control->SetPlace(spec.place);
    shown->show();
    return control;
}

std::unique_ptr<Button> QtControlMaker::MakeButton(const ControlSpec& spec) {
    return Made(spec, std::make_unique<QtButton>(&content_, spec));
}

std::unique_ptr<Label> QtControlMaker::MakeLabel(const ControlSpec& spec) {
    return Made(spec, std::make_unique<QtLabel>(&content_, spec));
}

std::unique_ptr<TextField> QtControlMaker::MakeTextField(const ControlSpec& spec) {
    return Made(spec, std::make_unique<QtTextField>(&content_, spec));
}

std::unique_ptr<TextBox> QtControlMaker::MakeTextBox(const ControlSpec& spec) {
    return Made(spec, std::make_unique<QtTextBox>(&content_, spec));
}

std::unique_ptr<Table> QtControlMaker::MakeTable(const ControlSpec& spec) {
    return Made(spec, std::make_unique<QtTable>(&content_));
}

bool QtControlMaker::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        content_.TellMove();
    }
    return QObject::eventFilter(receiver, event);
}

}  // namespace tessarin
