#include "forms/kit_saving.h"

#include <string>

#include "shell/busy_pointer.h"

namespace vendrel {
namespace {

SavedKit SaveBusily(Workplace& place, const KitOrder& order) {
    const BusyPointer busy(place.Screen);
    SavedKit saved = SaveKit(place, order);
    place.Screen.SetCaption("Vendrel -" + place.State->PictureName);
    return saved;
}

}  // namespace

std::vector<std::filesystem::path> SaveFromWindow(Workplace& place, const KitOrder& order) {
    const SavedKit saved = SaveBusily(place, order);
    std::string sentences;
    for (const std::string& note : saved.Notes) {
        sentences += (sentences.empty() ? "" : "\n\n") + note;
    }
    if (!sentences.empty()) {
        place.Screen.ShowMessage("Files Of Another Kit", sentences);
    }
    std::vector<std::filesystem::path> files;
    for (const SavedKit::File& file : saved.Files) {
        files.push_back(file.Path);
    }
    return files;
}

std::filesystem::path SaveFromWindow(Workplace& place, OutputId output) {
    KitOrder order;
    order.Outputs.Add(output);
    return SaveFromWindow(place, order).front();
}

}  // namespace vendrel
