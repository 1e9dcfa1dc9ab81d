#pragma once

#include "shell/settings.h"
#include "support/color.h"

namespace vendrel {

/// The settings as the work goes by them: what was chosen, and what follows from it.
struct WorkSettings {
    Settings Chosen;
    int StippleSize = 8;  // pixels: 8 Easy, 6 Medium, 4 Difficult
    int HalfStipple = 4;
    int StippleCheck = 4;
    int FinalColors = 50;  // at most what was chosen; a template or a loaded grid may have fewer
    bool KeepAllColors = false;
    int CleanLevel = 8;
    Color EdgeColor = Rgb(0, 255, 0);
    Color BorderColor = Rgb(0, 0, 0);
    Color SymbolColor = Rgb(125, 125, 125);
};

/// Sets `StippleSize`, what hangs on it and, for 8, 6 and 4 pixels, the difficulty it belongs to.
void SizeStipples(WorkSettings& settings, int size);

/// `StippleCheck` is 3 for stipples of 4 or 6 pixels, 4 for 8; other sizes leave it as it was.
void SetStippleCheck(WorkSettings& settings);

/// The word in the names of files: "Easy", "Medium" or "Difficult".
[[nodiscard]] inline std::string_view DifficultyWord(const WorkSettings& settings) {
    return TraitsOf(settings.Chosen.Level).Word;
}

}  // namespace vendrel
