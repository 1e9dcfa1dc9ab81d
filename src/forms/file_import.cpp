#include "forms/file_import.h"

#include <algorithm>
#include <utility>

#include "convert/photo_import.h"
#include "edits/kit_base.h"
#include "forms/list_entries.h"
#include "forms/photo_look.h"
#include "forms/reading_shown.h"
#include "intake/keep_picture.h"
#include "intake/photo_intake.h"
#include "intake/photo_names.h"
#include "kitfile/kit_photo.h"
#include "kitfile/kit_places.h"
#include "paints/restore.h"
#include "shell/menu.h"
#include "storage/load_stipples.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/list.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

const PhotoDecoder& OrNone(const PhotoDecoder* decoder) {
    static const NoPhotoDecoder none;
    return decoder != nullptr ? *decoder : none;
}

}  // namespace

FileImport::FileImport(Workplace& place, const PhotoDecoder* decoder)
    : place_(place), decoder_(OrNone(decoder)), crop_(place), asking_(place, crop_), fit_(place) {}

void FileImport::Remember() {
    const WorkState& state = place_.State;
    before_ = {state.PicturesFolder,
               state.PictureFile,
               state.PicturePath,
               state.PictureName,
               state.PictureLoaded,
               state.BmpWidth,
               state.BmpHeight,
               place_.Frames->CaptureFrame.Visible,
               place_.Frames->WorkFrame.Visible,
               place_.MainMenu[MenuId::PrintMenu].Enabled,
               state.Chosen.Fit};
}

void FileImport::PutBack() {
    WorkState& state = place_.State;
    state.PicturesFolder = before_.PicturesFolder;
    state.PictureFile = before_.PictureFile;
    state.PicturePath = before_.PicturePath;
    state.PictureName = before_.PictureName;
    state.PictureLoaded = before_.PictureLoaded;
    state.BmpWidth = before_.BmpWidth;
    state.BmpHeight = before_.BmpHeight;
    place_.Frames->CaptureFrame.Visible = before_.CaptureShown;
    place_.Frames->WorkFrame.Visible = before_.WorkShown;
    place_.MainMenu[MenuId::PrintMenu].Enabled = before_.SaveEnabled;
    state.Chosen.Fit = before_.Fit;
}

void FileImport::Form_Load() {
    controls_ = {};
    clicked_.clear();
    fit_.Clear();
    controls_.ImportDrive = ListDrives();
    controls_.DriveIndex = DriveOf(controls_.ImportDrive, FullPath(place_.Folder.Root()));
}

void FileImport::ShowKits() {
    controls_.Caption = "Open Kit or Photo";
    controls_.Files = "Kits and &photos";
    const std::vector<fs::path> kits = kits_->Recent();
    ShowFolder(kits.empty() ? place_.Folder.Path("Pictures") : kits.front().parent_path());
}

void FileImport::ShowFolder(const fs::path& folder) {
    controls_.Folder = FullPath(folder);
    controls_.ImportDir = ListFolders(controls_.Folder);
    controls_.ImportFile = ListPhotos(controls_.Folder, Endings());
    const auto chosen = std::find(controls_.ImportFile.begin(), controls_.ImportFile.end(),
                                  ChosenPhoto().filename().string());
    const bool listed = chosen != controls_.ImportFile.end() &&
                        FullPath(ChosenPhoto()).parent_path() == controls_.Folder;
    controls_.FileIndex = listed ? static_cast<int>(chosen - controls_.ImportFile.begin()) : -1;
    if (fit_.Controls().Description.empty()) {
        ShowPreview();
    }
}

std::vector<std::string> FileImport::Endings() const {
    std::vector<std::string> endings = decoder_.Endings();
    if (kits_ != nullptr) {
        endings.emplace_back("kit");
    }
    return endings;
}

bool FileImport::IsKit(const fs::path& file) const {
    return kits_ != nullptr && IsKitName(file);
}

void FileImport::ImportDrive_Change(int drive) {
    if (Holds(controls_.ImportDrive, drive)) {
        controls_.DriveIndex = drive;
        ShowFolder(At(controls_.ImportDrive, drive).Root);
    }
}

void FileImport::ImportDir_Change(int folder) {
    if (Holds(controls_.ImportDir, folder)) {
        const std::string& name = At(controls_.ImportDir, folder);
        ShowFolder(name == ".." ? controls_.Folder.parent_path() : controls_.Folder / name);
        controls_.DriveIndex = DriveOf(controls_.ImportDrive, controls_.Folder);
    }
}

