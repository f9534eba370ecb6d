// The three things in a row of the side panel: option, colour box and label.
#pragma once

#include <QLabel>
#include <QRadioButton>
#include <functional>

#include "core/Color.h"

namespace tessarin {

/// An option whose caption is cut to its width and stands whole in the tooltip.
class PanelOption : public QRadioButton {
  public:
    explicit PanelOption(QWidget* parent) : QRadioButton(parent) {}
    void SetCaption(std::string_view caption);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Cut();

    QString full_;
};

class ColorBox : public QWidget {
  public:
    /// `clicked` is told whether it was the second click of two.
    ColorBox(QWidget* parent, std::function<void(bool)> clicked);
    void SetColor(Rgb color);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    std::function<void(bool)> clicked_;
    Rgb color_;
    bool down_ = false;
};

class SlotLabel : public QLabel {
  public:
    SlotLabel(QWidget* parent, std::function<void()> doubleClicked);

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    std::function<void()> doubleClicked_;
};

}  // namespace tessarin
