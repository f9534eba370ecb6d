// A frame of the side panel: a title, some buttons, and one row for each slot.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <map>
#include <span>
#include <vector>

#include "platform/MainForm.h"
#include "platform/qt/PanelWidgets.h"

namespace tessarin {

struct PanelButtonText {
    PanelButton button;
    const char* name;
    const char* caption;
};

/// What tells the two frames apart. The names are those of the widgets, a slot number behind.
struct PanelFrameText {
    const char* title;
    const char* option;
    const char* color;
    const char* label;
    std::span<const PanelButtonText> buttons;
};

extern const PanelFrameText kPopulationFrame;
extern const PanelFrameText kDefinitionFrame;

class PanelFrame : public QWidget {
  public:
    /// Slots `firstSlot` to `firstSlot` + `count` - 1.
    PanelFrame(const PanelFrameText& text, int firstSlot, int count, MainFormEvents& events);

    /// REQUIRES for both: the slot is one of this frame's.
    void SetRow(int slot, const PanelRow& row);
    void Select(int slot);
    /// Buttons of the other frame are passed over.
    void SetButtonEnabled(PanelButton button, bool enabled);
    void SetButtonDown(PanelButton button, bool down);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Row {
        PanelOption* option;
        ColorBox* color;
        SlotLabel* label;
    };
    void AddButtons(std::span<const PanelButtonText> buttons);
    void AddRow(const PanelFrameText& text, int slot);
    Row& RowOf(int slot) { return rows_.at(static_cast<std::size_t>(slot - firstSlot_)); }

    MainFormEvents& events_;
    QString title_;
    int firstSlot_;
    std::vector<Row> rows_;
    std::map<PanelButton, QPushButton*> buttons_;
};

}  // namespace tessarin
