#pragma once

#include <QString>
#include <string_view>

namespace vendrel {

/// The program's texts are UTF-8.
[[nodiscard]] inline QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// For titles that hold names: an & there underlines nothing.
[[nodiscard]] inline QString WithoutMnemonics(QString title) {
    return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace vendrel
