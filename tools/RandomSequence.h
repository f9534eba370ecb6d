// The random numbers of the expression language: a fixed sequence, so that results can be repeated.
#pragma once

#include <bit>
#include <cstdint>

namespace tessarin {

/// Numbers from 0 up to but not including 1, from a linear congruence modulo 2 to the power 24.
class RandomSequence {
  public:
    float Next() {
        state_ = (state_ * 0x43fd43fdU + 0xc39ec3U) & 0xffffffU;
        return Last();
    }

    float Last() const { return static_cast<float>(state_) / 16777216.0F; }

    /// Goes to a place of the sequence that depends on nothing but `seed`.
    void Restart(float seed) {
        const auto bits = std::bit_cast<uint32_t>(seed);
        state_ = (bits + (bits >> 24U)) & 0xffffffU;
    }

  private:
    uint32_t state_ = 0x50000;
};

}  // namespace tessarin
