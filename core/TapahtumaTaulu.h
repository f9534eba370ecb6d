// The table of events by channels (or by populations) that a loaded file owns.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <type_traits>

namespace tessarin {

/// `TapahtumaTaulu` means event table: one row for each event, one column for each channel or
/// population. Column-major: the values of one column lie next to each other. Both subscripts
/// start at 1. It can be moved, and copied only on purpose with `CopyFrom`.
template <class T>
class TapahtumaTaulu {
    static_assert(std::is_trivial_v<T>);

  public:
    /// Sizes the table and sets every value to 0; the old content is lost. A large table costs
    /// memory only where it is written. Throws std::bad_alloc and leaves the table empty when the
    /// memory cannot be had.
    /// REQUIRES: events >= 0, columns >= 0.
    void Mitoita(int32_t events, int columns) {
        Vapauta();
        values_.reset(Allocate(events, columns));
        events_ = events;
        columns_ = columns;
    }

    /// Adds one column of zeros behind the last, keeping all others. Throws std::bad_alloc with
    /// the table as it was.
    void LisaaSarake() {
        std::unique_ptr<T[], Free> grown(Allocate(events_, columns_ + 1));
        std::copy_n(values_.get(), Count(), grown.get());
        values_ = std::move(grown);
        ++columns_;
    }

    /// Takes over size and values. Throws std::bad_alloc.
    void CopyFrom(const TapahtumaTaulu& other) {
        if (events_ != other.events_ || columns_ != other.columns_) {
            Mitoita(other.events_, other.columns_);
        }
        std::copy_n(other.values_.get(), other.Count(), values_.get());
    }

    /// Gives the memory back; the table is then 0 by 0.
    void Vapauta() {
        values_.reset();
        events_ = 0;
        columns_ = 0;
    }

    int32_t Events() const { return events_; }
    int Columns() const { return columns_; }

    /// REQUIRES: 1 <= event <= Events(), 1 <= column <= Columns().
    T& operator()(int32_t event, int column) { return values_[Place(event, column)]; }
    const T& operator()(int32_t event, int column) const { return values_[Place(event, column)]; }

    /// One column as a span; element 0 is event 1. REQUIRES: 1 <= column <= Columns().
    std::span<T> Sarake(int column) { return {values_.get() + Start(column), Length()}; }
    std::span<const T> Sarake(int column) const {
        return {values_.get() + Start(column), Length()};
    }

  private:
    struct Free {
        void operator()(T* values) const { std::free(values); }
    };

    static T* Allocate(int32_t events, int columns) {
        const auto count = static_cast<std::size_t>(events) * static_cast<std::size_t>(columns);
        if (count > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(T)) {
            throw std::bad_alloc();
        }
        // calloc takes untouched zero pages from the system; a vector would write each of them.
        auto* values = static_cast<T*>(std::calloc(count == 0 ? 1 : count, sizeof(T)));
        if (values == nullptr) {
            throw std::bad_alloc();
        }
        return values;
    }

    std::size_t Length() const { return static_cast<std::size_t>(events_); }
    std::size_t Count() const { return Length() * static_cast<std::size_t>(columns_); }
    std::size_t Start(int column) const {
        assert(column >= 1 && column <= columns_);
        return (static_cast<std::size_t>(column) - 1) * Length();
    }
    std::size_t Place(int32_t event, int column) const {
        assert(event >= 1 && event <= events_);
        return Start(column) + static_cast<std::size_t>(event) - 1;
    }

    std::unique_ptr<T[], Free> values_;
    int32_t events_ = 0;
    int columns_ = 0;
};

}  // namespace tessarin
