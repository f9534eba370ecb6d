// A label of one line that cuts its text to its width and tells the whole in a tooltip.
#pragma once

#include <QLabel>

namespace tessarin {

class ElidedLabel : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void SetFullText(const QString& text);
    const QString& FullText() const { return full_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Cut();

    QString full_;
};

}  // namespace tessarin
