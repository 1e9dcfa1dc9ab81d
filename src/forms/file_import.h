#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "forms/folder_lists.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// What the photo chooser shows. Indexes count from 0; -1 is nothing.
struct FileImportControls {
    std::vector<Drive> ImportDrive;
    int DriveIndex = -1;
    std::filesystem::path Folder;
    std::vector<std::string> ImportDir;  // ".." first where there is a parent
    std::vector<std::string> ImportFile;
    int FileIndex = -1;
    Surface Preview;          // the photo that OK takes, small; empty when it cannot be shown
    std::string Description;  // its name and size, or why it cannot be read
};

/// The photo chooser. Load Photo empties the work area before it opens; Cancel and photos that
/// cannot be read put everything back.
class FileImport {
  public:
    explicit FileImport(Workplace& place) : place_(place) {}

    /// Notes how things stand, for Cancel.
    void Remember();
    void Form_Load();
    void ShowFolder(const std::filesystem::path& folder);

    void ImportDrive_Change(int drive);
    void ImportDir_Change(int folder);
    void ImportFile_Click(int file);
    /// Takes the chosen photo. Throws Error; the chooser stays open when the photo cannot be
    /// taken into the pictures folder.
    void OKButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const FileImportControls& Controls() const { return controls_; }

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
    };

    [[nodiscard]] std::filesystem::path ChosenPhoto() const;
    void ShowPreview();
    void LoadChosen();
    void PutBack();

    Workplace& place_;
    FileImportControls controls_;
    std::filesystem::path clicked_;  // empty until a file is clicked
    Before before_;
};

}  // namespace vendrel
