#include "forms/kit_desk.h"

#include <utility>

#include "convert/picture_name.h"
#include "convert/stipple_conversion.h"
#include "kitfile/kit_photo.h"
#include "kitfile/kit_places.h"
#include "kitfile/take_kit.h"
#include "shell/busy_pointer.h"
#include "shell/menu.h"
#include "storage/load_stipples.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/size_text.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostRecent = 9;  // what a digit chooses

const NoPhotoDecoder kNoDecoder;

// A layer without edits may know of a grid.
bool SameEdits(const EditLayer& a, const EditLayer& b) {
    return a == b || (a.Empty() && b.Empty());
}

// Whether it is watched is no part of a kit.
bool SameSettings(Settings a, const Settings& b) {
    a.WatchItPaint = b.WatchItPaint;
    return a == b;
}

}  // namespace

KitDesk::KitDesk(Workplace& place, const PhotoDecoder* decoder, PlanChoice& print)
    : place_(place), decoder_(decoder != nullptr ? *decoder : kNoDecoder), print_(print) {}

void KitDesk::Open(const fs::path& file) {
    KitFile kit = ReadKitFile(file);
    const FoundPhoto photo = FindKitPhoto(place_.Folder, kit.Photo);
    pendingFile_ = file;
    if (photo.Problem.empty()) {
        TakeUp(std::move(kit), photo.File);
        return;
    }
    problem_ = photo.Problem;
    pending_ = std::move(kit);
    place_.Screen.OpenForm(FormId::KitPhoto);
}

void KitDesk::Photo_Chosen(const fs::path& photo) {
    if (!pending_) {
        return;
    }
    const fs::path file = TakeKitPhoto(place_.Folder, decoder_, pending_->Photo, photo);
    place_.Screen.CloseForm(FormId::KitPhoto);
    TakeUp(*std::exchange(pending_, std::nullopt), file);
}

void KitDesk::PhotoCancel_Click() {
    pending_.reset();
    place_.Screen.CloseForm(FormId::KitPhoto);
}

void KitDesk::TakeUp(KitFile kit, const fs::path& photo) {
    GridReplacement replacement(place_, this);
    if (!replacement.Allowed()) {
        return;
    }
    const BusyPointer busy(place_.Screen);
    TakeKit(place_, kit, photo);
    replacement.Done();
    CheckSavedStipples(place_);
    print_.Restore(kit.Print);
    kit.Photo.File = photo.filename().string();
    file_ = pendingFile_;
    crop_ = kit.Crop;
    saved_ = std::move(kit);
}

bool KitDesk::IsAsSaved() const {
    const WorkState& state = place_.State;
    const KitFile& kit = *saved_;
    const bool samePaints = paletteIsLent_ || (state.FinalColors == kit.FinalColors &&
                                               SamePaints(state.PaintColors, kit.Paints));
    return state.PictureName == kit.Title && SameSettings(state.Chosen, kit.Chosen) && samePaints &&
           print_.Settings() == kit.Print && state.Protected == kit.Protected &&
           SameEdits(state.Edits, kit.Layer.Edits) && SameStipples(state.Stipples, kit.Stipples);
}

bool KitDesk::Unsaved() const {
    return place_.State->HasUnsavedWork || (saved_ && !IsAsSaved());
}

// A new kit may have the title of another, and so may a kit that was named anew.
bool KitDesk::MayWriteTo(const fs::path& file) const {
    const bool own = saved_ && file == file_;
    return own || !Stands(file) ||
           place_.Screen.Ask("Save Kit",
                             file.filename().string() + " is another kit already. Replace it?");
}

fs::path KitDesk::OwnFile() const {
    return saved_ && Title() == saved_->Title ? file_ : KitPath(place_.Folder, Title());
}

bool KitDesk::Save() {
    const fs::path file = OwnFile();
    if (!MayWriteTo(file)) {
        return false;
    }
    WriteTo(file);
    return true;
}

bool KitDesk::Save(const EditSheet& sheet, const KitEdits& edits) {
    const fs::path file = OwnFile();
    if (!MayWriteTo(file)) {
        return false;
    }
    KitFile kit = KitInHand();
    TakeStipples(kit, {sheet.Paints(), sheet.Cells(), edits});
    Keep(file, std::move(kit));
    return true;
}

bool KitDesk::SaveAs_Click(const std::string& title) {
    if (!MayNameKit(title)) {
        throw Error("A kit cannot be named \"" + title +
                    "\". Choose a name without slashes, dots and control characters.");
    }
    const fs::path file = KitPath(place_.Folder, title);
    if (!MayWriteTo(file)) {
        return false;
    }
    const std::string before = std::exchange(place_.State->PictureName, title);
    try {
        WriteTo(file);
    } catch (...) {
        place_.State->PictureName = before;
        throw;
    }
    place_.Screen.SetCaption("Vendrel -" + title);
    place_.Screen.CloseForm(FormId::SaveKit);
    return true;
}

void KitDesk::TitleCancel_Click() {
    place_.Screen.CloseForm(FormId::SaveKit);
}

void KitDesk::WriteTo(const fs::path& file) {
    const BusyPointer busy(place_.Screen);
    if (!place_.MainMenu[MenuId::ColorPickerSelect].Enabled) {
        AutoChangeToStipples(place_);  // a setting waits for it
    }
    Keep(file, KitInHand());
    WorkIsSaved(place_.State);
}

KitFile KitDesk::KitInHand() const {
    KitFile kit = KitOf(place_, saved_ ? saved_->Photo : KitPhotoOf(place_.State->PicturePath),
                        print_.Settings(), saved_ ? &*saved_ : nullptr);
    kit.Crop = crop_;
    return kit;
}

void KitDesk::CloseFor(std::optional<KitCrop> crop) {
    Close();
    crop_ = std::move(crop);
}

void KitDesk::Keep(const fs::path& file, KitFile kit) {
    WriteKitFile(file, kit);
    file_ = file;
    saved_ = std::move(kit);
}

std::vector<fs::path> KitDesk::Recent() const {
    return RecentKits(place_.Folder, kMostRecent);
}

KitLook LookAtKit(const fs::path& file) {
    const KitFile kit = ReadKitFile(file);
    const Grid<StippleCell>& cells = kit.Stipples;
    KitLook look{Surface(cells.Across(), cells.Down()), {}};
    for (int y = 1; y <= cells.Down(); ++y) {
        for (int x = 1; x <= cells.Across(); ++x) {
            look.Picture.Set(x - 1, y - 1, ColorOf(kit.Paints[cells(x, y).ColorIndex]));
        }
    }
    look.Description = kit.Title + "\n" + std::string(TraitsOf(kit.Chosen.Level).Word) + ", " +
                       SizeText(cells.Across(), cells.Down()) + " stipples, " +
                       std::to_string(kit.Paints.Count()) + " paints\nof " + kit.Photo.File;
    return look;
}

}  // namespace vendrel
