#pragma once

namespace vendrel {

/// A reference that is constant where it is reached through something constant. A plain reference
/// would let a `const Workplace&` change everything. Cannot be copied, which would shed the const.
template <class T>
class Part {
  public:
    Part(T& whole) : whole_(whole) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    ~Part() = default;

    operator T&() { return whole_; }
    operator const T&() const { return whole_; }
    [[nodiscard]] T* operator->() { return &whole_; }
    [[nodiscard]] const T* operator->() const { return &whole_; }
    template <class Index>
    [[nodiscard]] auto& operator[](Index index) {
        return whole_[index];
    }
    template <class Index>
    [[nodiscard]] const auto& operator[](Index index) const {
        return whole_[index];
    }
    [[nodiscard]] T& operator*() { return whole_; }
    [[nodiscard]] const T& operator*() const { return whole_; }

  private:
    T& whole_;
};

}  // namespace vendrel
