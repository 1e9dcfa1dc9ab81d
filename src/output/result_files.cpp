#include "output/result_files.h"

namespace vendrel {

KitName KitNameOf(const LoadedPhoto& photo, const WorkSettings& settings) {
    return {photo.PictureName, std::string(DifficultyWord(settings))};
}

std::filesystem::path ResultFile(const ProgramFolder& folder, const KitName& kit,
                                 std::string_view kind) {
    return folder.Path("Results/" + kit.Text() + " " + std::string(kind));
}

}  // namespace vendrel
