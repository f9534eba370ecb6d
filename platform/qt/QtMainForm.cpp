#include "platform/qt/QtMainForm.h"

#include <QScreen>

#include "platform/qt/AboutBox.h"
#include "platform/qt/Conversions.h"
#include "platform/qt/QtForm.h"
#include "platform/qt/QtKuva.h"

namespace tessarin {
namespace {

constexpr QSize kFirstSize{1200, 800};
constexpr QSize kDesktopMargin{20, 60};  // room for the window manager's frame

}  // namespace

QtMainForm::QtMainForm(const QtEventLoop& loop, bool headless, bool unseen)
    : headless_(headless),
      unseen_(unseen),
      window_(std::make_unique<MainWindow>(relay_, loop)),
      menus_(std::make_unique<MenuBar>(
          *window_->menuBar(), [this](const std::string& command) { relay_.Command(command); })),
      active_(std::make_unique<ActiveChild>(window_->Area())),
      input_(std::make_unique<ChildInput>(*active_)) {
    const QSize room = window_->screen()->availableSize() - kDesktopMargin;
    window_->resize(headless ? kFirstSize : kFirstSize.boundedTo(room));
    window_->setUpdatesEnabled(!unseen);
}

void QtMainForm::SetTitle(std::string_view title) {
    window_->setWindowTitle(AsTitle(title));
}

void QtMainForm::Show() {
    window_->show();
}

void QtMainForm::BuildMenus(std::span<const Menu> menus) {
    menus_->Build(menus);
}

void QtMainForm::SetItemEnabled(std::string_view command, bool enabled) {
    menus_->SetEnabled(command, enabled);
}

void QtMainForm::SetItemChecked(std::string_view command, bool checked) {
    menus_->SetChecked(command, checked);
}

void QtMainForm::SetStatus(std::span<const std::string> lines, StatusKind kind) {
    QStringList shown;
    for (const std::string& line : lines) {
        shown.append(ToQt(line).simplified());
    }
    window_->Status().Show(shown, kind);
}

void QtMainForm::SetPanelWidth(Twips width) {
    window_->SetPanelWidth(PixelsFromTwips(width));
}

void QtMainForm::BuildPanel(int populations, int definitions) {
    window_->Panel().Build(populations, definitions);
}

void QtMainForm::SetPanelRow(int slot, const PanelRow& row) {
    window_->Panel().SetRow(slot, row);
}

void QtMainForm::SelectPanelRow(int slot) {
    window_->Panel().Select(slot);
}

void QtMainForm::SetPanelButtonEnabled(PanelButton button, bool enabled) {
    window_->Panel().SetButtonEnabled(button, enabled);
}

void QtMainForm::SetPanelButtonDown(PanelButton button, bool down) {
    window_->Panel().SetButtonDown(button, down);
}

std::unique_ptr<Form> QtMainForm::MakeChild(FormEvents& events) {
    return std::make_unique<QtForm>(window_->Area(), *active_, events);
}

std::unique_ptr<Kuva> QtMainForm::MakeSurface() {
    auto surface = std::make_unique<QtKuva>();
    surface->SetRatio(window_->devicePixelRatioF());
    return surface;
}

void QtMainForm::ShowAbout(std::span<const std::string> lines) {
    if (!headless_) {
        AboutBox(window_.get(), lines).exec();
    }
}

Bitmap QtMainForm::Snapshot() {
    window_->setUpdatesEnabled(true);
    const QImage picture = window_->grab().toImage();
    window_->setUpdatesEnabled(!unseen_);
    return FromQt(picture);
}

}  // namespace tessarin
