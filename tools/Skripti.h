// The tool window: a tool written and run in it, and the Stop button of any other run.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "mainwindow/CopySource.h"
#include "platform/Form.h"
#include "platform/Services.h"
#include "tools/ToolUser.h"

namespace tessarin {

class PaaIkkuna;

/// `Skripti` means script. There is one window, hidden until something is to be seen in it.
class Skripti : public CopySource, private FormEvents {
  public:
    /// What `AnnaID` gives: no analysis window has this number.
    static constexpr int16_t kId = 999;

    explicit Skripti(PaaIkkuna& main);
    ~Skripti() override;
    Skripti(const Skripti&) = delete;
    Skripti& operator=(const Skripti&) = delete;

    /// Runs a tool that is not in the text box: in the small form, which goes with the run unless
    /// the tool asked for the full one. False when the run was aborted.
    bool AjaValikosta(const std::string& text, ToolUser& user);

    /// `MuutaSkriptiKoko` means change the script's size: "iso" shows the full form, "pieni" the
    /// small one, any other word the one that is not there now.
    void MuutaSkriptiKoko(std::string_view koko);

    // CopySource.
    int16_t AnnaID() const override { return kId; }
    /// The marked part of the text box, or all of it.
    void CopyToClipboard() override;

    /// A tool was saved in the folder of tools, perhaps a new one.
    std::function<void()> onSaved;

  private:
    void Form_Activate() override;
    void Form_QueryUnload() override { form_->Hide(); }
    void Form_Resize(bool /*byUser*/) override { Arrange(); }
    void Form_MouseMove() override;
    void Toteuta_Click();
    void Avaa_Click();
    void Talleta_Click();
    void Tyhjenna_Click();
    /// The user has changed the text, and rests for a moment.
    void TekstiMuuttui();

    void MakeControls();
    /// Gives every control its place in the form as it is now.
    void Arrange();
    /// Gives the form a size, in pixels, with its lower left corner where it was.
    void SetOuterSize(int width, int height);

    /// Puts another text into the box.
    void AsetaTeksti(const std::string& text);
    /// Looks for rows that the language does not know.
    void Tarkista();
    /// Shows what was found, and below it the values of the variables.
    void NaytaArvot();

    // `NaytaMuuttujat`, show the variables, after each line.
    bool AjaOhjelma(const std::string& text, bool NaytaMuuttujat, ToolUser& user);

    PaaIkkuna& main_;
    std::unique_ptr<Form> form_;
    std::unique_ptr<TextBox> Teksti;            // the tool's text
    std::unique_ptr<Button> Toteuta;            // `Toteuta` means execute
    std::unique_ptr<TextField> KursorinPaikka;  // place of the cursor
    std::unique_ptr<Button> Tyhjenna;           // clear
    std::unique_ptr<Button> MuutaKokoa;         // change the size
    std::unique_ptr<Button> Avaa;               // open
    std::unique_ptr<Button> Talleta;            // save
    std::unique_ptr<Label> label_;
    std::unique_ptr<TextBox> MuuttujienArvot;  // values of the variables
    std::unique_ptr<Timer> rest_;              // ticks when the user has stopped typing
    std::string path_;                         // of the tool opened or saved last
    std::string saved_;                        // the text as it was then
    std::string unknown_;                      // rows that the language does not know
    std::string values_;                       // of the variables, as they are shown
    bool placed_ = false;
    bool SkriptiPieni = true;  // the form is small
};

}  // namespace tessarin
