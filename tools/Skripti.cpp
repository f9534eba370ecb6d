#include "tools/Skripti.h"

#include <algorithm>
#include <initializer_list>

#include "mainwindow/PaaIkkuna.h"
#include "tools/ToolCheck.h"
#include "tools/ToolFiles.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

// Left, top, width and height in pixels; in a larger form the boxes grow.
constexpr PixelBox kText{8, 8, 409, 305};
constexpr PixelBox kExecute{8, 320, 97, 17};
constexpr PixelBox kCursorPlace{112, 320, 97, 19};
constexpr PixelBox kClear{216, 320, 97, 17};
constexpr PixelBox kSize{320, 320, 97, 17};
constexpr PixelBox kVariablesLabel{8, 344, 89, 16};
constexpr PixelBox kOpen{216, 340, 97, 17};
constexpr PixelBox kSave{320, 340, 97, 17};
constexpr PixelBox kVariables{8, 360, 409, 129};
constexpr int kFullWidth = 425;
constexpr int kFullHeight = 491;

// The small form, its frame included, and where its one button stands.
constexpr int kSmallWidth = 120;
constexpr int kSmallHeight = 60;
constexpr PixelBox kSmallExecute{8, 0, 97, 17};

constexpr int kRest = 700;  // milliseconds after the last key
constexpr std::size_t kRowsTold = 3;

PixelBox Grown(PixelBox box, int down, int wider, int higher) {
    return {box.left, box.top + down, box.width + wider, box.height + higher};
}

}  // namespace

Skripti::Skripti(PaaIkkuna& main) : main_(main), form_(main.Services().mainForm.MakeChild(*this)) {
    form_->SetCaption("Tool running");
    form_->Surface().SetVisible(false);
    MakeControls();
    rest_ = main_.Services().timers.Make([this] { Tarkista(); });
    rest_->SetInterval(kRest);
    form_->Hide();
}

void Skripti::MakeControls() {
    ControlMaker& controls = form_->Controls();
    Teksti = controls.MakeTextBox({"Teksti", "Text of the tool"});
    Toteuta = controls.MakeButton({"Toteuta", "Execute"});
    KursorinPaikka = controls.MakeTextField({"KursorinPaikka", "Row of the cursor", {}, true});
    Tyhjenna = controls.MakeButton({"Tyhjenna", "Clear"});
    MuutaKokoa = controls.MakeButton({"MuutaKokoa", "Minimize"});
    Avaa = controls.MakeButton({"Avaa", "Open..."});
    Talleta = controls.MakeButton({"Talleta", "Save as..."});
    label_ = controls.MakeLabel({"MuuttujienOtsikko", "Variable values"});
    MuuttujienArvot = controls.MakeTextBox({"Muuttujat", "Variable values", {}, true});
    KursorinPaikka->SetText("Row: 1");
    Teksti->onRow = [this](int row) { KursorinPaikka->SetText("Row: " + std::to_string(row)); };
    Toteuta->onClick = [this] { Toteuta_Click(); };
    Teksti->onEdit = [this] { TekstiMuuttui(); };
    Tyhjenna->onClick = [this] { Tyhjenna_Click(); };
    Avaa->onClick = [this] { Avaa_Click(); };
    Talleta->onClick = [this] { Talleta_Click(); };
    MuutaKokoa->onClick = [this] { MuutaSkriptiKoko(""); };
}

// The text box takes what a larger window has to give; the rest keeps its distance from below.
void Skripti::Arrange() {
    const bool full = !SkriptiPieni;
    Toteuta->SetPlace(kSmallExecute);
    for (Control* control : std::initializer_list<Control*>{
             Teksti.get(), KursorinPaikka.get(), Tyhjenna.get(), MuutaKokoa.get(), Avaa.get(),
             Talleta.get(), label_.get(), MuuttujienArvot.get()}) {
        control->SetVisible(full);
    }
    if (!full) {
        return;
    }
    const int wider = std::max(0, form_->ScaleWidth() - kFullWidth);
    const int down = std::max(0, form_->ScaleHeight() - kFullHeight);
    Teksti->SetPlace(Grown(kText, 0, wider, down));
    Toteuta->SetPlace(Grown(kExecute, down, 0, 0));
    KursorinPaikka->SetPlace(Grown(kCursorPlace, down, 0, 0));
    Tyhjenna->SetPlace(Grown(kClear, down, 0, 0));
    MuutaKokoa->SetPlace(Grown(kSize, down, 0, 0));
    Avaa->SetPlace(Grown(kOpen, down, 0, 0));
    Talleta->SetPlace(Grown(kSave, down, 0, 0));
    label_->SetPlace(Grown(kVariablesLabel, down, 0, 0));
    MuuttujienArvot->SetPlace(Grown(kVariables, down, wider, 0));
}

