// A child window of the logic, standing in the main window's area.
#pragma once

#include <QPointer>

#include "platform/Form.h"
#include "platform/qt/ActiveChild.h"
#include "platform/qt/ChildWindow.h"
#include "platform/qt/QtKuva.h"

namespace tessarin {

class QtForm : public Form {
  public:
    QtForm(QMdiArea& area, ActiveChild& active, FormEvents& events);
    ~QtForm() override;
    QtForm(const QtForm&) = delete;
    QtForm& operator=(const QtForm&) = delete;

    void SetCaption(std::string_view caption) override;
    void SetOuterSize(Twips width, Twips height) override;
    Twips OuterWidth() const override;
    Twips OuterHeight() const override;
    bool HasOwnSize() const override;
    int ScaleWidth() const override { return ClientSize().width(); }
    int ScaleHeight() const override { return ClientSize().height(); }
    void Show() override;
    void Hide() override;
    Kuva& Surface() override { return kuva_; }

  private:
    QSize ClientSize() const;

    QtKuva kuva_;
    QPointer<ChildWindow> window_;  // gone when the main window goes first
    QPointer<ActiveChild> active_;
};

}  // namespace tessarin
