// The About box: white lines on the program's own colour, and a button that closes it.
#pragma once

#include <QDialog>
#include <span>
#include <string>

namespace tessarin {

class AboutBox : public QDialog {
  public:
    AboutBox(QWidget* parent, std::span<const std::string> lines);

  protected:
    void showEvent(QShowEvent* event) override;
};

}  // namespace tessarin
