// The table of events by channels (or by populations) that a loaded file owns.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/ValueMemory.h"

namespace tessarin {

/// `TapahtumaTaulu` means event table: one row for each event, one column for each channel or
/// population. Both subscripts start at 1.
///
/// Each column has memory of its own, which tables share until one of them writes. A column that
/// nobody has written shares one block of zeros with all others of its table. So a copy of a table,
/// and a column more or less, move no values; fresh memory is what opening a file costs.
/// Reading never makes a column its own, writing always does.
template <class T>
class TapahtumaTaulu {
    static_assert(std::is_trivial_v<T>);

  public:
    /// Sizes the table and sets every value to 0; the old content is lost. Throws std::bad_alloc
    /// and leaves the table empty when there is no memory.
    /// REQUIRES: events >= 0, columns >= 0.
    void Mitoita(int32_t events, int columns) {
        Vapauta();
        zeros_ = Zeros(events);
        columns_.assign(static_cast<std::size_t>(columns), zeros_);
        events_ = events;
    }

    /// `LisaaSarake` means add a column: of zeros, behind the last. Throws std::bad_alloc with the
    /// table as it was.
    void LisaaSarake() { columns_.push_back(zeros_); }

    /// `PoistaSarake` means remove a column: those behind it move forward.
    /// REQUIRES: 1 <= column <= Columns().
    void PoistaSarake(int column) { columns_.erase(columns_.begin() + Index(column)); }

    /// Gives the memory back; the table is then 0 by 0.
    void Vapauta() { *this = TapahtumaTaulu(); }

    int32_t Events() const { return events_; }
    int Columns() const { return static_cast<int>(columns_.size()); }

    /// REQUIRES: 1 <= event <= Events(), 1 <= column <= Columns().
    T operator()(int32_t event, int column) const { return Sarake(column)[Row(event)]; }
    /// `Aseta` means set. REQUIRES: the same. Throws like `OmaSarake`.
    void Aseta(int32_t event, int column, T value) { OmaSarake(column)[Row(event)] = value; }

    /// `Sarake` means column: its values, to be read; element 0 is event 1. Good until the column
    /// is written to or goes. REQUIRES: 1 <= column <= Columns().
    std::span<const T> Sarake(int column) const {
        return {columns_[Place(column)].get(), Length()};
    }

    /// `OmaSarake` means own column: its values, to be written; no other table sees the change.
    /// REQUIRES: 1 <= column <= Columns(). Throws std::bad_alloc with the column as it was.
    std::span<T> OmaSarake(int column) {
        Column& own = columns_[Place(column)];
        if (own == zeros_) {
            own = Zeros(events_);
        } else if (own.use_count() > 1) {
            Column copy = Zeros(events_);
            std::copy_n(own.get(), Length(), copy.get());
            own = std::move(copy);
        }
        return {own.get(), Length()};
    }

    /// `UusiSarake` means new column: an own one of zeros in place of what it held, to be written.
    /// REQUIRES: 1 <= column <= Columns(). Throws std::bad_alloc with the column as it was.
    std::span<T> UusiSarake(int column) {
        Column fresh = Zeros(events_);
        columns_[Place(column)] = fresh;
        return {fresh.get(), Length()};
    }

    /// `NollaaSarake` means zero a column: every value becomes 0 and its memory is given back.
    /// REQUIRES: 1 <= column <= Columns().
    void NollaaSarake(int column) { columns_[Place(column)] = zeros_; }

    /// Whether both tables hold the very same memory for a column, so that it counts once.
    bool JakaaSarakkeen(int column, const TapahtumaTaulu& other) const {
        return columns_[Place(column)] == other.columns_[other.Place(column)];
    }

  private:
    using Column = std::shared_ptr<T[]>;

    static Column Zeros(int32_t events) {
        const auto count = static_cast<std::size_t>(events);
        if (count > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(T)) {
            throw std::bad_alloc();
        }
        auto block = VaraaNollattu(count * sizeof(T));
        auto* const first = static_cast<T*>(block.get());
        return Column(std::move(block), first);
    }

    std::size_t Length() const { return static_cast<std::size_t>(events_); }
    std::size_t Place(int column) const {
        assert(column >= 1 && column <= Columns());
        return static_cast<std::size_t>(column) - 1;
    }
    std::ptrdiff_t Index(int column) const { return static_cast<std::ptrdiff_t>(Place(column)); }
    std::size_t Row(int32_t event) const {
        assert(event >= 1 && event <= events_);
        return static_cast<std::size_t>(event) - 1;
    }

    Column zeros_;  // what a column is until somebody writes to it
    std::vector<Column> columns_;
    int32_t events_ = 0;
};

}  // namespace tessarin
