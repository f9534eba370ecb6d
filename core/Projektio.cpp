#include "core/Projektio.h"

#include <cassert>
#include <cmath>

#include "core/Muuttujat.h"
#include "core/Numbers.h"

namespace tessarin {
namespace {

constexpr int32_t kShiftedRange = 262144;  // the 18-bit scale

// The neg value bumper: values that a log axis could not show are folded to just above 1.
double Bumped(double value) {
    return value < 1.0 ? std::fabs(value) + 1.0 : value;
}

}  // namespace

double Log10Arvo(double x) {
    return x > 0 ? std::log10(x) : 0;
}

double LogKerroin(double x, double k) {
    return x <= 1 ? 1 : std::log10(x) * k;
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

double AnnaPaikka(const Tiedosto& file, int32_t event, int16_t channel, double scale) {
    const AkseliProjektio axis(file.Channels(channel));
    return axis.TapahtumanPaikka(static_cast<double>(file.Data(event, channel)), scale);
}

void AnnaPaikat(const Tiedosto& file, std::span<const int32_t> events, int16_t channel,
                double scale, std::span<double> positions) {
    assert(positions.size() >= events.size());
    const AkseliProjektio axis(file.Channels(channel));
    const std::span<const float> values = file.Data.Sarake(channel);
    for (std::size_t i = 0; i < events.size(); ++i) {
        const auto row = static_cast<std::size_t>(events[i]) - 1;
        positions[i] = axis.TapahtumanPaikka(static_cast<double>(values[row]), scale);
    }
}

double AnnaLogPaikka(int32_t value, int32_t range, double scale) {
    return AkseliProjektio(true, range).Paikka(value, scale);
}

double Pyorista(double x, bool percent) {
    return Int(x * (percent ? 10000.0 : 100.0)) / 100.0;
}

}  // namespace tessarin
