// The status bar's content: one line of text, a sign before a warning, and the way to all lines.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QWidget>

#include "platform/MainForm.h"
#include "platform/qt/ElidedLabel.h"

namespace tessarin {

class StatusLine : public QWidget {
  public:
    StatusLine();

    /// Shows the last of the lines, and how many there are; a click or the tool tip shows all.
    void Show(const QStringList& lines, StatusKind kind);

    const ElidedLabel& Text() const { return *text_; }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void ShowAll();

    QLabel* sign_;
    ElidedLabel* text_;
    QPushButton* all_;
    QStringList lines_;
};

}  // namespace tessarin
