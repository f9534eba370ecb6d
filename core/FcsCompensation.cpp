#include "core/FcsCompensation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/FcsKeywords.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr int kMostSpillChannels = 100;

using Pieces = std::vector<std::string_view>;

// The count that a list begins with; 0 when it is no number or below 0.
int Count(const Pieces& pieces) {
    const int count = ParseWholeNumber(pieces[0]).value_or(0);
    return count > 0 ? count : 0;
}

// Takes the factors of one keyword's list, and tells once when some are missing, no numbers or
// too large to be kept.
class Factors {
  public:
    Factors(const Pieces& pieces, std::string_view keyword) : pieces_(pieces), keyword_(keyword) {}

    std::optional<float> At(std::size_t place) {
        const auto number = place < pieces_.size() ? ParseNumber(pieces_[place]) : std::nullopt;
        if (!number || std::fabs(*number) > std::numeric_limits<float>::max()) {
            broken_ = true;
            return std::nullopt;
        }
        return static_cast<float>(*number);
    }

    void Tell(FcsOddities& oddities) const {
        if (broken_) {
            oddities.Add(std::string(keyword_) +
                         " has entries that are missing or no numbers; they count as 0");
        }
    }

  private:
    const Pieces& pieces_;
    std::string_view keyword_;
    bool broken_ = false;
};

void TellSpillNames(std::vector<int> channels, FcsOddities& oddities) {
    std::ranges::sort(channels);
    const auto known = std::ranges::upper_bound(channels, 0);
    if (known != channels.begin()) {
        oddities.Add("SPILL names channels that the file lacks");
    }
    if (std::adjacent_find(known, channels.end()) != channels.end()) {
        oddities.Add("SPILL names a channel twice, and the later factors count");
    }
}

// For each of the n names behind the count, the channel of that name; 0 when there is none.
std::vector<int> NamedChannels(const Pieces& pieces, int n, const Tiedosto& file) {
    std::map<std::string_view, int> byName;
    for (int channel = 1; channel <= file.ChannelCount; ++channel) {
        byName[file.Channels(channel).Name] = channel;  // a later channel of the same name wins
    }
    std::vector<int> channels;
    for (std::size_t place = 1; place <= static_cast<std::size_t>(n); ++place) {
        const auto found = place < pieces.size() ? byName.find(pieces[place]) : byName.end();
        channels.push_back(found == byName.end() ? 0 : found->second);
    }
    return channels;
}

void ReadSpill(std::string_view value, Tiedosto& file, FcsOddities& oddities) {
    const Pieces pieces = Split(value, ',');
    const int n = Count(pieces);
    if (n > kMostSpillChannels) {
        oddities.Add("SPILL names more than 100 channels and is not applied");
        return;
    }
    const std::vector<int> channels = NamedChannels(pieces, n, file);
    Factors factors(pieces, "SPILL");
    for (int i = 1; i <= n; ++i) {
        const int from = channels[static_cast<std::size_t>(i) - 1];
        for (int j = 1; j <= n; ++j) {
            const int into = channels[static_cast<std::size_t>(j) - 1];
            const auto factor = factors.At(static_cast<std::size_t>(i) * channels.size() +
                                           static_cast<std::size_t>(j));
            // Numbers of 1 and above are the diagonal.
            if (factor && *factor < 1.0F && from != 0 && into != 0) {
                file.Compensation.Aseta(from, into, *factor);
            }
        }
    }
    factors.Tell(oddities);
    TellSpillNames(channels, oddities);
}

bool ReadComp(std::string_view value, Tiedosto& file, FcsOddities& oddities) {
    const Pieces pieces = Split(value, ',');
    const int n = Count(pieces);
    if (n > file.ChannelCount) {
        return false;
    }
    if (n != file.ChannelCount) {
        oddities.Add("$COMP is for " + std::to_string(n) + " of the file's " +
                     std::to_string(file.ChannelCount) + " channels, taken as the first ones");
    }
    Factors factors(pieces, "$COMP");
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            const auto place = static_cast<std::size_t>(i - 1) * static_cast<std::size_t>(n) +
                               static_cast<std::size_t>(j);
            file.Compensation.Aseta(i, j, factors.At(place).value_or(0) * -1.0F / 100.0F);
        }
    }
    factors.Tell(oddities);
    return true;
}

bool HasFactors(std::string_view list) {
    return Count(Split(list, ',')) > 0;
}

}  // namespace

bool LueKompensaatio(std::string_view text, Tiedosto& file, FcsOddities& oddities) {
    file.Compensate = HaeAvainsana("\\APPLY COMPENSATION", text) == "TRUE";
    const std::string_view spill = HaeAvainsana("\\SPILL", text);
    if (file.Compensate) {
        ReadSpill(spill, file, oddities);
    }
    const std::string_view comp = HaeAvainsana("\\$COMP", text);
    if (comp.empty()) {
        if (file.Compensate && !HasFactors(spill)) {
            oddities.Add("compensation is asked for, but the file has no factors");
        }
        return true;
    }
    file.Compensate = true;
    return ReadComp(comp, file, oddities);
}

}  // namespace tessarin
