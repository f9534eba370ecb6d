#include "platform/qt/QtForm.h"

namespace tessarin {
namespace {

// What the widget hears of its size for as long as it lives is the program's doing.
class ProgramResizes {
  public:
    explicit ProgramResizes(const QPointer<KuvaWidget>& content) : content_(content) { Set(true); }
    ~ProgramResizes() { Set(false); }
    ProgramResizes(const ProgramResizes&) = delete;
    ProgramResizes& operator=(const ProgramResizes&) = delete;

  private:
    void Set(bool on) {
        if (content_) {
            content_->SetProgramResizes(on);
        }
    }
    QPointer<KuvaWidget> content_;
};

}  // namespace

QtForm::QtForm(ChildArea& area, ActiveChild& active, FormEvents& events)
    : events_(events),
      picture_(new KuvaWidget(kuva_, events)),
      controls_(*picture_),
      frame_(area, active, picture_, *this) {}

QtForm::~QtForm() {
    if (picture_) {
        picture_->Detach();
    }
}

void QtForm::SetOuterSize(Twips width, Twips height) {
    const ProgramResizes program(picture_);
    frame_.SetOuterSize(width, height);
}

void QtForm::Show() {
    const ProgramResizes program(picture_);
    frame_.Show();
}

void QtForm::ShowBeside() {
    const ProgramResizes program(picture_);
    frame_.ShowBeside();
}

}  // namespace tessarin