void FileImport::ImportFile_Click(int file) {
    if (Holds(controls_.ImportFile, file)) {
        controls_.FileIndex = file;
        place_.State->PictureFile = At(controls_.ImportFile, file);
        clicked_ = controls_.Folder / place_.State->PictureFile;
        ShowPreview();
    }
}

fs::path FileImport::ChosenPhoto() const {
    const std::string& file = place_.State->PictureFile;
    if (file.empty() || !clicked_.empty()) {
        return clicked_;
    }
    return place_.Folder.Path("Pictures") / file;
}

void FileImport::ShowPreview() {
    const fs::path photo = ChosenPhoto();
    fit_.Clear();
    if (photo.empty()) {
        return;
    }
    try {
        Describe(photo);
    } catch (const Error& error) {
        // Looking is not choosing: OK is where a broken photo is refused.
        fit_.Clear(error.what());
    }
}

void FileImport::Describe(const fs::path& photo) {
    if (IsKit(photo)) {
        KitLook look = LookAtKit(photo);
        fit_.Clear(look.Description, std::move(look.Picture));
        return;
    }
    const std::string name = photo.filename().string();
    fit_.Clear(name + "\nReading ...");
    IncomingPhoto incoming(photo, decoder_);
    const Surface picture = ReadAnyPhoto(place_.Screen, incoming);
    fit_.Show(name, picture, incoming.Size(), lastWay_);
}

void FileImport::CropButton_Click() {
    if (fit_.Controls().CropEnabled) {
        OpenCrop(ChosenPhoto(), [this](const std::string& file) { ChooseCrop(file); });
    }
}

void FileImport::OpenCrop(const fs::path& photo, CropPhoto::Kept kept) {
    IncomingPhoto incoming(photo, decoder_);
    if (incoming.HasOwnColors()) {
        MentionColors(place_.State, place_.Screen, photo);
    }
    crop_.Open(ReadAnyPhoto(place_.Screen, incoming), incoming.Stem(),
               [this, of = photo.filename().string(), kept](const std::string& file) {
                   NoteCrop(file, of);
                   kept(file);
               });
}

void FileImport::NoteCrop(const std::string& pictureFile, const std::string& of) {
    crops_[pictureFile] = {of, crop_.KeptPart().QuartersRight, crop_.KeptRect()};
}

void FileImport::ChooseCrop(const std::string& pictureFile) {
    place_.State->PictureFile = pictureFile;
    clicked_.clear();
    fit_.Clear();
    ShowFolder(place_.Folder.Path("Pictures"));
    controls_.DriveIndex = DriveOf(controls_.ImportDrive, controls_.Folder);
}

std::string FileImport::TakeIn(const fs::path& photo, PhotoFit way) {
    IncomingPhoto incoming(photo, decoder_);
    if (incoming.IsPlainBitmap()) {
        RequireResultNames(photo, kLongestResult);
    }
    if (!IsInPictures(place_.Folder, incoming)) {
        RequirePaintable(incoming, TargetOf(place_.Screen, place_.State), PartOf(way));
    }
    if (PartOf(way) != CropPart::Whole && incoming.HasOwnColors()) {
        MentionColors(place_.State, place_.Screen, photo);  // a crop no longer tells
    }
    const ReadingShown reading(place_.Screen);
    return Cropped(TakeIntoPictures(place_.Folder, incoming, reading.Progress()), way);
}

std::string FileImport::Cropped(const std::string& pictureFile, PhotoFit way) {
    const CropTarget target = TargetOf(place_.Screen, place_.State);
    std::string file = CropInPictures(place_.Folder, pictureFile, target, PartOf(way));
    if (file != pictureFile) {
        crops_[file] = CropOf(place_.Folder.Path("Pictures/" + pictureFile), target, PartOf(way));
    }
    return file;
}

// One that no part of would fit is refused where it is taken.
bool FileImport::MustAsk(BitmapSize photo) const {
    const CropTarget target = TargetOf(place_.Screen, place_.State);
    return photo.Width > 0 && photo.Height > 0 && SheetStretch(photo, target) > kStretchThatShows &&
           SheetStretch(LargestCrop(photo, target), target) != kNoSheet;
}

