// The frame of a child window: title bar, edges, and the content inside.
#pragma once

#include <QMdiSubWindow>

#include "platform/Form.h"

namespace tessarin {

/// What a child window hears, whatever it shows. Its form passes on what its receiver wants.
class ChildEvents {
  public:
    virtual ~ChildEvents() = default;

    virtual void Activated() = 0;
    virtual void KeyDown(const KeyEvent& key) = 0;
    virtual void KeyUp(const KeyEvent& key) = 0;
    /// The receiver may destroy the form, and itself, during the call.
    virtual void Closing() = 0;
};

/// Belongs to the area that it stands in; a `ChildFrame` steers it and detaches when it goes.
class ChildWindow : public QMdiSubWindow {
  public:
    /// Takes over the content.
    ChildWindow(QWidget* content, ChildEvents& events);

    /// Who hears of this window; nullptr once it is detached.
    ChildEvents* Events() const { return events_; }
    void Detach() { events_ = nullptr; }

    QSize minimumSizeHint() const override;

    /// The title as the logic gave it. Its bar shows what has room there, its tool tip all of it.
    void SetTitle(std::string_view title);
    const QString& WholeTitle() const { return title_; }

    /// Whether it has its own size and place now: it is neither minimised nor fills the area.
    bool HasOwnSize() const { return !isMinimized() && !isMaximized(); }
    /// Its own size and place, which it goes back to from being minimised or filling the area.
    QRect OwnGeometry() const { return HasOwnSize() ? geometry() : own_; }

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void KeepGeometry();
    bool TitleIsCutAt(QPoint place) const;

    ChildEvents* events_;
    QString title_;
    QRect own_;
};

}  // namespace tessarin
