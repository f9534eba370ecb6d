// A table whose subscripts start at 1, as all tables of the session do.
#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

namespace tessarin {

/// `Taulu` means table. Slots 1 to `size()` hold values; slot 0 means "none" everywhere and has
/// no value here. Subscripts are checked in debug builds.
template <class T>
class Taulu {
  public:
    Taulu() = default;
    explicit Taulu(int slots) : values_(static_cast<std::size_t>(slots)) {}

    /// REQUIRES: 1 <= slot <= size().
    T& operator()(int slot) { return values_[Place(slot)]; }
    const T& operator()(int slot) const { return values_[Place(slot)]; }

    int size() const { return static_cast<int>(values_.size()); }
    bool Holds(int slot) const { return slot >= 1 && slot <= size(); }

    /// Grows or shrinks to `slots`; values that stay keep their content.
    void Mitoita(int slots) { values_.resize(static_cast<std::size_t>(slots)); }
    void Clear() { values_.clear(); }

    // In slot order, from slot 1.
    auto begin() { return values_.begin(); }
    auto end() { return values_.end(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

  private:
    std::size_t Place(int slot) const {
        assert(Holds(slot));
        return static_cast<std::size_t>(slot) - 1;
    }

    std::vector<T> values_;
};

}  // namespace tessarin
