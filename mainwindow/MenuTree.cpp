#include "mainwindow/MenuTree.h"

#include <array>
#include <string>

namespace tessarin {
namespace {

struct Row {
    std::string_view menu;
    std::string_view command;
    std::string_view caption;
    std::string_view shortcut = {};
    bool checkable = false;
};

constexpr Row Separator(std::string_view menu) {
    return {menu, "", "-"};
}

constexpr std::array<std::array<std::string_view, 2>, 6> kMenus = {{
    {"MenuFile", "&File"},
    {"MenuEdit", "&Edit"},
    {"MenuView", "View"},
    {"MenuCreate", "&Create"},
    {"MenuScript", "&Tools"},
    {"MenuHelp", "&Help"},
}};

constexpr std::string_view kToolList = "SkriptiLista";

constexpr std::array kItems = {
    Row{"MenuFile", "FileOpenFCS", "Open FCS...", "Ctrl+O"},
    Row{"MenuFile", "FileNextFile", "Next file", "Ctrl+N"},
    Row{"MenuFile", "FilePreviousFile", "Previous file", "Ctrl+P"},
    Row{"MenuFile", "FileOpenTXT", "Open TXT file..."},
    Separator("MenuFile"),
    Row{"MenuFile", "FileSaveFCSEiKysymysta", "Save FCS"},
    Row{"MenuFile", "FileSaveFCS", "Save FCS as..."},
    Separator("MenuFile"),
    Row{"MenuFile", "AvaaFileNameHandler", "File name handler", "", true},
    Separator("MenuFile"),
    Row{"MenuFile", "FileOpenView", "Open analysis view..."},
    Row{"MenuFile", "FileSaveView", "Save analysis view...", "Ctrl+S"},
    Row{"MenuFile", "MenuSaveAnalysisPackage", "Save analysis package..."},
    Separator("MenuFile"),
    Row{"MenuFile", "AvaaPrintPreviewPage", "Print preview", "", true},
    Row{"MenuFile", "Printtaa", "Print..."},
    Separator("MenuFile"),
    Row{"MenuFile", "FileExit", "Exit"},
    Row{"MenuEdit", "CopyImages", "Copy to clipboard", "Ctrl+C"},
    Row{"MenuEdit", "SelectAll", "Select all", "Ctrl+A"},
    Separator("MenuEdit"),
    Row{"MenuEdit", "AsetaFastDrawLimit", "Set fast draw limit..."},
    Row{"MenuEdit", "AsetaLadattavienPisteidenMaara", "Set max event number..."},
    Row{"MenuEdit", "KaytaNegAbsJuttua", "Use neg value bumper", "", true},
    Row{"MenuView", "AvaaFileBrowser", "File Browser", "", true},
    Row{"MenuView", "AvaaWellplatebrowser", "Well plate browser", "", true},
    Separator("MenuView"),
    Row{"MenuView", "NaytaFileInfo", "File info", "Ctrl+I", true},
    Row{"MenuCreate", "CreateDotPlot", "Dot plot", "Ctrl+D"},
    Row{"MenuCreate", "CreateHistogram", "Histogram", "Ctrl+H"},
    Row{"MenuCreate", "CreateHistogramModeller", "Histogram modeller"},
    Row{"MenuCreate", "CreateOverlayHistogram", "Overlay histogram"},
    Row{"MenuCreate", "Create3DPlot", "3D Plot"},
    Row{"MenuCreate", "CreateBendPlot", "Bending plot"},
    Row{"MenuCreate", "LuoFluxTracker", "Flux tracker"},
    Row{"MenuCreate", "LuoProjector", "Projector"},
    Row{"MenuCreate", "LuoClipBook", "ClipBook"},
    // Installed tools take the place of this one.
    Row{"MenuScript", kToolList, kToolList},
    Row{"MenuHelp", "AvaaHelp", "Online Help", "F1"},
    Row{"MenuHelp", "AvaaAboutLaatikko", "About Tessarin"},
};

MenuItem ItemOf(const Row& row, bool built) {
    return {std::string(row.command), std::string(row.caption), std::string(row.shortcut), built,
            row.checkable};
}

}  // namespace

std::string ToolCommand(std::size_t tool) {
    return std::string(kToolList) + std::to_string(tool);
}

std::vector<Menu> MenuTree(const std::function<bool(std::string_view)>& isBuilt,
                           const std::vector<std::string>& tools) {
    std::vector<Menu> menus;
    for (const auto& [name, caption] : kMenus) {
        Menu menu{std::string(name), std::string(caption), {}};
        for (const Row& row : kItems) {
            if (row.menu == name && (row.command != kToolList || tools.empty())) {
                menu.items.push_back(ItemOf(row, isBuilt(row.command)));
            }
        }
        if (name == "MenuScript") {
            for (const std::string& tool : tools) {
                menu.items.push_back({ToolCommand(menu.items.size()), tool, "", true, false});
            }
        }
        menus.push_back(std::move(menu));
    }
    return menus;
}

}  // namespace tessarin
