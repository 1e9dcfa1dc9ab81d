#include "forms/file_import.h"

#include <algorithm>

#include "convert/photo_import.h"
#include "forms/list_entries.h"
#include "forms/photo_look.h"
#include "forms/reading_shown.h"
#include "intake/keep_picture.h"
#include "intake/photo_intake.h"
#include "intake/photo_names.h"
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

constexpr int kPreviewEdge = 260;  // pixels

const PhotoDecoder& OrNone(const PhotoDecoder* decoder) {
    static const NoPhotoDecoder none;
    return decoder != nullptr ? *decoder : none;
}

}  // namespace

FileImport::FileImport(Workplace& place, const PhotoDecoder* decoder)
    : place_(place), decoder_(OrNone(decoder)), crop_(place) {}

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
               place_.MainMenu[MenuId::PrintMenu].Enabled};
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
}

void FileImport::Form_Load() {
    controls_ = {};
    clicked_.clear();
    controls_.ImportDrive = ListDrives();
    controls_.DriveIndex = DriveOf(controls_.ImportDrive, FullPath(place_.Folder.Root()));
}

void FileImport::ShowFolder(const fs::path& folder) {
    controls_.Folder = FullPath(folder);
    controls_.ImportDir = ListFolders(controls_.Folder);
    controls_.ImportFile = ListPhotos(controls_.Folder, decoder_.Endings());
    const auto chosen = std::find(controls_.ImportFile.begin(), controls_.ImportFile.end(),
                                  ChosenPhoto().filename().string());
    const bool listed = chosen != controls_.ImportFile.end() &&
                        FullPath(ChosenPhoto()).parent_path() == controls_.Folder;
    controls_.FileIndex = listed ? static_cast<int>(chosen - controls_.ImportFile.begin()) : -1;
    if (controls_.Description.empty()) {
        ShowPreview();
    }
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
    controls_.Preview = {};
    controls_.Description.clear();
    controls_.CropEnabled = false;
    const fs::path photo = ChosenPhoto();
    if (photo.empty()) {
        return;
    }
    try {
        Describe(photo);
    } catch (const Error& error) {
        // Looking is not choosing: OK is where a broken photo is refused.
        controls_.Description = error.what();
    }
}

void FileImport::Describe(const fs::path& photo) {
    const std::string name = photo.filename().string();
    controls_.Description = name + "\nReading ...";
    IncomingPhoto incoming(photo, decoder_);
    const Surface picture = ReadAnyPhoto(place_.Screen, incoming);
    const BitmapSize size = incoming.Size();
    PhotoLook look = LookAt(picture, TargetOf(place_.Screen, place_.State), kPreviewEdge);
    controls_.Description = name + "\n" + std::to_string(size.Width) + " x " +
                            std::to_string(size.Height) + " pixels\n" + look.Stretch;
    controls_.Preview = std::move(look.Picture);
    controls_.CropEnabled = look.CropHelps;
}

void FileImport::CropButton_Click() {
    if (!controls_.CropEnabled) {
        return;
    }
    IncomingPhoto photo(ChosenPhoto(), decoder_);
    if (photo.HasOwnColors()) {
        MentionColors(place_.State, place_.Screen, photo.File());
    }
    crop_.Open(ReadAnyPhoto(place_.Screen, photo), photo.Stem(),
               [this](const std::string& file) { ChooseCrop(file); });
}

void FileImport::ChooseCrop(const std::string& pictureFile) {
    place_.State->PictureFile = pictureFile;
    clicked_.clear();
    controls_.Description.clear();
    ShowFolder(place_.Folder.Path("Pictures"));
    controls_.DriveIndex = DriveOf(controls_.ImportDrive, controls_.Folder);
}

std::string FileImport::TakeIn(const fs::path& photo) {
    IncomingPhoto incoming(photo, decoder_);
    if (incoming.IsPlainBitmap()) {
        RequireResultNames(photo, kLongestResult);
    }
    if (!IsInPictures(place_.Folder, incoming)) {
        RequirePaintable(incoming, TargetOf(place_.Screen, place_.State));
    }
    const ReadingShown reading(place_.Screen);
    return TakeIntoPictures(place_.Folder, incoming, reading.Progress());
}

void FileImport::TakePhoto(const fs::path& photo) {
    GridReplacement replacement(place_);
    if (replacement.Allowed() && LoadUnchosen(TakeIn(photo))) {
        replacement.Done();
    }
}

void FileImport::TakePicture(const Surface& picture) {
    GridReplacement replacement(place_);
    if (replacement.Allowed() && LoadUnchosen(KeepPicture(place_.Folder, kPastedStem, picture))) {
        replacement.Done();
    }
}

bool FileImport::LoadUnchosen(const std::string& pictureFile) {
    Remember();
    place_.MainMenu[MenuId::PrintMenu].Enabled = false;
    const bool isPhoto = ChoosePhoto(place_.State, place_.Folder, pictureFile);
    if (isPhoto) {
        LoadChosen();
    }
    return isPhoto;
}

void FileImport::OKButton_Click() {
    WorkState& state = place_.State;
    if (state.PictureFile.empty()) {
        place_.Screen.ShowMessage("No File Selected", "Select A File!");
        return;
    }
    // Before the photo's name changes: what is unsaved goes by it.
    GridReplacement replacement(place_);
    if (!replacement.Allowed()) {
        return;
    }
    const std::string file = clicked_.empty() ? state.PictureFile : TakeIn(clicked_);
    if (ChoosePhoto(place_.State, place_.Folder, file)) {
        place_.Screen.CloseForm(FormId::FileImport);
        LoadChosen();
        replacement.Done();
    }
}

void FileImport::LoadChosen() {
    WorkState& state = place_.State;
    const std::string path = state.PicturePath;
    const bool hadGrid = state.StipplesMade || state.CellsAcross > 0;
    try {
        if (LoadNewPicture(place_) == PhotoLoad::Nothing) {
            throw FormatError(path, 0, "the photo has no pixels. Choose another photo.");
        }
    } catch (...) {
        PutBack();
        throw;
    }
    CheckSavedStipples(place_);
    SetupMenuItems(place_.MainMenu, 2);
    if (hadGrid) {
        RestorePaintColors(place_);
    }
}

void FileImport::CancelButton_Click() {
    PutBack();
    place_.Screen.CloseForm(FormId::FileImport);
}

}  // namespace vendrel
