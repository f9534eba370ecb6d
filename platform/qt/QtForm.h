// A child window: a picture surface, and controls beside or above it.
#pragma once

#include <QPointer>

#include "platform/Form.h"
#include "platform/qt/ChildFrame.h"
#include "platform/qt/KuvaWidget.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtKuva.h"

namespace tessarin {

class QtForm : public Form, private ChildEvents {
  public:
    QtForm(ChildArea& area, ActiveChild& active, FormEvents& events);
    ~QtForm() override;
    QtForm(const QtForm&) = delete;
    QtForm& operator=(const QtForm&) = delete;

    void SetCaption(std::string_view caption) override { frame_.SetCaption(caption); }
    void SetOuterSize(Twips width, Twips height) override;
    Twips OuterWidth() const override { return frame_.OuterWidth(); }
    Twips OuterHeight() const override { return frame_.OuterHeight(); }
    bool HasOwnSize() const override { return frame_.HasOwnSize(); }
    void SetResizable(bool resizable) override { frame_.SetResizable(resizable); }
    Twips Left() const override { return frame_.Left(); }
    Twips Top() const override { return frame_.Top(); }
    void SetPlace(Twips left, Twips top) override { frame_.SetPlace(left, top); }
    int AreaWidth() const override { return frame_.AreaSize().width(); }
    int AreaHeight() const override { return frame_.AreaSize().height(); }
    std::vector<PixelBox> Neighbours() const override { return frame_.Neighbours(); }
    int ScaleWidth() const override { return frame_.ClientSize().width(); }
    int ScaleHeight() const override { return frame_.ClientSize().height(); }
    void Show() override;
    void ShowBeside() override;
    void Hide() override { frame_.Hide(); }
    Kuva& Surface() override { return kuva_; }
    ControlMaker& Controls() override { return controls_; }

  private:
    void Activated() override { events_.Form_Activate(); }
    void KeyDown(const KeyEvent& key) override { events_.Form_KeyDown(key); }
    void KeyUp(const KeyEvent& key) override { events_.Form_KeyUp(key); }
    void Closing() override { events_.Form_QueryUnload(); }

    FormEvents& events_;
    QtKuva kuva_;
    QPointer<KuvaWidget> picture_;  // the frame's
    QtControlMaker controls_;
    ChildFrame frame_;
};

}  // namespace tessarin
