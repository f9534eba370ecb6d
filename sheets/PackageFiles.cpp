#include "sheets/PackageFiles.h"

#include <algorithm>
#include <filesystem>

#include "core/InputFile.h"
#include "core/Muuttujat.h"
#include "core/Text.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

int64_t FileSize(const std::string& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    return error ? -1 : static_cast<int64_t>(size);
}

// Copies so many bytes; gives why not all of them could be.
std::string Copy(InputFile& in, int64_t begin, int64_t length, SafeFile& out) {
    constexpr int64_t kChunk = 1 << 20;
    if (!in.IsOpen()) {
        return in.Refusal();
    }
    try {
        for (int64_t done = 0; done < length; done += kChunk) {
            const auto count = static_cast<uint64_t>(std::min(kChunk, length - done));
            const std::string chunk = in.Read(static_cast<uint64_t>(begin + done), count);
            if (chunk.size() != count) {
                return "it has become shorter";
            }
            out.Write(chunk);
        }
    } catch (const std::ios_base::failure& failure) {
        return ReadFailure(failure);
    }
    return "";
}

}  // namespace

std::string FreshName(const std::string& name, std::set<std::string>& taken) {
    const fs::path whole(name);
    std::string fresh = name;
    for (int number = 2; !taken.insert(fresh).second; ++number) {
        fresh = whole.stem().string() + "-" + std::to_string(number) + whole.extension().string();
    }
    return fresh;
}

std::vector<PackageFile> PakettiTiedostot() {
    std::vector<PackageFile> files;
    std::set<std::string> taken;
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        const Tiedosto& file = Tiedostot(slot);
        if (file.Valid) {
            files.push_back({slot, file.Path(), FreshName(file.FileName, taken),
                             std::max<int64_t>(0, FileSize(file.Path()))});
        }
    }
    return files;
}

std::string KirjoitaPaketti(SafeFile& out) {
    out.Write("content:");
    for (const PackageFile& file : PakettiTiedostot()) {
        InputFile in(file.path);
        const std::string why = Copy(in, 0, file.length, out);
        if (!why.empty()) {
            return "The file '" + file.path + "' could not be read: " + why +
                   ". The package has not been saved.";
        }
    }
    return "";
}

Purkutulos PuraTiedosto(const std::string& package, const PackedFile& file) {
    const std::string inPackage = "The file '" + file.name + "' of the package ";
    if (file.target.empty()) {
        return {"", inPackage + "has a name that leads elsewhere. It was left out."};
    }
    const int64_t size = FileSize(package);
    if (file.length < 0 || file.begin > size || file.length > size - file.begin) {
        return {"", inPackage + "is not all there. It was left out."};
    }
    const std::string path = SplitPath(package).folder + file.target;
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error))) {
        const bool same = file.beside == PackedFile::Beside::kSame ||
                          (file.beside == PackedFile::Beside::kNothing &&
                           OnSamaTiedosto(package, file, path));  // it came just now
        return {path, same ? ""
                           : "A file '" + file.target +
                                 "' with other contents stands beside the package already. It was "
                                 "left as it is, and it is the one that is shown."};
    }
    InputFile in(package);
    SafeFile out(path);
    std::string why = Copy(in, file.begin, file.length, out);
    if (why.empty() && out.Commit() != WriteResult::kDone) {
        why = out.Reason();
    }
    return why.empty() ? Purkutulos{path, ""}
                       : Purkutulos{"", inPackage + "could not be written to " + path + ": " + why};
}

}  // namespace tessarin
