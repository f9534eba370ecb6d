#include "platform/qt/QtForm.h"

namespace tessarin {

QtForm::QtForm(QMdiArea& area, ActiveChild& active, FormEvents& events)
    : events_(events),
      picture_(new KuvaWidget(kuva_, events)),
      controls_(*picture_),
      frame_(area, active, picture_, *this) {}

QtForm::~QtForm() {
    if (picture_) {
        picture_->Detach();
    }
}

}  // namespace tessarin
