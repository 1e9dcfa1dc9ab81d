#pragma once

#include <string>

namespace vendrel {

/// A version of an installed font.
struct FontVersion {
    const char* Family;
    const char* File;  // its name, wherever it lies
    const char* Version;
};

/// The one the shipped symbols were drawn with; later ones have other shapes.
inline constexpr FontVersion kSymbolFont = {"Liberation Mono", "LiberationMono-Regular.ttf",
                                            "1.07.4"};

/// Puts that version in force for this program, whichever of several the system prefers. Answers
/// an empty text, or a sentence saying that it was not found. Needs a running QGuiApplication.
[[nodiscard]] std::string UseVersion(const FontVersion& wanted);

}  // namespace vendrel
