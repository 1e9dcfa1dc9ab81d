#include "forms/kit_saving.h"

#include <string>

#include "forms/whole_progress.h"
#include "shell/busy_pointer.h"

namespace vendrel {
namespace {

// The caption names the photo again, however the saving ends.
class CaptionBack {
  public:
    explicit CaptionBack(const Workplace& place) : place_(place) {}
    ~CaptionBack() { place_.Screen.SetCaption("Vendrel -" + place_.State->PictureName); }
    CaptionBack(const CaptionBack&) = delete;
    CaptionBack& operator=(const CaptionBack&) = delete;

  private:
    const Workplace& place_;
};

SavedKit SaveBusily(Workplace& place, KitOrder order) {
    const BusyPointer busy(place.Screen);
    const CaptionBack caption(place);
    WholeProgress whole(place.Screen);
    order.Begins = [&whole](int output, int outputs) { whole.Begin(output, outputs); };
    Workplace within{*place.State, *place.Frames, *place.MainMenu, whole, place.Folder};
    return SaveKit(within, order);
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
