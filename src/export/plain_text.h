#pragma once

#include <QtCore/QString>
#include <string>

namespace vendrel {

/// A name as drawings and pages may hold it: bytes that are no UTF-8 are taken for Windows-1252,
/// and what XML has no place for, control characters above all, is left out.
[[nodiscard]] QString PlainText(const std::string& name);

}  // namespace vendrel
