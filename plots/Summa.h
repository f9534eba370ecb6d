// Sums over many events, fast and always in the same order.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarin {

/// `Summa` means sum. It is kept in parts side by side, to which numbers go in turn, so that vector
/// registers hold it; the order does not depend on the processor, and so the last bit does not.
/// A number whose mask is 0 counts as none at all, whatever it is.
class Summa {
  public:
    /// REQUIRES: masks is at least as long as values, each all ones or 0; so below.
    void Lisaa(std::span<const double> values, std::span<const uint64_t> masks);
    /// Adds the squared distances from `centre`.
    void LisaaEtaisyydet(std::span<const double> values, std::span<const uint64_t> masks,
                         double centre);

    /// `Yhteensa` means in all.
    double Yhteensa() const;

  private:
    static constexpr std::size_t kParts = 8;
    std::array<double, kParts> parts_{};
};

}  // namespace tessarin
