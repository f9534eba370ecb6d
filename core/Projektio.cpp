#include "core/Projektio.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cmath>
#include <limits>
#include <utility>

#include "core/EventValues.h"
#include "core/Logarithm.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/WideVectors.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = 256;        // events placed at a time
constexpr int32_t kShiftedRange = 262144;  // the 18-bit scale

// Singles as whole numbers in their order, so that a search can halve between any two of them.
constexpr uint32_t kSign = 0x80000000U;

uint32_t OrderOf(float value) {
    const auto bits = std::bit_cast<uint32_t>(value);
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

float InOrder(uint32_t place) {
    return std::bit_cast<float>((place & kSign) != 0 ? place & ~kSign : ~place);
}

// With `isLow` true up to some single and false behind it: two neighbours between which it ends,
// -infinity or infinity where it does not hold at all or does not end.
template <class IsLow>
std::pair<float, float> Border(IsLow isLow) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    if (!isLow(-kInfinity) || isLow(kInfinity)) {
        const float all = isLow(kInfinity) ? kInfinity : -kInfinity;
        return {all, all};
    }
    uint32_t low = OrderOf(-kInfinity);
    uint32_t high = OrderOf(kInfinity);
    while (high - low > 1) {
        const uint32_t middle = low + (high - low) / 2;
        (isLow(InOrder(middle)) ? low : high) = middle;
    }
    return {InOrder(low), InOrder(high)};
}

// The neg value bumper: values that a log axis could not show are folded to just above 1.
double Bumped(double value) {
    return value < 1.0 ? std::fabs(value) + 1.0 : value;
}

}  // namespace

double Log10Arvo(double x) {
    if (!(x > 0)) {
        return 0;
    }
    return x < std::numeric_limits<double>::infinity() ? Kymmenlogaritmi(x) : x;
}

TESSARIN_WIDE void Log10Arvot(std::span<const double> values, std::span<double> logs) {
    assert(logs.size() >= values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        logs[i] = Kymmenlogaritmi(values[i]);
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double finite =
            values[i] < std::numeric_limits<double>::infinity() ? logs[i] : values[i];
        logs[i] = values[i] > 0 ? finite : 0;
    }
}

double LogKerroin(double x, double k) {
    if (x <= 1) {
        return 1;
    }
    return x < std::numeric_limits<double>::infinity() ? Kymmenlogaritmi(x) * k : x;
}

AkseliProjektio::AkseliProjektio(bool isLog, int32_t range)
    : isLog_(isLog), usable_(isLog ? range > 1 : range > 0), range_(range) {
    if (!isLog_ || !usable_) {
        return;
    }
    span_ = Rounded(range_ / std::log10(range_));
    if (range == kShiftedRange) {
        shift_ = LogShift;
        floor_ = Rounded(LogKerroin(LogFloor, span_));
    }
}

double AkseliProjektio::Paikka(double value, double scale) const {
    if (!usable_) {
        return 0;
    }
    const double position =
        isLog_ ? (LogKerroin(shift_ + value, span_) - floor_) / (range_ - floor_) * scale
               : value / range_ * scale;
    return position > 0 ? position : 0;  // also catches what is not a number
}

double AkseliProjektio::TapahtumanPaikka(double value, double scale) const {
    return Paikka(KaytaNegAbsJuttua ? Bumped(value) : value, scale);
}

// The passes over a block stand apart, and each computes both sides of a choice before it chooses,
// so that the compiler makes vector code of them.
TESSARIN_WIDE void AkseliProjektio::Place(std::span<double> values, double scale,
                                          double* positions) const {
    if (!usable_) {
        std::fill_n(positions, values.size(), 0.0);
        return;
    }
    if (!isLog_) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const double position = values[i] / range_ * scale;
            positions[i] = position > 0 ? position : 0;
        }
        return;
    }
    std::array<double, kBlock> logs;
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = shift_ + values[i];
        logs[i] = Kymmenlogaritmi(values[i]) * span_;
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value = values[i];
        const double log = logs[i];
        const double finite = value < std::numeric_limits<double>::infinity() ? log : value;
        const double factor = value <= 1 ? 1 : finite;
        const double position = (factor - floor_) / (range_ - floor_) * scale;
        positions[i] = position > 0 ? position : 0;
    }
}

// Positions rise with the value, but for two things. Rounding moves each by far less than a part in
// 1e9 of the scale. And on a log axis all values up to 1 (with the shift) share one position, which
// may be above those of the next few.
AkseliProjektio::Arvorajat AkseliProjektio::RajatPaikalle(double position, double scale) const {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    if (!usable_ || KaytaNegAbsJuttua) {
        return {-kInfinity, kInfinity};
    }
    constexpr double kRounding = 1e-9;
    const double slack = scale * kRounding;
    const double foot = Paikka(-static_cast<double>(kInfinity), scale);
    const float below =
        Border([&](float value) {
            return std::max(foot, Paikka(static_cast<double>(value), scale)) < position - slack;
        }).first;
    const float above =
        Border([&](float value) {
            const bool isFoot = isLog_ && shift_ + static_cast<double>(value) <= 1;
            return isFoot || !(Paikka(static_cast<double>(value), scale) > position + slack);
        }).second;
    return {below, above};
}

void AkseliProjektio::TapahtumienPaikat(std::span<const float> values,
                                        std::span<const int32_t> events, double scale,
                                        std::span<double> positions) const {
    assert(positions.size() >= events.size());
    std::array<double, kBlock> block;
    for (std::size_t done = 0; done < events.size(); done += kBlock) {
        const std::size_t count = std::min(kBlock, events.size() - done);
        PoimiArvot(values, events.subspan(done, count), block);
        if (KaytaNegAbsJuttua) {
            for (std::size_t i = 0; i < count; ++i) {
                block[i] = Bumped(block[i]);
            }
        }
        Place({block.data(), count}, scale, positions.data() + done);
    }
}

double AnnaPaikka(const Tiedosto& file, int32_t event, int16_t channel, double scale) {
    const AkseliProjektio axis(file.Channels(channel));
    return axis.TapahtumanPaikka(static_cast<double>(file.Data(event, channel)), scale);
}

void AnnaPaikat(const Tiedosto& file, std::span<const int32_t> events, int16_t channel,
                double scale, std::span<double> positions) {
    const AkseliProjektio axis(file.Channels(channel));
    axis.TapahtumienPaikat(file.Data.Sarake(channel), events, scale, positions);
}

double AnnaLogPaikka(int32_t value, int32_t range, double scale) {
    return AkseliProjektio(true, range).Paikka(value, scale);
}

double Pyorista(double x, bool percent) {
    return Int(x * (percent ? 10000.0 : 100.0)) / 100.0;
}

}  // namespace tessarin
