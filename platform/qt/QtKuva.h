// The picture surface with letters, and with a widget that shows it.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/raster/RasterKuva.h"

namespace tessarin {

/// Without a widget it is a surface in memory, such as a page or a picture to be saved.
class QtKuva : public RasterKuva {
  public:
    /// The widget is told to repaint what changes; nullptr for none.
    void SetView(QWidget* view) { view_ = view; }
    /// The view has painted everything that changed so far.
    void Painted() { waiting_ = {}; }

    void SetPlace(int left, int top) override;
    void SetSize(int width, int height) override;
    void SetVisible(bool visible) override;
    void SetBackColor(Rgb color) override;
    void SetMousePointer(MousePointer pointer) override;

    Rgb BackColor() const { return backColor_; }

  protected:
    void PaintText(Layer& layer, const TextRun& run) override;
    void Changed(const PixelRect& rect) override;

  private:
    void UpdateView();

    QPointer<QWidget> view_;
    Rgb backColor_;
    // What the view knows to be out of date. A redraw of thousands of lines tells it a few times
    // only, and in one rectangle.
    PixelRect waiting_;
};

}  // namespace tessarin
