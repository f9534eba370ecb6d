// What stands in the window of tools: text box, buttons, variables; fills a child window.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/ToolForm.h"

namespace tessarin {

class ToolPane : public QWidget {
  public:
    /// The receiver is used until `Detach`.
    explicit ToolPane(ToolFormEvents& events);

    /// The receiver is going: from here on it only shows.
    void Detach() { events_ = nullptr; }

    /// Shows the execute button only, or everything.
    void SetSmall(bool small);
    /// The size that everything has its places in; in a larger one the boxes grow.
    static QSize FullSize();

    QSize minimumSizeHint() const override { return {0, 0}; }

    QPlainTextEdit& Text() { return *text_; }
    QPlainTextEdit& Variables() { return *variables_; }
    QPushButton& Execute() { return *execute_; }
    QLineEdit& CursorPlace() { return *cursorPlace_; }

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    using Receiver = void (ToolFormEvents::*)();
    QPlainTextEdit* MakeBox(const char* name);
    QPushButton* MakeButton(const char* name, const char* caption, Receiver clicked);
    void TellMove();
    void TellRow();
    void Arrange();

    ToolFormEvents* events_;
    // All of them this widget's children.
    QPlainTextEdit* text_;
    QPushButton* execute_;
    QLineEdit* cursorPlace_;
    QPushButton* clear_;
    QPushButton* size_;
    QLabel* variablesLabel_;
    QPlainTextEdit* variables_;
    bool small_ = true;
};

}  // namespace tessarin
