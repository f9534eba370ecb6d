#include "sheets/PackageContents.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "core/InputFile.h"
#include "core/Text.h"
#include "sheets/PackageFiles.h"
#include "sheets/SheetKeys.h"
#include "sheets/SheetPath.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

constexpr int64_t kLongest = INT64_MAX / 2;

int64_t LengthIn(std::string_view value) {
    const double told = SheetNumber(value).value_or(-1);
    return told >= 0 && told <= static_cast<double>(kLongest) ? static_cast<int64_t>(told) : -1;
}

// One plain name, so that a package never reaches outside its folder; empty when none is left.
std::string PlainName(const std::string& name) {
    std::string plain = name.substr(name.find_last_of("/\\") + 1);
    plain.erase(0, std::min(plain.find_first_not_of('.'), plain.size()));
    return plain.find('\0') == std::string::npos ? plain : "";
}

// Names that were changed must not meet those that were not.
void NameTargets(std::vector<PackedFile>& files) {
    std::set<std::string> taken;
    for (PackedFile& file : files) {
        file.target = PlainName(file.name);
        if (file.target == file.name) {
            taken.insert(file.name);
        }
    }
    for (PackedFile& file : files) {
        if (file.target != file.name && !file.target.empty()) {
            file.target = FreshName(file.target, taken);
        }
    }
}

PackedFile::Beside Look(const SheetFile& sheet, const PackedFile& file) {
    std::error_code error;
    const std::string path = SplitPath(sheet.path).folder + file.target;
    if (file.target.empty() || !fs::exists(fs::symlink_status(path, error))) {
        return PackedFile::Beside::kNothing;
    }
    return OnSamaTiedosto(sheet.path, file, path) ? PackedFile::Beside::kSame
                                                  : PackedFile::Beside::kOther;
}

std::vector<std::string> Surprises(const std::vector<PackedFile>& files) {
    constexpr std::size_t kMostFiles = 1000;
    std::vector<std::string> lines;
    if (files.size() > kMostFiles) {
        lines.push_back("It holds " + std::to_string(files.size()) + " files.");
    }
    for (const PackedFile& file : files) {
        if (file.target.empty()) {
            continue;
        }
        if (file.target != file.name) {
            lines.push_back("'" + file.name + "' would be called '" + file.target + "'.");
        }
        if (file.beside == PackedFile::Beside::kOther) {
            lines.push_back("Another file '" + file.target +
                            "' is there already. It would stay as it is, and be shown.");
        }
    }
    return lines;
}

}  // namespace

std::vector<PackedFile> PakatutTiedostot(const SheetFile& sheet) {
    std::map<int, std::string> names;
    std::vector<PackedFile> files;
    int64_t begin = sheet.content;
    for (const std::string& text : sheet.lines) {
        const SheetLine line(text);
        if (line.Field(1) != "file") {
            continue;
        }
        const int slot = line.Number(2);
        if (line.KeyFrom(3) == "name") {
            names[slot] = PathFromLine(line.rest);
        } else if (line.KeyFrom(3) == "length") {
            const int64_t length = LengthIn(line.value);
            files.push_back({slot, names[slot], "", begin, length});
            begin = length >= 0 && length <= kLongest - begin ? begin + length : kLongest;
        }
    }
    NameTargets(files);
    for (PackedFile& file : files) {
        file.beside = Look(sheet, file);
    }
    return files;
}

std::string PakettiKysymys(const SheetFile& sheet, const std::vector<PackedFile>& files) {
    constexpr std::size_t kMostLines = 10;
    const std::vector<std::string> lines = Surprises(files);
    if (lines.empty()) {
        return "";
    }
    std::string text = "The package '" + SplitPath(sheet.path).name +
                       "' writes its files beside itself, and not all as you may expect:";
    for (std::size_t i = 0; i < std::min(lines.size(), kMostLines); ++i) {
        text += "\n" + lines[i];
    }
    if (lines.size() > kMostLines) {
        text += "\nand " + std::to_string(lines.size() - kMostLines) + " more";
    }
    return text + "\nDo you want to open it?";
}

bool OnSamaTiedosto(const std::string& package, const PackedFile& file, const std::string& path) {
    constexpr uint64_t kChunk = 1 << 20;
    InputFile packed(package);
    InputFile beside(path);
    if (!packed.IsOpen() || !beside.IsOpen() || file.length < 0 ||
        beside.Size() != static_cast<uint64_t>(file.length)) {
        return false;
    }
    try {
        for (uint64_t done = 0; done < beside.Size(); done += kChunk) {
            const uint64_t count = std::min(kChunk, beside.Size() - done);
            const std::string bytes = beside.Read(done, count);
            if (bytes.size() != count ||
                bytes != packed.Read(static_cast<uint64_t>(file.begin) + done, count)) {
                return false;
            }
        }
    } catch (const std::ios_base::failure&) {
        return false;
    }
    return true;
}

}  // namespace tessarin
