#include "mainwindow/FolderList.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/FCSReader.h"
#include "core/NaturalOrder.h"
#include "core/TemporaryName.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

// What is known of the folders looked into before. A folder of a thousand files is stepped through
// a thousand times, and looking at its date is much quicker than looking at every file.
class KnownFolders {
  public:
    /// The names of its data files, in order.
    std::vector<std::string> DataFiles(const std::string& folder) {
        std::error_code error;
        const Time written = fs::last_write_time(folder, error);
        if (folders_.size() > kMost) {
            folders_.clear();
        }
        Known& known = folders_[folder];
        if (error || known.written != written || !known.isOld) {
            known.files = Look(folder, known.files);
            known.written = written;
            // A change within the same tick of the file system's clock would not be seen. Ticks
            // are of milliseconds; those of memory cards are of two seconds.
            const bool whole =
                written.time_since_epoch() % std::chrono::seconds(1) == Time::duration();
            const auto tick =
                whole ? std::chrono::milliseconds(3000) : std::chrono::milliseconds(50);
            known.isOld = !error && Time::clock::now() - written > tick;
        }
        std::vector<std::string> names;
        for (File& file : known.files) {
            // What was no data file yet may have been written on since, which changes no folder.
            if (file.isFcs || LookAgain(folder, file)) {
                names.push_back(file.name);
            }
        }
        return names;
    }

  private:
    static constexpr std::size_t kMost = 100;
    using Time = fs::file_time_type;
    struct File {
        std::string name;
        Time written;
        bool isFcs = false;
    };
    struct Known {
        Time written;
        bool isOld = false;  // the folder had its date for longer than a tick
        std::vector<File> files;
    };

    static std::vector<File> Look(const std::string& folder, const std::vector<File>& before) {
        std::unordered_map<std::string_view, const File*> seen;
        for (const File& file : before) {
            seen[file.name] = &file;
        }
        std::vector<File> files;
        std::error_code error;
        fs::directory_iterator entry(folder, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            File file{entry->path().filename().string(), {}, false};
            if (IsTemporaryName(file.name)) {
                continue;
            }
            const auto found = seen.find(file.name);
            if (found != seen.end()) {
                file = *found->second;
            }
            LookAgain(folder, file);
            files.push_back(std::move(file));
        }
        std::ranges::sort(files, NaturalLess, &File::name);
        return files;
    }

    // Opens the file only when its date has changed. True for a data file.
    static bool LookAgain(const std::string& folder, File& file) {
        std::error_code error;
        const Time written = fs::last_write_time(folder + file.name, error);
        if (error || file.written != written) {
            file.isFcs = !error && OnkoFcs(folder + file.name);
            file.written = written;
        }
        return file.isFcs;
    }

    std::unordered_map<std::string, Known> folders_;
};

}  // namespace

std::vector<std::string> TeeLista(const std::string& folder) {
    static KnownFolders known;
    return known.DataFiles(folder);
}

}  // namespace tessarin
