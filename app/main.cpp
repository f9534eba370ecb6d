// The program: command line, choice of platform, registration of window kinds.
#include <QBuffer>
#include <QDir>
#include <QStandardPaths>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "app/CommandLine.h"
#include "core/FCSWriter.h"
#include "core/Muuttujat.h"
#include "core/SafeFile.h"
#include "mainwindow/FileSaving.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/qt/Conversions.h"
#include "platform/qt/PluginLimits.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtPlatform.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "sheets/SheetStore.h"
#include "sheets/SheetWriter.h"
#include "tools/AnswerToolUser.h"
#include "tools/Skripti.h"
#include "tools/ToolList.h"
#include "tools/ToolPack.h"

namespace tessarin {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

// What stands in for the user in a headless run.
struct Nobody {
    ScriptedDialogs dialogs{&std::cerr};
    ScriptedClipboard clipboard;
    ScriptedPopups popups;
    ScriptedBrowser browser;
};

void TakeOptions(const CommandLine& line) {
    MaxLoadedEvents = line.maxEvents.value_or(MaxLoadedEvents);
    FastDrawLimit = line.fastDrawLimit.value_or(FastDrawLimit);
}

void OpenFiles(PaaIkkuna& main, const CommandLine& line) {
    std::vector<std::string> paths;
    for (const std::string& file : line.files) {
        paths.push_back(std::filesystem::absolute(file).lexically_normal().string());
    }
    main.AvaaTiedostot(paths);
}

bool Told(const std::string& failure) {
    if (!failure.empty()) {
        std::cerr << "tessarin: " << failure << std::endl;
    }
    return failure.empty();
}

// False when the run was aborted.
bool RunTool(const PaaIkkuna& main, Skripti& window, const CommandLine& line) {
    if (line.tool.empty()) {
        return true;
    }
    const Tyokalu tool = LueTyokalu(line.tool);
    if (!tool.Valid) {
        return Told("the tool " + line.tool + " could not be read: " + tool.refusal);
    }
    Dialogs& dialogs = main.Services().dialogs;
    DialogToolUser atTheScreen(dialogs);
    AnswerToolUser user(line.answers, dialogs, line.headless ? nullptr : &atTheScreen, std::cerr);
    return window.AjaValikosta(tool.text, user);
}

// False, with a word on standard error, when a window is not there.
bool ChooseMenuItems(const CommandLine& line) {
    for (const MenuChoice& choice : line.menu) {
        const auto window = IkkunaPaikassa(choice.window);
        if (window == nullptr) {
            std::cerr << "tessarin: there is no window " << choice.window << std::endl;
            return false;
        }
        window->MenuValintaReaktio(choice.item);
    }
    return true;
}

bool SaveSheet(const PaaIkkuna& main, const std::string& path) {
    if (path.empty()) {
        return true;
    }
    const Tallennustulos saved = KirjoitaNakyma(main, NakymaLaji::kSheet, path);
    return Told(saved.result == WriteResult::kDone
                    ? ""
                    : "the sheet could not be written to " + path + ": " + saved.reason);
}

std::string SaveFcsOf(PaaIkkuna& main, const FcsSave& save) {
    if (!Ikkunat.Holds(save.window) || !Ikkunat(save.window).Used) {
        return "there is no window " + std::to_string(save.window);
    }
    const int16_t slot = Ikkunat(save.window).FileIndex;
    const std::string obstacle =
        Tiedostot.Holds(slot) ? TallennuksenEste(Tiedostot(slot), save.path) : "";
    std::string failure = obstacle.empty() ? KirjoitaFCS(save.path, slot) : obstacle;
    if (failure.empty()) {
        HuomautaTallennuksesta(main, Tiedostot(slot));
    }
    return failure;
}

bool SaveFcs(PaaIkkuna& main, const CommandLine& line) {
    bool all = true;
    for (const FcsSave& save : line.fcs) {
        all = Told(SaveFcsOf(main, save)) && all;
    }
    return all;
}

bool SaveClipboard(QtPlatform& platform, const std::string& path) {
    const std::string reason =
        path.empty() ? "" : WriteWhole(path, platform.Services().clipboard.Text());
    return Told(reason.empty() ? ""
                               : "the clipboard could not be written to " + path + ": " + reason);
}

// False, with a word on standard error, when the picture could not be written.
bool SaveSnapshot(QtPlatform& platform, const std::string& path) {
    platform.Services().loop.Yield();
    if (path.empty()) {
        return true;
    }
    PiirraLykatyt();
    const Bitmap picture = platform.Main().Snapshot();
    const std::string type = std::filesystem::path(path).extension().string();
    QBuffer bytes;
    const std::string reason =
        ViewOf(picture).save(&bytes, type.empty() ? "PNG" : type.substr(1).c_str())
            ? WriteWhole(path, bytes.data().toStdString())
            : "pictures of that type are not written";
    return Told(reason.empty() ? ""
                               : "the picture could not be written to " + path + ": " + reason);
}

// The user's folder for what the program keeps, made if need be; empty when there is none.
std::string DataFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return !folder.isEmpty() && QDir().mkpath(folder) ? folder.toStdString() + "/" : "";
}

