// The one place where an event's value becomes a position on an axis.
//
// Every picture, bin and population test gets its positions here, so a region on the screen and
// the test of an event against it agree by construction.
#pragma once

#include <cstdint>
#include <span>

#include "core/Tiedosto.h"

namespace tessarin {

/// Regions are kept on a grid that goes from 0 to this on both axes, y from the top.
inline constexpr double kGrid = 10000;

/// log10(x) for x above 0, else 0. REQUIRES: x is not subnormal; no value of a file is.
double Log10Arvo(double x);

/// The same for a whole list, to the last bit. REQUIRES: logs is at least as long as values.
void Log10Arvot(std::span<const double> values, std::span<double> logs);

/// `LogKerroin` means log factor: 1 for x at or below 1, else log10(x) times k.
double LogKerroin(double x, double k);

/// The scale of one channel, worked out once.
///
/// A channel whose `Range` gives no scale (below 1 on a linear axis, 1 or less on a log one) has
/// all its values at position 0.
class AkseliProjektio {
  public:
    AkseliProjektio(bool isLog, int32_t range);
    explicit AkseliProjektio(const Kanava& channel)
        : AkseliProjektio(channel.IsLog, channel.Range) {}

    /// The position of `value` on an axis of length `scale`: 0 for anything at or below its foot
    /// and for what is not a number, above `scale` for a value above the channel's range.
    double Paikka(double value, double scale) const;

    /// The same for the value of an event, which the neg value bumper may move first.
    double TapahtumanPaikka(double value, double scale) const;

    /// The same for the values of a list of events, to the last bit: `positions[i]` is that of
    /// `values[events[i] - 1]`. Events that follow each other are placed fastest.
    void TapahtumienPaikat(std::span<const float> values, std::span<const int32_t> events,
                           double scale, std::span<double> positions) const;

    /// `Arvorajat` means value limits: values around a position, so that most events need no
    /// projection to tell on which side of it they are. `TapahtumanPaikka` is surely below
    /// `position` for every value below `below`, and surely above it for every value above `above`;
    /// what lies between them, and what is not a number, has to be projected. The limits are
    /// infinite where nothing is sure. REQUIRES: scale above 0.
    struct Arvorajat {
        float below;
        float above;
    };
    Arvorajat RajatPaikalle(double position, double scale) const;

  private:
    void Place(std::span<double> values, double scale, double* positions) const;

    bool isLog_;
    bool usable_;
    double range_;
    double span_ = 0;   // length of one decade, in units of the range
    double shift_ = 0;  // added to a value before its logarithm is taken
    double floor_ = 0;  // what the foot of the axis stands for
};

/// Places one event on a channel's axis.
///
/// `channel` is 1..`file.ChannelCount`, `event` 1..`file.EventCount`; callers check both.
/// `scale` is the length of the axis in whatever unit is wanted back: pixels, bins, grid units.
/// Gives 0 for anything at or below the foot of the axis, and more than `scale` for a value
/// above the channel's `Range`.
double AnnaPaikka(const Tiedosto& file, int32_t event, int16_t channel, double scale);

/// The same for a whole list: `positions[i]` is `AnnaPaikka` of `events[i]`, to the last bit.
/// REQUIRES: positions is at least as long as events; each event is 1..`file.EventCount`.
void AnnaPaikat(const Tiedosto& file, std::span<const int32_t> events, int16_t channel,
                double scale, std::span<double> positions);

/// The position of a whole number on a log axis of that range, whatever the channel says; plots
/// place their ticks with it.
double AnnaLogPaikka(int32_t value, int32_t range, double scale);

/// `Pyorista` means round: x cut to two decimals towards minus infinity; with `percent` a
/// fraction becomes a percentage with two decimals.
double Pyorista(double x, bool percent);

}  // namespace tessarin
