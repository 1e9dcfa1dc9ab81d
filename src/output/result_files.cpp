#include "output/result_files.h"

#include <string>

namespace vendrel {

std::filesystem::path ResultFile(const Workplace& place, std::string_view kind) {
    return place.Folder.Path("Results/" + place.State.PictureName + " " +
                             std::string(DifficultyWord(place.State)) + " " + std::string(kind) +
                             ".BMP");
}

}  // namespace vendrel
