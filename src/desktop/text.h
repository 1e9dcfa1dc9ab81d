#pragma once

#include <QString>
#include <string_view>

namespace vendrel {

/// The program's texts are UTF-8.
[[nodiscard]] inline QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vendrel
