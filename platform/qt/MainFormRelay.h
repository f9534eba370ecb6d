// Passes the main window's events on to whoever gets them at the time; nobody at first.
#pragma once

#include "platform/MainForm.h"

namespace tessarin {

class MainFormRelay : public MainFormEvents {
  public:
    void SetTarget(MainFormEvents* target) { target_ = target; }

    void Command(std::string_view command) override {
        if (target_ != nullptr) {
            target_->Command(command);
        }
    }
    void BackgroundMouseMove() override {
        if (target_ != nullptr) {
            target_->BackgroundMouseMove();
        }
    }
    void PanelMouseMove() override {
        if (target_ != nullptr) {
            target_->PanelMouseMove();
        }
    }
    void FreezePanel(bool frozen) override {
        if (target_ != nullptr) {
            target_->FreezePanel(frozen);
        }
    }
    void PanelRowSelected(int slot) override {
        if (target_ != nullptr) {
            target_->PanelRowSelected(slot);
        }
    }
    void PanelButtonPressed(PanelButton button) override {
        if (target_ != nullptr) {
            target_->PanelButtonPressed(button);
        }
    }
    void PanelColorClicked(int slot, bool twice) override {
        if (target_ != nullptr) {
            target_->PanelColorClicked(slot, twice);
        }
    }
    void PanelLabelDoubleClicked(int slot) override {
        if (target_ != nullptr) {
            target_->PanelLabelDoubleClicked(slot);
        }
    }
    void CloseRequested() override {
        if (target_ != nullptr) {
            target_->CloseRequested();
        }
    }
    void FilesDropped(const std::vector<std::string>& paths) override {
        if (target_ != nullptr) {
            target_->FilesDropped(paths);
        }
    }

  private:
    MainFormEvents* target_ = nullptr;
};

}  // namespace tessarin
