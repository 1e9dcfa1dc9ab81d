#include "output/result_files.h"

namespace vendrel {

KitName KitNameOf(const Workplace& place) {
    return {place.State.PictureName, std::string(DifficultyWord(place.State))};
}

std::filesystem::path ResultFile(const ProgramFolder& folder, const KitName& kit,
                                 std::string_view kind) {
    return folder.Path("Results/" + kit.Text() + " " + std::string(kind));
}

}  // namespace vendrel
