#pragma once

#include <cassert>
#include <iterator>

namespace vendrel {

/// Whether a list counted from 0 has an entry `index`; -1 stands for none chosen.
template <class List>
[[nodiscard]] bool Holds(const List& list, int index) {
    return index >= 0 && index < std::ssize(list);
}

/// Entry `index` of a list counted from 0.
template <class List>
[[nodiscard]] decltype(auto) At(List&& list, int index) {
    assert(Holds(list, index));
    return std::begin(list)[index];
}

}  // namespace vendrel
