#include "tools/Skripti.h"

#include "mainwindow/PaaIkkuna.h"
#include "tools/ToolRun.h"

namespace tessarin {

Skripti::Skripti(PaaIkkuna& main)
    : main_(main), form_(main.Services().mainForm.MakeToolForm(*this)) {}

Skripti::~Skripti() {
    main_.UnohdaKopioitava(this);
}

bool Skripti::AjaValikosta(const std::string& text, ToolUser& user) {
    MuutaSkriptiKoko("pieni");
    const bool ended = AjaOhjelma(text, false, user);
    if (SkriptiPieni) {
        form_->Hide();
    }
    return ended;
}

// A second run may start within a first one, as everything stays usable meanwhile; the end of the
// second then ends both.
bool Skripti::AjaOhjelma(const std::string& text, bool NaytaMuuttujat, ToolUser& user) {
    form_->SetExecuteCaption("Stop");
    ToolSurroundings surroundings{user};
    surroundings.unseen = main_.Services().unseen;
    if (NaytaMuuttujat) {
        surroundings.showVariables = [this](const std::string& list) { form_->SetVariables(list); };
    }
    surroundings.showWindow = [this] { MuutaSkriptiKoko("iso"); };
    const bool ended = ToolRun(main_, surroundings).AjaOhjelma(text);
    form_->SetExecuteCaption("Execute");
    return ended;
}

void Skripti::MuutaSkriptiKoko(std::string_view koko) {
    const bool small = koko == "pieni" || (koko != "iso" && !SkriptiPieni);
    SkriptiPieni = small;
    if (small) {
        form_->ShowSmall();
    } else {
        form_->ShowFull();
    }
}

void Skripti::Toteuta_Click() {
    if (SkriptiKaynnissa) {
        SkriptiKaynnissa = false;
        form_->SetExecuteCaption("Execute");
        return;
    }
    DialogToolUser user(main_.Services().dialogs);
    AjaOhjelma(form_->Text() + "\r\n", true, user);
}

void Skripti::Form_Activate() {
    main_.AsetaKopioitava(this);
}

void Skripti::CopyToClipboard() {
    const std::string selected = form_->SelectedText();
    main_.Services().clipboard.SetText(selected.empty() ? form_->Text() : selected);
}

void Skripti::Teksti_Row(int row) {
    form_->SetCursorPlace("Row: " + std::to_string(row));
}

void Skripti::Form_MouseMove() {
    main_.HiiriMuualla();
}

}  // namespace tessarin
