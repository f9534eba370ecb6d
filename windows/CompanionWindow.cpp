#include "windows/CompanionWindow.h"

#include "mainwindow/PaaIkkuna.h"

namespace tessarin {

CompanionWindow::CompanionWindow(PaaIkkuna& main, std::string_view command,
                                 std::string_view caption)
    : main_(main), command_(command), form_(main.Services().mainForm.MakeChild(*this)) {
    form_->SetCaption(caption);
    form_->Hide();
    main_.Kasky().Lisaa({command_, [this](PaaIkkuna&) { AsetaNakyvyys(!shown_); }});
}

CompanionWindow::~CompanionWindow() {
    main_.Kasky().Poista(command_);
}

void CompanionWindow::AsetaNakyvyys(bool shown) {
    const bool changed = shown != shown_;
    shown_ = shown;
    main_.Services().mainForm.SetItemChecked(command_, shown);
    if (shown) {
        form_->Show();
    } else {
        form_->Hide();
    }
    if (changed) {
        NakyvyysMuuttui();
        main_.PaivitaKomennot();
    }
}

// There is nothing in it to copy.
void CompanionWindow::Form_Activate() {
    main_.AsetaKopioitava(nullptr);
}

void CompanionWindow::Form_MouseMove() {
    main_.HiiriMuualla();
}

}  // namespace tessarin
