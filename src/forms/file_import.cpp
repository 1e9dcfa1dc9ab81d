#include "forms/file_import.h"

#include <algorithm>
#include <cstddef>

#include "convert/bitmap_reader.h"
#include "convert/photo_import.h"
#include "convert/scaling.h"
#include "forms/photo_intake.h"
#include "paints/restore.h"
#include "shell/menu.h"
#include "storage/load_stipples.h"
#include "support/error.h"
#include "touchup/recovery.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr int kPreviewEdge = 260;  // pixels

Surface Shrink(Surface photo) {
    const int longer = std::max(photo.Width(), photo.Height());
    if (longer <= kPreviewEdge) {
        return photo;
    }
    return ScaleTo(photo, std::max(1, photo.Width() * kPreviewEdge / longer),
                   std::max(1, photo.Height() * kPreviewEdge / longer));
}

bool Holds(const std::vector<std::string>& list, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

}  // namespace

void FileImport::Remember() {
    const WorkState& state = place_.State;
    before_ = {state.PicturesFolder,
               state.PictureFile,
               state.PicturePath,
               state.PictureName,
               state.PictureLoaded,
               state.BmpWidth,
               state.BmpHeight,
               place_.Frames.CaptureFrame.Visible,
               place_.Frames.WorkFrame.Visible,
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
    place_.Frames.CaptureFrame.Visible = before_.CaptureShown;
    place_.Frames.WorkFrame.Visible = before_.WorkShown;
    place_.MainMenu[MenuId::PrintMenu].Enabled = before_.SaveEnabled;
}

void FileImport::Form_Load() {
    controls_ = {};
    clicked_.clear();
    controls_.ImportDrive = ListDrives();
    controls_.DriveIndex = DriveOf(controls_.ImportDrive, fs::absolute(place_.Folder.Root()));
}

void FileImport::ShowFolder(const fs::path& folder) {
    controls_.Folder = fs::absolute(folder).lexically_normal();
    controls_.ImportDir = ListFolders(controls_.Folder);
    controls_.ImportFile = ListPhotos(controls_.Folder);
    const auto chosen = std::find(controls_.ImportFile.begin(), controls_.ImportFile.end(),
                                  ChosenPhoto().filename().string());
    const bool listed =
        chosen != controls_.ImportFile.end() &&
        fs::absolute(ChosenPhoto()).lexically_normal().parent_path() == controls_.Folder;
    controls_.FileIndex = listed ? static_cast<int>(chosen - controls_.ImportFile.begin()) : -1;
    if (controls_.Description.empty()) {
        ShowPreview();
    }
}

void FileImport::ImportDrive_Change(int drive) {
    if (drive >= 0 && static_cast<std::size_t>(drive) < controls_.ImportDrive.size()) {
        controls_.DriveIndex = drive;
        ShowFolder(controls_.ImportDrive[static_cast<std::size_t>(drive)].Root);
    }
}

void FileImport::ImportDir_Change(int folder) {
    if (Holds(controls_.ImportDir, folder)) {
        const std::string& name = controls_.ImportDir[static_cast<std::size_t>(folder)];
        ShowFolder(name == ".." ? controls_.Folder.parent_path() : controls_.Folder / name);
        controls_.DriveIndex = DriveOf(controls_.ImportDrive, controls_.Folder);
    }
}

void FileImport::ImportFile_Click(int file) {
    if (Holds(controls_.ImportFile, file)) {
        controls_.FileIndex = file;
        place_.State.PictureFile = controls_.ImportFile[static_cast<std::size_t>(file)];
        clicked_ = controls_.Folder / place_.State.PictureFile;
        ShowPreview();
    }
}

fs::path FileImport::ChosenPhoto() const {
    const std::string& file = place_.State.PictureFile;
    if (file.empty() || !clicked_.empty()) {
        return clicked_;
    }
    return place_.Folder.Path("Pictures") / file;
}

void FileImport::ShowPreview() {
    controls_.Preview = {};
    controls_.Description.clear();
    const fs::path photo = ChosenPhoto();
    if (photo.empty()) {
        return;
    }
    try {
        Surface picture = ReadBitmap(photo);
        controls_.Description = photo.filename().string() + "\n" + std::to_string(picture.Width()) +
                                " x " + std::to_string(picture.Height()) + " pixels";
        controls_.Preview = Shrink(std::move(picture));
    } catch (const Error& error) {
        // Looking is not choosing: OK is where a broken photo is refused.
        controls_.Description = error.what();
    }
}

void FileImport::OKButton_Click() {
    WorkState& state = place_.State;
    if (state.PictureFile.empty()) {
        place_.Screen.ShowMessage("No File Selected", "Select A File!");
        return;
    }
    // Before the photo's name changes: what is unsaved goes by it.
    if (!MayReplaceGrid(place_)) {
        return;
    }
    const std::string file =
        clicked_.empty() ? state.PictureFile : TakeIntoPictures(place_.Folder, clicked_);
    if (ChoosePhoto(place_, file)) {
        place_.Screen.CloseForm(FormId::FileImport);
        LoadChosen();
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
