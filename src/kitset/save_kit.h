#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kitset/outputs.h"

namespace vendrel {

/// What becomes of a saved grid that differs: somebody may have touched it up.
enum class DifferentGrid { Kept, Replaced };

/// What is to be saved of the painted kit, and how.
struct KitOrder {
    OutputChoice Outputs;
    const Exporter* Fonts = nullptr;  // for outputs that need them
    PlanSettings Plan;                // of the printed pages
    DifferentGrid Different = DifferentGrid::Replaced;
    /// Told before each output is written: which one, from 0, of how many. May be empty.
    std::function<void(int output, int outputs)> Begins = {};
    bool FromGrid = false;  // the saved grid is what the kit was made of
};

/// What was saved.
struct SavedKit {
    struct File {
        OutputId Output;
        std::filesystem::path Path;
    };
    std::string Mark;
    std::filesystem::path List;  // empty when there was nothing to save
    std::vector<File> Files;     // in the order of the outputs
    std::optional<NumberingCounts> Numbering;
    std::optional<PlanFigures> Plan;                           // when the pages were printed
    std::vector<std::pair<std::string, double>> Milliseconds;  // per output, and of the set
    std::vector<std::string> Notes;                            // what the painter should know
};

/// Writes the outputs as one set, all or none: sheet, reference and whatever else was ordered, and
/// the list of the kit, see KitSet. Pictures that earlier runs left stay; those that are of another
/// kit are named in the notes. Throws Error, FileError.
SavedKit SaveKit(Workplace& place, const KitOrder& order);

}  // namespace vendrel
