// The tool window: a tool written and run in it, and the Stop button of any other run.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "mainwindow/CopySource.h"
#include "platform/ToolForm.h"
#include "tools/ToolUser.h"

namespace tessarin {

class PaaIkkuna;

/// `Skripti` means script. There is one window, hidden until something is to be seen in it.
class Skripti : public CopySource, private ToolFormEvents {
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

  private:
    void Form_Activate() override;
    void Form_QueryUnload() override { form_->Hide(); }
    void Toteuta_Click() override;
    void Tyhjenna_Click() override { form_->SetText(""); }
    void MuutaKokoa_Click() override { MuutaSkriptiKoko(""); }
    void Teksti_Row(int row) override;
    void Form_MouseMove() override;

    // `NaytaMuuttujat`, show the variables, after each line.
    bool AjaOhjelma(const std::string& text, bool NaytaMuuttujat, ToolUser& user);

    PaaIkkuna& main_;
    std::unique_ptr<ToolForm> form_;
    bool SkriptiPieni = true;  // the form is small
};

}  // namespace tessarin
