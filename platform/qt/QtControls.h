// Controls of a form as widgets in its content.
#pragma once

#include <QObject>

#include "platform/Controls.h"
#include "platform/qt/KuvaWidget.h"

namespace tessarin {

/// Makes widgets that are children of the content, and tells it of mouse moves over them.
class QtControlMaker : public QObject, public ControlMaker {
  public:
    explicit QtControlMaker(KuvaWidget& content) : content_(content) {}

    std::unique_ptr<Button> MakeButton(const ControlSpec& spec) override;
    std::unique_ptr<Label> MakeLabel(const ControlSpec& spec) override;
    std::unique_ptr<TextField> MakeTextField(const ControlSpec& spec) override;
    std::unique_ptr<TextBox> MakeTextBox(const ControlSpec& spec) override;
    std::unique_ptr<Table> MakeTable(const ControlSpec& spec) override;

    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    template <class Kind>
    std::unique_ptr<Kind> Made(const ControlSpec& spec, std::unique_ptr<Kind> control);

    KuvaWidget& content_;
};

}  // namespace tessarin
