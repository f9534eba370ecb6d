// One page on the desktop's printers, or in a PDF file.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <QWidget>
#include <memory>

#include "platform/Services.h"

namespace tessarin {

class QtPrinter : public Printer {
  public:
    /// Asks in front of that widget.
    explicit QtPrinter(QWidget& parent) : parent_(&parent) {}
    /// Prints to that file without asking; with an empty path there is no printer to choose.
    explicit QtPrinter(std::string path) : path_(std::move(path)) {}

    bool Choose() override;
    void PaintPicture(const Bitmap& picture, double x, double y, double width,
                      double height) override;
    void EndDoc() override;

  private:
    QWidget* parent_ = nullptr;
    std::string path_;
    std::unique_ptr<QPrinter> printer_;
    QPainter painter_;  // active while a page is open
};

}  // namespace tessarin
