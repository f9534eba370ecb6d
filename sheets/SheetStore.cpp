#include "sheets/SheetStore.h"

#include <algorithm>
#include <filesystem>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"
#include "sheets/AutosaveFile.h"
#include "sheets/SheetLoader.h"

namespace tessarin {
namespace {

constexpr const char* kTitle = "Save analysis file";

// Names that a line of a sheet cannot hold whole; the user should know before they are gone.
std::string NamesCutShort() {
    std::string names;
    for (const Populaatio& row : Populaatiot) {
        if (row.Defined && row.Name.find_first_of(":#") != std::string::npos) {
            names += (names.empty() ? "" : ", ") + row.Name;
        }
    }
    return names.empty() ? "" : "A sheet cannot keep names with ':' or '#' whole: " + names;
}

std::string NotWritten(const std::string& path, const std::string& reason) {
    return "'" + path + "' could not be written: " + reason;
}

}  // namespace

SheetStore::SheetStore(PaaIkkuna& main, bool autosaves)
    : main_(main), AutosaveKaytossa(autosaves) {}

void SheetStore::TalletaNakyma(std::string_view mode) {
    if (mode == "Autosave") {
        Autosave();
    } else if (mode == "Sheet") {
        AskAndSave(NakymaLaji::kSheet);
    } else if (mode == "Paketti") {
        AskAndSave(NakymaLaji::kPackage);
    }
}

void SheetStore::AskAndSave(NakymaLaji kind) {
    const std::string path = KysyTallennuspaikka(
        main_.Services().dialogs, {.title = kTitle,
                                   .filter = "Tessarin files (*.Tessarin)|*.tessarin",
                                   .ending = ".tessarin",
                                   .folder = main_.AktiivinenKansio()});
    if (path.empty()) {
        return;
    }
    const BusyPointer busy;
    const Tallennustulos saved = KirjoitaNakyma(main_, kind, path);
    Report(saved, path);
    if (saved.result == WriteResult::kDone) {
        main_.Huomauta(NamesCutShort());
    }
}

void SheetStore::Report(const Tallennustulos& saved, const std::string& path) {
    if (!saved.message.empty()) {
        main_.Services().dialogs.Message(saved.message, kTitle);
    }
    std::string remark = NotWritten(path, saved.reason);
    if (saved.result == WriteResult::kDenied) {
        AutosaveKaytossa = false;
        remark += ". Nothing is autosaved for the rest of this session.";
    }
    if (!saved.reason.empty()) {
        main_.Huomauta(remark);
    }
}

void SheetStore::Autosave() {
    // While a sheet is being loaded the old file is the better one.
    if (!AutosaveKaytossa || Loading || Closing || autosavePath_.empty()) {
        return;
    }
    const std::string text = NakymaTekstina(main_, NakymaLaji::kSheet);
    if (text == autosaved_) {
        return;
    }
    SafeFile out(autosavePath_, WriteCare::kQuick);
    out.Write(text);
    const WriteResult result = out.Commit();
    AutosaveKaytossa = result != WriteResult::kDenied;
    if (result == WriteResult::kDone) {
        autosaved_ = text;
    } else if (result == WriteResult::kFailed && !failing_) {
        // Told once: a box at every step would let nobody work, or save elsewhere.
        failing_ = true;
        main_.Services().dialogs.Message(std::string(kSavingFailed), "");
        main_.Huomauta(NotWritten(autosavePath_, out.Reason()));
    }
    failing_ = result == WriteResult::kFailed;
}

bool SheetStore::LataaNakyma(const std::string& path) {
    const bool loaded = tessarin::LataaNakyma(main_, path);
    if (loaded) {
        TalletaNakyma("Autosave");
    }
    return loaded;
}

void SheetStore::TarjoaPalautusta() {
    if (!AutosaveKaytossa) {
        return;
    }
    autosavePath_ = VaraaAutosave(main_.Services());
    AutosaveKaytossa = !autosavePath_.empty();
    std::error_code error;
    if (AutosaveKaytossa && std::filesystem::exists(autosavePath_, error) &&
        main_.Services().dialogs.Ask(
            "Tessarin was not closed properly. You want to recover the view?", "Recovery",
            QuestionButtons::kYesNo)) {
        LataaNakyma(autosavePath_);
    }
}

void SheetStore::PoistaAutosave() {
    std::error_code ignored;
    if (!autosavePath_.empty()) {
        std::filesystem::remove(autosavePath_, ignored);
    }
    AutosaveKaytossa = false;
}

}  // namespace tessarin
