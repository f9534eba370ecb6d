#include "platform/qt/SidePanel.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <algorithm>

#include "platform/Twips.h"
#include "platform/qt/Conversions.h"
#include "platform/qt/Look.h"

namespace tessarin {
namespace {

constexpr int kOpenWidth = PixelsFromTwips({4000});
constexpr int kSideMargin = 10;  // nothing but grey shows on a closed panel, which is as wide
constexpr int kLogoHeight = 40;
constexpr int kLogoLetters = 14;
constexpr int kGap = 6;

QWidget* MakeLogo() {
    auto* logo = new QLabel(QStringLiteral("Tessarin"));
    logo->setObjectName(QStringLiteral("TempLogo"));
    logo->setFixedHeight(kLogoHeight);
    logo->setIndent(kSideMargin);
    logo->setAutoFillBackground(true);
    QPalette colors = PaletteOn(kBackgroundColor);
    colors.setColor(QPalette::WindowText, ToQt(Grey(200)));
    logo->setPalette(colors);
    QFont letters = PanelFont();
    letters.setPixelSize(kLogoLetters);
    letters.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    logo->setFont(letters);
    return logo;
}

}  // namespace

SidePanel::SidePanel(MainFormEvents& events) : events_(events), scroll_(new QScrollArea(this)) {
    setObjectName(QStringLiteral("OikeaPalkki"));
    setPalette(PaletteOn(kPanelColor));
    setAutoFillBackground(true);
    auto* content = new QWidget;
    content->setFont(PanelFont());
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins(0, 0, 0, kGap);
    column_->setSpacing(kGap);
    column_->addWidget(MakeLogo());
    auto* freeze = new QCheckBox(QStringLiteral("Freeze the panel"));
    freeze->setObjectName(QStringLiteral("JaadytaNakyma"));
    connect(freeze, &QCheckBox::clicked, this, [this](bool on) { events_.FreezePanel(on); });
    auto* line = new QVBoxLayout;
    line->setContentsMargins(kSideMargin, 0, 0, 0);
    line->addWidget(freeze);
    column_->addLayout(line);
    column_->addStretch();

    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setMinimumSize(0, 0);
    WatchMouse();
}

void SidePanel::Build(int populations, int definitions) {
    delete regions_;
    delete definitions_;
    populations_ = populations;
    regions_ = new PanelFrame(kPopulationFrame, 1, populations, events_);
    definitions_ = new PanelFrame(kDefinitionFrame, populations + 1, definitions, events_);
    const int before = column_->count() - 1;  // the stretch stays last
    auto* frames = new QVBoxLayout;
    frames->setContentsMargins(kSideMargin, 0, 0, 0);
    frames->setSpacing(kGap);
    frames->addWidget(regions_);
    frames->addWidget(definitions_);
    column_->insertLayout(before, frames);
    WatchMouse();
}

void SidePanel::SetButtonEnabled(PanelButton button, bool enabled) {
    if (regions_ != nullptr) {
        regions_->SetButtonEnabled(button, enabled);
        definitions_->SetButtonEnabled(button, enabled);
    }
}

void SidePanel::SetButtonDown(PanelButton button, bool down) {
    if (regions_ != nullptr) {
        regions_->SetButtonDown(button, down);
        definitions_->SetButtonDown(button, down);
    }
}

void SidePanel::resizeEvent(QResizeEvent* /*event*/) {
    scroll_->setGeometry(0, 0, std::max(width(), kOpenWidth), height());
}

void SidePanel::WatchMouse() {
    setMouseTracking(true);
    removeEventFilter(this);
    installEventFilter(this);
    const QList<QWidget*> parts = findChildren<QWidget*>();
    for (QWidget* part : parts) {
        part->setMouseTracking(true);
        part->removeEventFilter(this);
        part->installEventFilter(this);
    }
}

bool SidePanel::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        events_.PanelMouseMove();
    }
    return QWidget::eventFilter(receiver, event);
}

}  // namespace tessarin
