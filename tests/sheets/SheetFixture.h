// A session of four windows that is saved and loaded, for tests of sheets.
#pragma once

#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include "core/Text.h"
#include "mainwindow/WindowList.h"
#include "sheets/SheetKeys.h"
#include "sheets/SheetStore.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "windows/Statistics.h"

namespace tessarin {

namespace fs = std::filesystem;

inline std::string Bytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class SheetTest : public ProgramTest {
  protected:
    SheetTest() { main.Kumppanit().views = &store_; }
    ~SheetTest() override { main.Kumppanit().views = nullptr; }

    std::string DataFile(const std::string& name, uint32_t seed) {
        FcsBuilder built("I", 16, "4,3,2,1", 3, 40);
        for (uint32_t i = 0; i < 120; ++i) {
            built.AddInteger((i * 37 + seed) % 1024);
        }
        return folder_.Write(name, built.Bytes());
    }
    /// The text of a saved sheet, but for its date.
    std::string Save(const std::string& command, const std::string& name) {
        platform.dialogs.texts.push_back(folder_.Path(name));
        Choose(command);
        std::string text = Bytes(folder_.Path(name));
        const auto date = text.find("general.date:");
        return date == std::string::npos ? text : text.erase(date, text.find('\n', date) - date);
    }
    void Load(const std::string& path) {
        platform.dialogs.texts.push_back(path);
        Choose("FileOpenView");
    }
    std::vector<std::string> Info(int16_t id) { return IkkunaPaikassa(id)->SaveInfo(); }
    std::vector<std::vector<uint32_t>> Pictures() {
        std::vector<std::vector<uint32_t>> pictures;
        for (const ScriptedForm* form : PlotForms()) {
            pictures.push_back(form->surface.Image().pixels);
        }
        return pictures;
    }
    /// Four windows on two files, with regions, a marker, a definition and most settings changed.
    void LayOut();

    TemporaryFolder folder_;
    SheetStore store_{main, false};
};

inline void SheetTest::LayOut() {
    OletusKoko("DotPlot") = {3000, 4500};
    main.AvaaTiedosto(DataFile("one.fcs", 1));
    main.AvaaTiedosto(DataFile("two.fcs", 500));
    Choose("CreateHistogram");
    Choose("CreateHistogram");
    const auto& forms = platform.mainForm.children;
    platform.mainForm.events->PanelButtonPressed(PanelButton::kLuoUusiRegion);
    for (const auto& [x, y] : {std::pair{41, 43}, {143, 37}, {151, 201}, {41, 43}}) {
        forms[0]->Press(x, y);
        forms[0]->Release(x, y);
    }
    platform.mainForm.events->PanelRowSelected(3);
    platform.mainForm.events->PanelButtonPressed(PanelButton::kLuoUusiRegion);
    forms[2]->Press(141, 77);
    forms[2]->Move(61, 91);
    forms[2]->Release(61, 91);
    Populaatiot(1).TitleX = -250;
    Populaatiot(20).Defined = true;
    Populaatiot(20).Name = "Poly-1 and not Histo-3";
    Populaatiot(20).Transparent = true;
    for (const int item : {1, 2, 3, 5, 6, 7, 12, 13}) {
        ChoosePopup(*forms[1], item);
    }
    static_cast<Statistics&>(*IkkunatStat(2).Window).AsetaNakyvyys(3, 0);
    IkkunaPaikassa(2)->StatsTable()->LiikutaStatistiikkaLaatikkoa("x", 1230);
    IkkunaPaikassa(2)->Quadrant()->AsetaRegion("x", 1234);
    platform.dialogs.texts = {"250", "0"};
    platform.dialogs.colors = {{1, 2, 3}};
    for (const int item : {1, 2, 3, 11, 12, 13}) {
        ChoosePopup(*forms[3], item);
    }
    IkkunaPaikassa(1)->Gate()->NaytaPopulaatio(1);
    IkkunaPaikassa(4)->Channels()->AsetaKanava("x", 3);
    forms[0]->SetPlace({150}, {-45});
    main.PiirraKaikki();
}

}  // namespace tessarin
