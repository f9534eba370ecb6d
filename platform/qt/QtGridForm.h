// A child window that shows a table.
#pragma once

#include <QPointer>

#include "platform/GridForm.h"
#include "platform/qt/ChildFrame.h"
#include "platform/qt/GridWidget.h"

namespace tessarin {

class QtGridForm : public GridForm, private ChildEvents {
  public:
    QtGridForm(QMdiArea& area, ActiveChild& active, GridFormEvents& events);
    ~QtGridForm() override;
    QtGridForm(const QtGridForm&) = delete;
    QtGridForm& operator=(const QtGridForm&) = delete;

    void SetCaption(std::string_view caption) override { frame_.SetCaption(caption); }
    void SetTable(const GridTable& table) override;
    /// While the user has it minimised or maximised, it stays so. A table that would only just not
    /// fit gets the few pixels that it lacks. A window that nobody has placed moves into the area
    /// with its first size.
    void SetOuterSize(Twips width, Twips height) override;
    Twips Left() const override { return frame_.Left(); }
    Twips Top() const override { return frame_.Top(); }
    void SetPlace(Twips left, Twips top) override;
    void Show() override { frame_.Show(); }
    Bitmap Picture() const override;

  private:
    void Activated() override { events_.Form_Activate(); }
    void KeyDown(int /*keyCode*/) override {}
    void KeyUp(int /*keyCode*/) override {}
    void Closing() override { events_.Form_QueryUnload(); }

    QSize OuterSize() const;

    GridFormEvents& events_;
    QPointer<GridWidget> grid_;  // the frame's
    ChildFrame frame_;
    // What the last change of the size was for, and what came of it, in pixels.
    QSize asked_;
    QSize needed_;
    QSize fitted_;
    bool placed_ = false;  // somebody has said where it is to stand
};

}  // namespace tessarin
