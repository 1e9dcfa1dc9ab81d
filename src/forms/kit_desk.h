#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "convert/photo_decoder.h"
#include "forms/plan_choice.h"
#include "kitfile/kit_file.h"
#include "shell/workplace.h"
#include "touchup/edit_sheet.h"
#include "touchup/kit_keeper.h"

namespace vendrel {

/// Opens and saves the kit in hand, and knows whether its file has all of it. A photo that was just
/// converted is soon converted again: it is no unsaved kit before it was touched up or saved once.
class KitDesk : public KitKeeper {
  public:
    /// `decoder` reads photos that are no bitmaps; `print` is chosen once for all windows.
    KitDesk(Workplace& place, const PhotoDecoder* decoder, PlanChoice& print);

    /// Opens a kit; asks first when another is not saved, and for its photo where that moved or
    /// changed. Throws FileError, FormatError, with everything as it was.
    void Open(const std::filesystem::path& file);

    /// The paint shop shows its own palette in the place of the kit's, or has given it back.
    void LendPalette(bool lent) { paletteIsLent_ = lent; }

    /// Another photo is taken up, cut from a larger one or not, which its kits record.
    void CloseFor(std::optional<KitCrop> crop);

    // The window that asks for the photo.
    /// A sentence on what became of it.
    [[nodiscard]] const std::string& PhotoProblem() const { return problem_; }
    /// Opens the kit with that photo, and closes the window. Throws Error when it is another one;
    /// the window stays open.
    void Photo_Chosen(const std::filesystem::path& photo);
    void PhotoCancel_Click();

    [[nodiscard]] bool Unsaved() const override;
    /// Saves the kit to its own file, or under its title; asks before it takes another's place.
    /// False when it was told not to. Throws Error, FileError.
    [[nodiscard]] bool Save() override;
    void Close() override { saved_.reset(); }
    /// The same with what the editor shows in place of the kit's own stipples.
    [[nodiscard]] bool Save(const EditSheet& sheet, const KitEdits& edits);

    // The window that asks for the title.
    [[nodiscard]] const std::string& Title() const { return place_.State->PictureName; }
    /// Saves the kit under a title of its own, which names all that is made of it from now on, and
    /// closes the window; false when it was told not to. Throws Error for a title that files cannot
    /// have, FileError.
    bool SaveAs_Click(const std::string& title);
    void TitleCancel_Click();

    /// The file of the kit in hand; empty while it has none.
    [[nodiscard]] std::filesystem::path File() const {
        return saved_ ? file_ : std::filesystem::path();
    }
    /// The kits saved last, the newest first.
    [[nodiscard]] std::vector<std::filesystem::path> Recent() const;

  private:
    void TakeUp(KitFile kit, const std::filesystem::path& photo);
    [[nodiscard]] bool MayWriteTo(const std::filesystem::path& file) const;
    [[nodiscard]] std::filesystem::path OwnFile() const;
    [[nodiscard]] KitFile KitInHand() const;
    void WriteTo(const std::filesystem::path& file);
    void Keep(const std::filesystem::path& file, KitFile kit);
    [[nodiscard]] bool IsAsSaved() const;

    Workplace& place_;
    const PhotoDecoder& decoder_;
    PlanChoice& print_;
    bool paletteIsLent_ = false;
    std::optional<KitCrop> crop_;   // of the photo at hand, where it is known
    std::optional<KitFile> saved_;  // the kit in hand as its file has it
    std::filesystem::path file_;
    std::optional<KitFile> pending_;  // waits for its photo
    std::filesystem::path pendingFile_;
    std::string problem_;
};

/// What a chooser shows of a kit: a stipple a pixel, and a sentence. Throws FileError, FormatError.
struct KitLook {
    Surface Picture;
    std::string Description;
};
[[nodiscard]] KitLook LookAtKit(const std::filesystem::path& file);

}  // namespace vendrel
