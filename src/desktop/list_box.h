#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace vendrel {

/// Makes a list show `entries` with `index` chosen (-1: none), without telling anybody.
void MirrorList(QListWidget& list, const std::vector<std::string>& entries, int index);

/// Calls `chosen` with the row whenever mouse or keyboard choose one.
void OnChosen(QListWidget& list, const std::function<void(int)>& chosen);

/// Calls `taken` when Enter or a double click takes the row chosen. Enter then stays with the list:
/// it would press the window's default button too.
void OnTaken(QListWidget& list, const std::function<void()>& taken);

}  // namespace vendrel