// The whole window is to be seen. At first it stands in the lower left corner of the area, where
// it hides least of the plots.
void Skripti::SetOuterSize(int width, int height) {
    const int bottom = PixelsFromTwips(form_->Top()) + PixelsFromTwips(form_->OuterHeight());
    form_->SetOuterSize(TwipsFromPixels(width), TwipsFromPixels(height));
    const int roomAcross = std::max(0, form_->AreaWidth() - width);
    const int roomDown = std::max(0, form_->AreaHeight() - height);
    const int left = placed_ ? PixelsFromTwips(form_->Left()) : 0;
    const int top = placed_ ? bottom - height : roomDown;
    form_->SetPlace(TwipsFromPixels(std::clamp(left, 0, roomAcross)),
                    TwipsFromPixels(std::clamp(top, 0, roomDown)));
    placed_ = true;
}

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
    Toteuta->SetCaption("Stop");
    ToolSurroundings surroundings{user};
    surroundings.unseen = main_.Services().unseen;
    if (NaytaMuuttujat) {
        unknown_.clear();
        surroundings.showVariables = [this](const std::string& list) {
            values_ = list;
            NaytaArvot();
        };
        surroundings.showRow = [this, text](int row) {
            if (Teksti->Text() + "\r\n" == text) {  // it may have changed meanwhile
                Teksti->GoToRow(row);
                Teksti->SetFocus();
            }
        };
    }
    surroundings.showWindow = [this] { MuutaSkriptiKoko("iso"); };
    const bool ended = ToolRun(main_, surroundings).AjaOhjelma(text);
    Toteuta->SetCaption("Execute");
    return ended;
}

void Skripti::MuutaSkriptiKoko(std::string_view koko) {
    const bool small = koko == "pieni" || (koko != "iso" && !SkriptiPieni);
    SkriptiPieni = small;
    Arrange();
    if (small) {
        SetOuterSize(kSmallWidth, kSmallHeight);
        form_->ShowBeside();
        return;
    }
    SetOuterSize(kFullWidth, kFullHeight);
    // Title and edges come on top.
    SetOuterSize(2 * kFullWidth - form_->ScaleWidth(), 2 * kFullHeight - form_->ScaleHeight());
    Arrange();
    form_->Show();
    Teksti->SetFocus();
}

void Skripti::Toteuta_Click() {
    if (SkriptiKaynnissa) {
        SkriptiKaynnissa = false;
        Toteuta->SetCaption("Execute");
        return;
    }
    DialogToolUser user(main_.Services().dialogs, main_.AktiivinenKansio());
    AjaOhjelma(Teksti->Text() + "\r\n", true, user);
}

void Skripti::Tyhjenna_Click() {
    AsetaTeksti("");
}

// What was typed is asked about; what Clear takes away comes back by undoing.
void Skripti::Avaa_Click() {
    Dialogs& dialogs = main_.Services().dialogs;
    const std::string text = Teksti->Text();
    if (!text.empty() && text != saved_ &&
        !dialogs.Ask("The tool in the window has not been saved. Open another in its place?",
                     "Open tool", QuestionButtons::kOkCancel)) {
        return;
    }
    if (const auto opened = AvaaTyokalu(dialogs, TyokaluKansio(main_.Services()))) {
        path_ = opened->path;
        AsetaTeksti(opened->text);
        saved_ = Teksti->Text();
    }
}

void Skripti::Talleta_Click() {
    const std::string text = Teksti->Text();
    const std::string start = path_.empty() ? TyokaluKansio(main_.Services()) : path_;
    const std::string path = TalletaTyokalu(main_.Services().dialogs, start, text);
    if (path.empty()) {
        return;
    }
    path_ = path;
    saved_ = text;
    if (onSaved) {
        onSaved();
    }
}

void Skripti::AsetaTeksti(const std::string& text) {
    Teksti->SetText(text);
    Tarkista();
}

void Skripti::TekstiMuuttui() {
    rest_->SetEnabled(true);  // from now on, not from the key before
}

// While a tool runs, only values stand there; the timer asks again.
void Skripti::Tarkista() {
    if (SkriptiKaynnissa) {
        return;
    }
    rest_->SetEnabled(false);
    unknown_.clear();
    for (const std::string& row : TuntemattomatRivit(Teksti->Text() + "\n", kRowsTold)) {
        unknown_ += row + "\n";
    }
    NaytaArvot();
}

void Skripti::NaytaArvot() {
    MuuttujienArvot->SetText(unknown_ + values_);
}

void Skripti::Form_Activate() {
    main_.AsetaKopioitava(this);
}

void Skripti::CopyToClipboard() {
    const std::string selected = Teksti->SelectedText();
    main_.Services().clipboard.SetText(selected.empty() ? Teksti->Text() : selected);
}

void Skripti::Form_MouseMove() {
    main_.HiiriMuualla();
}

}  // namespace tessarin
