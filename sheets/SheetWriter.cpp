#include "sheets/SheetWriter.h"

#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>
#include <vector>

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "sheets/PackageFiles.h"
#include "sheets/PopulationKeys.h"
#include "sheets/SheetPath.h"
#include "sheets/SheetSections.h"

namespace tessarin {
namespace {

// Today in the short form of the user's system.
std::string Date() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::ostringstream text;
    try {
        text.imbue(std::locale(""));
    } catch (const std::runtime_error&) {
        // A system that names a locale it does not have gets the plain form.
    }
    text << std::put_time(&local, "%x");
    return text.str();
}

// Collects lines, each with a line end.
class SheetBuilder {
  public:
    void Line(std::string_view line) { text_.append(line).push_back('\n'); }
    void Value(std::string_view key, std::string_view value) {
        text_.append(key).append(":").append(value).push_back('\n');
    }
    void Section(std::string_view title) {
        Line("");
        Line("# " + std::string(title));
    }
    void Keys(const std::string& prefix, const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            Line(prefix + line);
        }
    }
    std::string Take() { return std::move(text_); }

  private:
    std::string text_;
};

void AddPopulations(SheetBuilder& sheet) {
    sheet.Section("Populations");
    sheet.Value("general.maxnumberofpopulations", std::to_string(MaxPopulations));
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (Populaatiot(slot).Defined) {
            sheet.Keys("population." + std::to_string(slot) + ".", Populaatioavaimet(slot).Lines());
        }
    }
    sheet.Section("Definitions");
    sheet.Value("general.maxnumberofdefinitions", std::to_string(MaxDefinitions));
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        if (Populaatiot(slot).Defined) {
            sheet.Keys("definition." + std::to_string(slot) + ".", Populaatioavaimet(slot).Lines());
        }
    }
}

void AddFiles(SheetBuilder& sheet, NakymaLaji kind) {
    sheet.Section("Files");
    const std::vector<PackageFile> packed =
        kind == NakymaLaji::kPackage ? PakettiTiedostot() : std::vector<PackageFile>();
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        if (kind == NakymaLaji::kSheet && Tiedostot(slot).Valid) {
            sheet.Value("file." + std::to_string(slot) + ".path",
                        PathToLine(Tiedostot(slot).Path()));
        }
    }
    for (const PackageFile& file : packed) {
        const std::string prefix = "file." + std::to_string(file.slot);
        sheet.Value(prefix + ".name", PathToLine(file.name));
        sheet.Value(prefix + ".length", std::to_string(file.length));
    }
}

void AddWindows(SheetBuilder& sheet) {
    sheet.Section("Windows");
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        const auto window = IkkunaPaikassa(id);
        if (window == nullptr) {
            continue;
        }
        const std::string prefix = "window." + std::to_string(id) + ".";
        sheet.Value(prefix + "type", Ikkunat(id).Type);
        sheet.Keys(prefix, window->SaveInfo());
    }
}

// The windows that there is one of at most.
void AddSections(SheetBuilder& sheet, const Companions& companions) {
    for (const SheetSectionName& name : kSheetSections) {
        const std::string key(name.key);
        const SheetSection* section = EtsiOsa(companions, key);
        sheet.Section(name.title);
        sheet.Value(key + ".visible", section != nullptr && section->OnkoNakyvissa() ? "1" : "0");
        if (section != nullptr) {
            sheet.Keys(key + ".", section->SaveInfo());
        }
    }
}

}  // namespace

std::string NakymaTekstina(const PaaIkkuna& main, NakymaLaji kind) {
    SheetBuilder sheet;
    sheet.Line("# Tessarin Analysis sheet");
    sheet.Line("");
    sheet.Value("general.version", ProgramVersionText);
    sheet.Value("general.date", Date());
    if (kind == NakymaLaji::kPackage) {
        sheet.Line("general.style:package");
    }
    AddPopulations(sheet);
    AddFiles(sheet, kind);
    AddWindows(sheet);
    AddSections(sheet, main.Kumppanit());
    sheet.Line("");
    return sheet.Take();
}

Tallennustulos KirjoitaNakyma(const PaaIkkuna& main, NakymaLaji kind, const std::string& path) {
    SafeFile out(path);
    out.Write(NakymaTekstina(main, kind));
    if (kind == NakymaLaji::kPackage) {
        const std::string missing = KirjoitaPaketti(out);
        if (!missing.empty()) {
            return {WriteResult::kFailed, missing, ""};
        }
    }
    const WriteResult result = out.Commit();
    return {result, result == WriteResult::kFailed ? std::string(kSavingFailed) : "", out.Reason()};
}

}  // namespace tessarin
