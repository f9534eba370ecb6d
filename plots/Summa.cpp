#include "plots/Summa.h"

#include <bit>
#include <cassert>

#include "core/WideVectors.h"

namespace tessarin {
namespace {

double Masked(double value, uint64_t mask) {
    return std::bit_cast<double>(std::bit_cast<uint64_t>(value) & mask);
}

}  // namespace

TESSARIN_WIDE void Summa::Lisaa(std::span<const double> values, std::span<const uint64_t> masks) {
    assert(masks.size() >= values.size());
    std::array<double, kParts> parts = parts_;
    std::size_t i = 0;
    for (; i + kParts <= values.size(); i += kParts) {
        for (std::size_t part = 0; part < kParts; ++part) {
            parts[part] += Masked(values[i + part], masks[i + part]);
        }
    }
    for (std::size_t part = 0; i < values.size(); ++i, ++part) {
        parts[part] += Masked(values[i], masks[i]);
    }
    parts_ = parts;
}

TESSARIN_WIDE void Summa::LisaaEtaisyydet(std::span<const double> values,
                                          std::span<const uint64_t> masks, double centre) {
    assert(masks.size() >= values.size());
    std::array<double, kParts> parts = parts_;
    std::size_t i = 0;
    for (; i + kParts <= values.size(); i += kParts) {
        for (std::size_t part = 0; part < kParts; ++part) {
            const double distance = values[i + part] - centre;
            parts[part] += Masked(distance * distance, masks[i + part]);
        }
    }
    for (std::size_t part = 0; i < values.size(); ++i, ++part) {
        const double distance = values[i] - centre;
        parts[part] += Masked(distance * distance, masks[i]);
    }
    parts_ = parts;
}

double Summa::Yhteensa() const {
    double sum = 0;
    for (const double part : parts_) {
        sum += part;
    }
    return sum;
}

}  // namespace tessarin
