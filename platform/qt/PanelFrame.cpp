#include "platform/qt/PanelFrame.h"

#include <QPainter>
#include <QSignalBlocker>

#include "platform/Twips.h"
#include "platform/qt/Conversions.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

// All in pixels, but for the places of the rows, which are in twips.
constexpr int kWidth = 240;  // leaves room for a scroll bar beside it
constexpr int kTitleHeight = 14;
constexpr int kButtonTop = 16;
constexpr int kButtonHeight = 21;
constexpr int kButtonGap = 5;
constexpr int kMargin = 8;

constexpr int kRowStep = 220;
constexpr int kBoxTop = 400;
constexpr int kLabelTop = 380;
constexpr int kOptionLeft = 600;
constexpr int kBoxLeft = 300;
constexpr int kBoxSize = 180;
constexpr int kLabelLeft = 120;
constexpr int kRowHeight = 15;

constexpr PanelButtonText kPopulationButtons[] = {
    {PanelButton::kLuoUusiRegion, "LuoUusiRegion", "Create"},
    {PanelButton::kPoistaRegion, "PoistaRegion", "Delete"},
    {PanelButton::kMuutaRegioninNimi, "MuutaRegioninNimi", "Rename"},
};
constexpr PanelButtonText kDefinitionButtons[] = {
    {PanelButton::kLuoUusiMaaritelma, "LuoUusiMaaritelma", "Define"},
    {PanelButton::kPoistaMaaritelma, "PoistaMaaritelma", "Delete"},
};

int Pixels(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

QString NameOf(const char* name, int slot) {
    return QString::fromLatin1(name) + QString::number(slot);
}

}  // namespace

const PanelFrameText kPopulationFrame{"Populations", "RegionValitsin", "RegionVari",
                                      "LapinakyvaValitsin", kPopulationButtons};
const PanelFrameText kDefinitionFrame{"Definitions", "DefValitsin", "DefVari",
                                      "DefLapinakyvaValitsin", kDefinitionButtons};

PanelFrame::PanelFrame(const PanelFrameText& text, int firstSlot, int count, MainFormEvents& events)
    : events_(events), title_(QString::fromLatin1(text.title)), firstSlot_(firstSlot) {
    setFont(PanelFont());
    AddButtons(text.buttons);
    for (int slot = firstSlot; slot < firstSlot + count; ++slot) {
        AddRow(text, slot);
    }
    setFixedSize(kWidth, Pixels(kRowStep * count + kBoxTop) + kRowHeight + kMargin);
}

void PanelFrame::AddButtons(std::span<const PanelButtonText> buttons) {
    constexpr int kButtonsAcross = 3;
    constexpr int kButtonWidth =
        (kWidth - 2 * kMargin - (kButtonsAcross - 1) * kButtonGap) / kButtonsAcross;
    int left = kMargin;
    for (const PanelButtonText& text : buttons) {
        auto* button = new QPushButton(QString::fromLatin1(text.caption), this);
        button->setObjectName(QString::fromLatin1(text.name));
        button->setStyleSheet(PanelButtonStyle());
        button->setGeometry(left, kButtonTop, kButtonWidth, kButtonHeight);
        left += kButtonWidth + kButtonGap;
        connect(button, &QPushButton::clicked, this,
                [this, which = text.button] { events_.PanelButtonPressed(which); });
        buttons_[text.button] = button;
    }
}

void PanelFrame::AddRow(const PanelFrameText& text, int slot) {
    const int step = kRowStep * (slot - firstSlot_ + 1);
    const Row row{
        new PanelOption(this),
        new ColorBox(this, [this, slot](bool twice) { events_.PanelColorClicked(slot, twice); }),
        new SlotLabel(this, [this, slot] { events_.PanelLabelDoubleClicked(slot); })};
    row.option->setObjectName(NameOf(text.option, slot));
    const int optionLeft = Pixels(kOptionLeft);
    row.option->setGeometry(optionLeft, Pixels(step + kBoxTop) - 1, kWidth - optionLeft - kMargin,
                            kRowHeight);
    row.color->setObjectName(NameOf(text.color, slot));
    row.color->setGeometry(Pixels(kBoxLeft), Pixels(step + kBoxTop), Pixels(kBoxSize),
                           Pixels(kBoxSize));
    row.label->setObjectName(NameOf(text.label, slot));
    row.label->setGeometry(Pixels(kLabelLeft), Pixels(step + kLabelTop),
                           Pixels(kBoxLeft - kLabelLeft), kRowHeight);
    connect(row.option, &QRadioButton::toggled, this, [this, slot](bool on) {
        if (on) {
            events_.PanelRowSelected(slot);
        }
    });
    rows_.push_back(row);
}

void PanelFrame::SetRow(int slot, const PanelRow& row) {
    const Row& shown = RowOf(slot);
    shown.option->SetCaption(row.caption);
    shown.color->SetColor(row.color);
    shown.label->setText(ToQt(row.label));
}

void PanelFrame::Select(int slot) {
    PanelOption* option = RowOf(slot).option;
    const QSignalBlocker silence(option);
    option->setChecked(true);
}

void PanelFrame::SetButtonEnabled(PanelButton button, bool enabled) {
    const auto found = buttons_.find(button);
    if (found != buttons_.end()) {
        found->second->setEnabled(enabled);
    }
}

void PanelFrame::SetButtonDown(PanelButton button, bool down) {
    const auto found = buttons_.find(button);
    if (found != buttons_.end()) {
        found->second->setCheckable(down);
        found->second->setChecked(down);
    }
}

void PanelFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(ToQt(Grey(150)));
    painter.drawRect(0, kTitleHeight / 2, width() - 1, height() - kTitleHeight / 2 - 1);
    const int length = fontMetrics().horizontalAdvance(title_);
    painter.fillRect(kMargin, 0, length + kMargin, kTitleHeight, ToQt(kPanelColor));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(kMargin, 0, length + kMargin, kTitleHeight), Qt::AlignCenter, title_);
}

}  // namespace tessarin
