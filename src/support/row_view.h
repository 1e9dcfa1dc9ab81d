#pragma once

#include <cassert>
#include <cstddef>
#include <ranges>
#include <span>
#include <type_traits>

namespace vendrel {

/// One row of a grid or picture, or any values in line, numbered by column from 0.
template <class T>
class RowView {
  public:
    RowView() = default;
    RowView(T* first, int count) : first_(first), count_(count) {}
    /// Of a list, which must outlive it.
    template <class List>
    requires(!std::is_same_v<std::remove_cvref_t<List>, RowView>)
        // NOLINTNEXTLINE(google-explicit-constructor): as a span is made
        RowView(List& list)
        : first_(std::data(list)), count_(static_cast<int>(std::ssize(list))) {}

    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] T& operator[](int column) const {
        assert(column >= 0 && column < count_);
        return first_[column];
    }

    [[nodiscard]] RowView First(int count) const { return {first_, count}; }
    [[nodiscard]] RowView From(int column) const { return {first_ + column, count_ - column}; }

    [[nodiscard]] T* begin() const { return first_; }
    [[nodiscard]] T* end() const { return first_ + count_; }
    [[nodiscard]] T* data() const { return first_; }
    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(count_); }

  private:
    T* first_ = nullptr;
    int count_ = 0;
};

}  // namespace vendrel

/// A row may outlive its view.
template <class T>
inline constexpr bool std::ranges::enable_borrowed_range<vendrel::RowView<T>> = true;
