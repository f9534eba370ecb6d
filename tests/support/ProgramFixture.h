// The whole program on a scripted platform, for tests that play its user.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/Muuttujat.h"
#include "core/PopulationEvaluation.h"
#include "mainwindow/PaaIkkuna.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"

namespace tessarin {

/// One channel of a file made in memory.
struct TestChannel {
    std::string name;
    bool isLog = false;
    int32_t range = 1000;
    std::vector<float> values;
};

/// Puts a file straight into a slot, as if it had been loaded from there.
inline Tiedosto& PutFile(int16_t slot, const std::string& name,
                         const std::vector<TestChannel>& channels) {
    Tiedosto file;
    const auto events = static_cast<int32_t>(channels[0].values.size());
    file.Valid = true;
    file.Fingerprint = 1000 + slot;
    file.Folder = "folder/";
    file.FileName = name;
    file.EventCount = events;
    file.ChannelCount = static_cast<int16_t>(channels.size());
    file.Channels.Mitoita(file.ChannelCount);
    file.Data.Mitoita(events, file.ChannelCount);
    file.RawData.Mitoita(events, file.ChannelCount);
    file.Compensation.Mitoita(file.ChannelCount, file.ChannelCount);
    file.Membership.Mitoita(events, kPopulationSlots);
    for (int channel = 1; channel <= file.ChannelCount; ++channel) {
        const TestChannel& from = channels[static_cast<std::size_t>(channel) - 1];
        file.Channels(channel) = {from.name, from.isLog, from.range};
        for (int32_t event = 1; event <= events; ++event) {
            file.Data.Aseta(event, channel, from.values[static_cast<std::size_t>(event) - 1]);
        }
    }
    file.RawData = file.Data;
    Tiedostot(slot) = std::move(file);
    return Tiedostot(slot);
}

class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        RekisteroiKuvaajat();
        main.Kaynnista();
    }
    ~ProgramTest() override {
        PalautaAlkutila();  // windows go while the platform is still there
        PoistaArvioijat();
    }

    void Choose(std::string_view command) { platform.mainForm.events->Command(command); }
    /// The form of the window made last.
    ScriptedForm& LastForm() { return *platform.mainForm.children.back(); }
    /// The forms of statistics windows, and all others, in the order of their opening.
    std::vector<ScriptedForm*> TableForms() const { return Forms(true); }
    std::vector<ScriptedForm*> PlotForms() const { return Forms(false); }
    /// The table of the one opened last.
    ScriptedTable& Grid() const {
        return TableForms().back()->controls.Get<ScriptedTable>("MSFlexGrid1");
    }
    ScriptedForm& NewDotPlot() {
        Choose("CreateDotPlot");
        return LastForm();
    }
    /// Chooses an item of a window's pop-up, from 1, at a place that opens it.
    void ChoosePopup(ScriptedForm& form, int item, int child = -1) {
        platform.popups.choices.push_back({item, child});
        form.Press(form.surface.Width() / 2.0, form.surface.Height() / 2.0, MouseButton::kRight);
    }

    ScriptedPlatform platform;
    PaaIkkuna main{platform.Services()};

  private:
    std::vector<ScriptedForm*> Forms(bool tables) const {
        std::vector<ScriptedForm*> forms;
        for (ScriptedForm* form : platform.mainForm.children) {
            if (form->controls.Has("MSFlexGrid1") == tables) {
                forms.push_back(form);
            }
        }
        return forms;
    }
};

}  // namespace tessarin
