// The child window in which tools are written, run and stopped.
#pragma once

#include <QPointer>

#include "platform/ToolForm.h"
#include "platform/qt/ChildFrame.h"
#include "platform/qt/ToolPane.h"

namespace tessarin {

class QtToolForm : public ToolForm, private ChildEvents {
  public:
    QtToolForm(QMdiArea& area, ActiveChild& active, ToolFormEvents& events);
    ~QtToolForm() override;
    QtToolForm(const QtToolForm&) = delete;
    QtToolForm& operator=(const QtToolForm&) = delete;

    void ShowSmall() override;
    void ShowFull() override;
    void Hide() override { frame_.Hide(); }
    void SetText(std::string_view text) override;
    std::string Text() const override;
    std::string SelectedText() const override;
    void SetVariables(std::string_view text) override;
    void SetExecuteCaption(std::string_view caption) override;
    void SetCursorPlace(std::string_view text) override;

  private:
    void Activated() override { events_.Form_Activate(); }
    void KeyDown(int /*keyCode*/) override {}
    void KeyUp(int /*keyCode*/) override {}
    void Closing() override { events_.Form_QueryUnload(); }

    void SetOuterSize(QSize pixels);

    ToolFormEvents& events_;
    QPointer<QMdiArea> area_;
    QPointer<ToolPane> pane_;  // the frame's
    ChildFrame frame_;
    bool placed_ = false;
};

}  // namespace tessarin
