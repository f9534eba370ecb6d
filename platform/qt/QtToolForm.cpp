#include "platform/qt/QtToolForm.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <algorithm>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

constexpr QSize kSmallSize{PixelsFromTwips({1800}), PixelsFromTwips({900})};

}  // namespace

QtToolForm::QtToolForm(QMdiArea& area, ActiveChild& active, ToolFormEvents& events)
    : events_(events),
      area_(&area),
      pane_(new ToolPane(events)),
      frame_(area, active, pane_, *this) {
    frame_.SetCaption("Tool running");
    frame_.Hide();
}

QtToolForm::~QtToolForm() {
    if (pane_) {
        pane_->Detach();
    }
}

void QtToolForm::ShowSmall() {
    if (pane_) {
        pane_->SetSmall(true);
        SetOuterSize(kSmallSize);
        frame_.ShowBeside();
    }
}

void QtToolForm::ShowFull() {
    if (!pane_) {
        return;
    }
    pane_->SetSmall(false);
    SetOuterSize(ToolPane::FullSize());
    // Title and edges come on top.
    SetOuterSize(ToolPane::FullSize() * 2 - frame_.ClientSize());
    frame_.Show();
    pane_->Text().setFocus();
}

// Keeps the lower left corner where it is, and the whole window to be seen. At first it stands in
// the lower left corner of the area, where it hides least of the plots.
void QtToolForm::SetOuterSize(QSize pixels) {
    const int bottom = PixelsFromTwips(frame_.Top()) + PixelsFromTwips(frame_.OuterHeight());
    frame_.SetOuterSize(TwipsFromPixels(pixels.width()), TwipsFromPixels(pixels.height()));
    if (!area_) {
        return;
    }
    const QSize room = (area_->viewport()->size() - pixels).expandedTo({0, 0});
    const int left = placed_ ? PixelsFromTwips(frame_.Left()) : 0;
    const int top = placed_ ? bottom - pixels.height() : room.height();
    frame_.SetPlace(TwipsFromPixels(std::clamp(left, 0, room.width())),
                    TwipsFromPixels(std::clamp(top, 0, room.height())));
    placed_ = true;
}

void QtToolForm::SetText(std::string_view text) {
    if (pane_) {
        // Not setPlainText, after which the user could not take it back.
        QTextCursor cursor(pane_->Text().document());
        cursor.select(QTextCursor::Document);
        cursor.insertText(ToQt(text));
    }
}

std::string QtToolForm::Text() const {
    return pane_ ? pane_->Text().toPlainText().toStdString() : "";
}

std::string QtToolForm::SelectedText() const {
    return pane_ ? pane_->Text().textCursor().selection().toPlainText().toStdString() : "";
}

void QtToolForm::SetVariables(std::string_view text) {
    if (pane_) {
        // Each line of a tool comes here: who reads on stays at his place.
        QScrollBar& bar = *pane_->Variables().verticalScrollBar();
        const int place = bar.value();
        pane_->Variables().setPlainText(ToQt(text));
        bar.setValue(place);
    }
}

void QtToolForm::SetExecuteCaption(std::string_view caption) {
    if (pane_) {
        pane_->Execute().setText(ToQt(caption));
    }
}

void QtToolForm::SetCursorPlace(std::string_view text) {
    if (pane_) {
        pane_->CursorPlace().setText(ToQt(text));
    }
}

}  // namespace tessarin
