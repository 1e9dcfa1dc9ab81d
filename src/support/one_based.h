#pragma once

#include <cassert>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

namespace vendrel {

/// A list whose entries are numbered from 1, as paints, symbols and areas are. Entry 0 exists and
/// stays empty, so that the number of something not found can be looked up as well.
template <class T>
class OneBased {
  public:
    OneBased() : entries_(1) {}
    /// `count` entries, all alike.
    explicit OneBased(int count, const T& entry = {})
        : entries_(static_cast<std::size_t>(count) + 1, entry) {
        entries_.front() = {};
    }
    OneBased(std::initializer_list<T> entries) : entries_(1) {
        entries_.insert(entries_.end(), entries);
    }

    /// Entries without the empty one: 1..Count() can be asked for.
    [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()) - 1; }
    [[nodiscard]] bool Empty() const { return Count() == 0; }
    [[nodiscard]] bool Holds(int number) const { return number >= 1 && number <= Count(); }

    [[nodiscard]] T& operator[](int number) { return entries_[At(number)]; }
    [[nodiscard]] const T& operator[](int number) const { return entries_[At(number)]; }
    [[nodiscard]] T& Last() { return entries_.back(); }
    [[nodiscard]] const T& Last() const { return entries_.back(); }

    void Add(T entry) { entries_.push_back(std::move(entry)); }
    void Resize(int count) { entries_.resize(static_cast<std::size_t>(count) + 1); }
    void Clear() { entries_.resize(1); }
    void Reserve(int count) { entries_.reserve(static_cast<std::size_t>(count) + 1); }
    void Remove(int number) {
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(At(number)));
    }

    // From 1 on.
    [[nodiscard]] auto begin() { return entries_.begin() + 1; }
    [[nodiscard]] auto end() { return entries_.end(); }
    [[nodiscard]] auto begin() const { return entries_.begin() + 1; }
    [[nodiscard]] auto end() const { return entries_.end(); }
    [[nodiscard]] std::span<const T> Entries() const { return std::span(entries_).subspan(1); }

    bool operator==(const OneBased&) const = default;

  private:
    [[nodiscard]] std::size_t At(int number) const {
        assert(number >= 0 && number <= Count());
        return static_cast<std::size_t>(number);
    }

    std::vector<T> entries_;
};

}  // namespace vendrel
