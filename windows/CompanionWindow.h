// A window that there is one of, beside the analysis windows: the page, file info, the browsers.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Form.h"

namespace tessarin {

class PaaIkkuna;

/// What all of them do alike: made hidden, it shows and hides with its menu item, which is checked
/// meanwhile; its close box hides it, so that it lives on with all that it holds until the program
/// ends. Mouse moves over it close the side panel.
class CompanionWindow : protected FormEvents {
  public:
    /// Adds the command of that name to the main window. REQUIRES: its menus are not built yet.
    CompanionWindow(PaaIkkuna& main, std::string_view command, std::string_view caption);
    ~CompanionWindow() override;
    CompanionWindow(const CompanionWindow&) = delete;
    CompanionWindow& operator=(const CompanionWindow&) = delete;

    bool OnkoNakyvissa() const { return shown_; }
    void AsetaNakyvyys(bool shown);

  protected:
    /// It was just shown or hidden.
    virtual void NakyvyysMuuttui() {}

    PaaIkkuna& Main() const { return main_; }
    Form& Lomake() const { return *form_; }

    void Form_Activate() override;
    void Form_QueryUnload() override { AsetaNakyvyys(false); }
    void Form_MouseMove() override;
    void Kuva_MouseMove(const MouseEvent& /*mouse*/) override { Form_MouseMove(); }

  private:
    PaaIkkuna& main_;
    std::string command_;
    std::unique_ptr<Form> form_;
    bool shown_ = false;
};

}  // namespace tessarin