void FileImport::TakePhoto(const fs::path& photo) {
    if (IsKit(photo)) {
        kits_->Open(photo);
        return;
    }
    IncomingPhoto incoming(photo, decoder_);
    if (!MustAsk(incoming.Size())) {
        TakeAndLoad([&] { return TakeIn(photo, PhotoFit::Keep); }, PhotoFit::Keep);
        return;
    }
    if (incoming.HasOwnColors()) {
        MentionColors(place_.State, place_.Screen, photo);
    }
    Surface picture = ReadAnyPhoto(place_.Screen, incoming);
    asking_.Open(
        {std::move(picture), incoming.Size(), photo.filename().string(), incoming.Stem()}, lastWay_,
        [this, photo](PhotoFit way, const Surface& /*picture*/) {
            lastWay_ = way;
            TakeAndLoad([&] { return TakeIn(photo, way); }, way);
        },
        [this, of = photo.filename().string()](const std::string& file) {
            NoteCrop(file, of);
            LoadCrop(file);
        });
}

void FileImport::TakePicture(const Surface& picture) {
    const auto take = [this](PhotoFit way, const Surface& pasted) {
        TakeAndLoad([&] { return Cropped(KeepPicture(place_.Folder, kPastedStem, pasted), way); },
                    way);
    };
    const BitmapSize size{picture.Width(), picture.Height()};
    if (!MustAsk(size)) {
        take(PhotoFit::Keep, picture);
        return;
    }
    asking_.Open(
        {picture, size, kPastedStem, kPastedStem}, lastWay_,
        [this, take](PhotoFit way, const Surface& pasted) {
            lastWay_ = way;
            take(way, pasted);
        },
        [this](const std::string& file) { LoadCrop(file); });
}

void FileImport::CropLoaded() {
    OpenCrop(place_.State->PicturePath, [this](const std::string& file) {
        TakeAndLoad([&] { return file; }, PhotoFit::Keep, &crop_.KeptPart());
    });
}

void FileImport::LoadCrop(const std::string& pictureFile) {
    TakeAndLoad([&] { return pictureFile; }, PhotoFit::Keep);
}

void FileImport::TakeAndLoad(const Take& take, PhotoFit way, const LayerPart* part) {
    GridReplacement replacement(place_, kits_);
    if (replacement.Allowed()) {
        const std::string file = take();
        Remember();
        place_.MainMenu[MenuId::PrintMenu].Enabled = false;
        (void)ChoosePhoto(place_.State, place_.Folder, file);  // of Pictures, so it has a name
        Load(way, part);
        replacement.Done();
    }
}

void FileImport::OKButton_Click() {
    WorkState& state = place_.State;
    if (state.PictureFile.empty()) {
        place_.Screen.ShowMessage("No File Selected", "Select A File!");
        return;
    }
    if (IsKit(clicked_)) {
        const fs::path kit = clicked_;
        CancelButton_Click();
        kits_->Open(kit);
        return;
    }
    // Before the photo's name changes: what is unsaved goes by it.
    GridReplacement replacement(place_, kits_);
    if (!replacement.Allowed()) {
        return;
    }
    const PhotoFit way = fit_.Way();
    const std::string file =
        clicked_.empty() ? Cropped(state.PictureFile, way) : TakeIn(clicked_, way);
    if (ChoosePhoto(place_.State, place_.Folder, file)) {
        if (fit_.Asks()) {
            lastWay_ = way;
        }
        place_.Screen.CloseForm(FormId::FileImport);
        Load(way);
        replacement.Done();
    }
}

void FileImport::Load(PhotoFit way, const LayerPart* part) {
    WorkState& state = place_.State;
    const std::string path = state.PicturePath;
    const bool hadGrid = state.StipplesMade || state.CellsAcross > 0;
    try {
        state.Chosen.Fit = way;
        if (LoadNewPicture(place_) == PhotoLoad::Nothing) {
            throw FormatError(path, 0, "the photo has no pixels. Choose another photo.");
        }
    } catch (...) {
        PutBack();
        throw;
    }
    if (kits_ != nullptr) {
        const auto crop = crops_.find(state.PictureFile);
        kits_->CloseFor(crop == crops_.end() ? std::nullopt : std::optional(crop->second));
    }
    KeepEditsOf(part);
    CheckSavedStipples(place_);
    SetupMenuItems(place_.MainMenu, 2);
    if (hadGrid) {
        RestorePaintColors(place_);
    }
}

void FileImport::KeepEditsOf(const LayerPart* part) {
    WorkState& state = place_.State;
    EditLayer edits = std::move(state.Edits);
    ForgetEdits(state, state);
    if (part != nullptr && !edits.Empty()) {
        const TwipsPerPixel twips = place_.Screen.Screen().Twips;
        state.Edits = EditsOfPart(edits, *part, state.PictureWidth / twips.X / state.StippleSize,
                                  state.PictureHeight / twips.Y / state.StippleSize);
    }
}

void FileImport::CancelButton_Click() {
    PutBack();
    place_.Screen.CloseForm(FormId::FileImport);
}

}  // namespace vendrel
