#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <string>

#include "support/color.h"

namespace vendrel {

enum class Weight { Normal, Bold };

/// The font of headings and lists, `size` units of the painter from line to line of its em square.
/// Throws Error when no such font is installed.
[[nodiscard]] QFont TextFont(int size, Weight weight = Weight::Normal);

/// UTF-8 text for the toolkit.
[[nodiscard]] QString ToQt(const std::string& text);
[[nodiscard]] QColor ToQt(Color color);

}  // namespace vendrel
