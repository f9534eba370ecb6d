#include "mainwindow/StatusRemarks.h"

#include <utility>
#include <vector>

#include "core/Muuttujat.h"

namespace tessarin {

std::string FileOddity(int16_t slot) {
    const bool odd = Tiedostot.Holds(slot) && !Tiedostot(slot).Oddities.empty();
    return odd ? Tiedostot(slot).FileName + ": " + Tiedostot(slot).Oddities : "";
}

void StatusRemarks::Show(const std::string& remark) {
    ofFiles_ = false;
    told_ = 0;
    std::vector<std::string> lines;
    if (!remark.empty()) {
        lines.push_back(remark);
    }
    Put(std::move(lines), StatusKind::kRemark);
}

void StatusRemarks::Edistyma(const std::string& progress) {
    progress_ = progress;
    Refresh();
}

void StatusRemarks::Put(std::vector<std::string> lines, StatusKind kind) {
    lines_ = std::move(lines);
    kind_ = kind;
    Refresh();
}

void StatusRemarks::Refresh() {
    std::vector<std::string> lines = lines_;
    if (lines.empty() && !progress_.empty()) {
        lines.push_back(progress_);
    } else if (!progress_.empty()) {
        lines.back().insert(0, progress_ + "; ");
    }
    form_.SetStatus(lines, kind_);
}

void StatusRemarks::FileRead(int16_t slot) {
    const bool odd = !FileOddity(slot).empty();
    if (odd || !oddInOpening_) {
        Tell(slot);
    }
    oddInOpening_ = oddInOpening_ || (odd && openings_ > 0);
}

void StatusRemarks::FileActive(int16_t slot) {
    if (openings_ == 0 && (ofFiles_ || !FileOddity(slot).empty())) {
        Tell(slot);
    }
}

void StatusRemarks::BeginOpening() {
    if (openings_++ == 0) {
        oddInOpening_ = false;
    }
}

// A file told of before may be gone: a sheet was among what was opened.
void StatusRemarks::EndOpening() {
    if (--openings_ == 0) {
        oddInOpening_ = false;
        if (ofFiles_) {
            Tell(told_);
        }
    }
}

// The other odd files come along, for whoever wants to see them all.
void StatusRemarks::Tell(int16_t slot) {
    std::vector<std::string> lines;
    const std::string own = FileOddity(slot);
    for (int16_t other = 1; other <= MaxFiles && !own.empty(); ++other) {
        const std::string line = FileOddity(other);
        if (other != slot && !line.empty()) {
            lines.push_back(line);
        }
    }
    if (!own.empty()) {
        lines.push_back(own);
    }
    ofFiles_ = true;
    told_ = own.empty() ? int16_t{0} : slot;
    Put(std::move(lines), StatusKind::kOddFiles);
}

}  // namespace tessarin
