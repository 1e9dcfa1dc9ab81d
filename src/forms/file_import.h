#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "convert/photo_decoder.h"
#include "forms/crop_photo.h"
#include "forms/fit_choice.h"
#include "forms/fit_photo.h"
#include "forms/folder_lists.h"
#include "forms/kit_desk.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// What the photo chooser shows. Indexes count from 0; -1 is nothing.
struct FileImportControls {
    std::string Caption = "Load Photo";
    std::string Files = "&Photos";  // what the list holds, & before its letter
    std::vector<Drive> ImportDrive;
    int DriveIndex = -1;
    std::filesystem::path Folder;
    std::vector<std::string> ImportDir;  // ".." first where there is a parent
    std::vector<std::string> ImportFile;
    int FileIndex = -1;
};

/// The photo chooser. Load Photo empties the work area before it opens; Cancel and photos that
/// cannot be read put everything back.
class FileImport {
  public:
    /// `decoder` reads the photos that are no bitmaps; without one only bitmaps are listed.
    explicit FileImport(Workplace& place, const PhotoDecoder* decoder = nullptr);

    /// Kits are listed too from now on, and opened there.
    void Attach(KitDesk& kits) { kits_ = &kits; }

    /// Notes how things stand, for Cancel.
    void Remember();
    void Form_Load();
    /// For kits as well as photos, where the newest kits are.
    void ShowKits();
    void ShowFolder(const std::filesystem::path& folder);

    void ImportDrive_Change(int drive);
    void ImportDir_Change(int folder);
    void ImportFile_Click(int file);
    /// Takes the chosen photo. Throws Error; the chooser stays open when the photo cannot be
    /// taken into the pictures folder.
    void OKButton_Click();
    void CancelButton_Click();
    /// Opens the crop window over the chosen photo. Throws Error.
    void CropButton_Click();

    /// Opens a kit, or takes a photo without the chooser, as OK does; asks first how it is to come
    /// onto the sheet when it does not fit. Throws Error; nothing has changed then.
    void TakePhoto(const std::filesystem::path& photo);
    /// The same for a picture that is no file yet; it has pixels.
    void TakePicture(const Surface& picture);
    /// Opens the crop window over the photo that is loaded. Throws Error.
    void CropLoaded();

    [[nodiscard]] const FileImportControls& Controls() const { return controls_; }
    /// How the photo that OK takes comes onto the sheet.
    [[nodiscard]] FitChoice& Fit() { return fit_; }
    [[nodiscard]] CropPhoto& Crop() { return crop_; }
    [[nodiscard]] FitPhoto& Asking() { return asking_; }

  private:
    /// What Load Photo and an import that fails change.
    struct Before {
        std::string PicturesFolder;
        std::string PictureFile;
        std::string PicturePath;
        std::string PictureName;
        bool PictureLoaded = false;
        int BmpWidth = 0;
        int BmpHeight = 0;
        bool CaptureShown = false;
        bool WorkShown = false;
        bool SaveEnabled = false;
        PhotoFit Fit = PhotoFit::Keep;
    };
    /// Brings a photo into Pictures and gives its file name there.
    using Take = std::function<std::string()>;

    [[nodiscard]] std::filesystem::path ChosenPhoto() const;
    void ShowPreview();
    void Describe(const std::filesystem::path& photo);
    void ChooseCrop(const std::string& pictureFile);
    [[nodiscard]] bool MustAsk(BitmapSize photo) const;
    void OpenCrop(const std::filesystem::path& photo, CropPhoto::Kept kept);
    [[nodiscard]] std::string TakeIn(const std::filesystem::path& photo, PhotoFit way);
    /// The crop window cut the picture from that photo.
    void NoteCrop(const std::string& pictureFile, const std::string& of);
    [[nodiscard]] std::string Cropped(const std::string& pictureFile, PhotoFit way);
    /// `part`: of the photo at work, whose edits go along; none for another photo.
    void TakeAndLoad(const Take& take, PhotoFit way, const LayerPart* part = nullptr);
    void Load(PhotoFit way, const LayerPart* part = nullptr);
    void KeepEditsOf(const LayerPart* part);
    void LoadCrop(const std::string& pictureFile);
    void PutBack();

    [[nodiscard]] std::vector<std::string> Endings() const;
    [[nodiscard]] bool IsKit(const std::filesystem::path& file) const;

    Workplace& place_;
    const PhotoDecoder& decoder_;
    KitDesk* kits_ = nullptr;
    std::map<std::string, KitCrop> crops_;  // how photos of this session were cut, by their files
    CropPhoto crop_;
    FitPhoto asking_;
    FitChoice fit_;
    PhotoFit lastWay_ = PhotoFit::Keep;  // chosen for the photo that needed it last
    FileImportControls controls_;
    std::filesystem::path clicked_;  // empty until a file is clicked
    Before before_;
};

}  // namespace vendrel
