#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Settings, symbols and menus as they stand before the first photo: Easy, 50 paints, pixel
/// averaging. Throws Error when the symbols cannot be read.
void PrepareSettings(Workplace& place);

/// Creates the folders that are missing; a new data folder gets the shipped paint list. Kits that a
/// killed program left half-saved are finished or taken back. Answers
/// whether the pictures folder had to be made, that is, whether the program runs here for the
/// first time. What programs that were killed left half-written is removed. Throws FileError.
[[nodiscard]] bool PrepareFolders(const ProgramFolder& program);

/// Puts the sample photo into Pictures where it is missing, so that there is always one to try.
/// Throws FileError.
void OfferSample(const Workplace& place);

/// Catalogue, paint sets, the saved selection and the first palette. Throws Error.
void PreparePaints(Workplace& place);

}  // namespace vendrel
