#include "sheets/PackageFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "core/Muuttujat.h"
#include "core/Text.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunk = 1 << 20;

int64_t FileSize(const std::string& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    return error ? -1 : static_cast<int64_t>(size);
}

// A name that no file before had: a number goes in front of the ending.
std::string FreshName(const std::string& name, std::set<std::string>& taken) {
    const fs::path whole(name);
    std::string fresh = name;
    for (int number = 2; !taken.insert(fresh).second; ++number) {
        fresh = whole.stem().string() + "-" + std::to_string(number) + whole.extension().string();
    }
    return fresh;
}

// Copies so many bytes; false when there are fewer.
template <class Put>
bool Copy(std::ifstream& in, int64_t length, Put put) {
    std::string chunk;
    while (length > 0) {
        chunk.resize(static_cast<std::size_t>(std::min<int64_t>(length, kChunk)));
        in.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        if (in.gcount() != static_cast<std::streamsize>(chunk.size()) || !put(chunk)) {
            return false;
        }
        length -= in.gcount();
    }
    return true;
}

// One plain name, so that a package never reaches outside its folder.
bool IsPlainName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
}

bool IsSame(std::ifstream& package, int64_t length, const std::string& path) {
    // Only an ordinary file has a size; to open another might wait for ever.
    if (FileSize(path) != length) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    std::string there;
    return Copy(package, length, [&](const std::string& chunk) {
        there.resize(chunk.size());
        file.read(there.data(), static_cast<std::streamsize>(there.size()));
        return file && there == chunk;
    });
}

}  // namespace

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
        std::ifstream in(file.path, std::ios::binary);
        const auto put = [&out](const std::string& chunk) {
            out.Write(chunk);
            return true;
        };
        if (!in || !Copy(in, file.length, put)) {
            return "The file '" + file.path +
                   "' could not be read. The package has not been saved.";
        }
    }
    return "";
}

Purkutulos PuraTiedosto(const std::string& package, const std::string& name, int64_t begin,
                        int64_t length) {
    const std::string inPackage = "The file '" + name + "' of the package ";
    if (!IsPlainName(name)) {
        return {"", inPackage + "has a name that leads elsewhere. It was left out."};
    }
    const int64_t size = FileSize(package);
    if (begin < 0 || length < 0 || begin > size || length > size - begin) {
        return {"", inPackage + "is not all there. It was left out."};
    }
    const std::string path = SplitPath(package).folder + name;
    std::ifstream in(package, std::ios::binary);
    in.seekg(begin);
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error))) {
        const bool same = IsSame(in, length, path);
        return {path, same ? ""
                           : "A file '" + name +
                                 "' with other contents stands beside the package already. It was "
                                 "left as it is, and it is the one that is shown."};
    }
    SafeFile out(path);
    const bool whole = Copy(in, length, [&out](const std::string& chunk) {
        out.Write(chunk);
        return true;
    });
    if (!whole || out.Commit() != WriteResult::kDone) {
        return {"", inPackage + "could not be written to " + path + ": " + out.Reason()};
    }
    return {path, ""};
}

}  // namespace tessarin