int Run(const CommandLine& line, QtApplication& application) {
    Nobody nobody;
    QtPlatform::Options options;
    options.headless = line.headless;
    options.unseen = line.headless;
    options.printerPath = line.printer;
    options.programFolder = QCoreApplication::applicationDirPath().toStdString() + "/";
    if (line.headless) {
        options.dialogs = &nobody.dialogs;
        options.clipboard = &nobody.clipboard;
        options.popups = &nobody.popups;
        options.browser = &nobody.browser;
    } else {
        options.dataFolder = DataFolder();  // of which a run that nobody watches needs nothing
    }
    QtPlatform platform(options);
    RekisteroiKuvaajat();
    PaaIkkuna main(platform.Services());
    SheetStore views(main, !line.headless);
    main.Kumppanit().views = &views;
    Skripti toolWindow(main);
    ToolList tools(main, toolWindow);
    main.Kumppanit().tools = &tools;
    if (line.headless) {
        main.onRemark = [](const std::string& remark) {
            std::cerr << "warning: " << remark << std::endl;
        };
    }
    application.onShortage = [&main](const std::string& remark) { main.Huomauta(remark); };
    main.Kaynnista();
    TakeOptions(line);
    if (line.negBumper) {
        main.Command("KaytaNegAbsJuttua");
    }
    OpenFiles(main, line);
    const bool ran = RunTool(main, toolWindow, line);
    const bool chosen = ChooseMenuItems(line);
    const bool sheet = SaveSheet(main, line.sheet);
    const bool fcs = SaveFcs(main, line);
    const bool pictured = SaveSnapshot(platform, line.snapshot);
    const bool copied = SaveClipboard(platform, line.clipboard);
    const int status = line.headless ? kDone : platform.Loop().Run();
    application.onShortage = nullptr;
    const bool told = !nobody.dialogs.messages.empty();
    PalautaAlkutila();  // the windows go before the platform that shows them
    return ran && chosen && sheet && fcs && pictured && copied && !told ? status : kFailed;
}

// Packs a tool; the only file on the command line is where it goes.
int Pack(const CommandLine& line) {
    const Tyokalu tool = LueTyokalu(line.pack);
    if (line.files.size() != 1 || !tool.Valid) {
        Told(tool.Valid ? "--pack needs one FILE to write"
                        : line.pack + " could not be read: " + tool.refusal);
        return kWrongUsage;
    }
    const std::string reason = WriteWhole(line.files[0], TeePaketti(tool.text));
    return Told(reason.empty()
                    ? ""
                    : "the pack could not be written to " + line.files[0] + ": " + reason)
               ? kDone
               : kFailed;
}

// The status to end with at once, or -1 to go on.
int AnswerWithoutWindow(const CommandLine& line) {
    if (!line.error.empty()) {
        std::cerr << "tessarin: " << line.error << "\nTry 'tessarin --help'." << std::endl;
        return kWrongUsage;
    }
    if (line.help) {
        std::cout << HelpText();
        return kDone;
    }
    if (line.version) {
        std::cout << "Tessarin " << ProgramVersionText << std::endl;
        return kDone;
    }
    if (!line.pack.empty()) {
        return Pack(line);
    }
    std::vector<std::string> needed = line.files;
    if (!line.tool.empty()) {
        needed.push_back(line.tool);
    }
    for (const std::string& file : needed) {
        std::error_code error;
        if (!std::filesystem::exists(file, error)) {
            std::cerr << "tessarin: there is no file " << file << std::endl;
            return kWrongUsage;
        }
    }
    return -1;
}

}  // namespace
}  // namespace tessarin

int main(int argc, char** argv) {
    // A write beyond the limit of file sizes then fails like any other, and is told.
    std::signal(SIGXFSZ, SIG_IGN);
    const tessarin::CommandLine line =
        tessarin::TakeCommandLine(std::vector<std::string>(argv + 1, argv + argc));
    const int status = tessarin::AnswerWithoutWindow(line);
    if (status >= 0) {
        return status;
    }
    if (line.headless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        tessarin::PassOverPluginLimits();
    }
    int qtArguments = 1;  // Qt gets none of our words
    tessarin::QtApplication application(qtArguments, argv);
    try {
        return tessarin::Run(line, application);
    } catch (const std::bad_alloc&) {
        std::cerr << "tessarin: there is not enough memory" << std::endl;
        return tessarin::kFailed;
    }
}
