#pragma once

#include <filesystem>
#include <string_view>

namespace vendrel {

/// `relative` ("Data/paintlist.txt") under `folder`, each part as it is spelled on disk whatever
/// the case of its letters; parts that do not exist keep the given spelling. Throws FileError when
/// a folder cannot be listed just now, which must not pass for one without the file.
[[nodiscard]] std::filesystem::path FindIgnoringCase(const std::filesystem::path& folder,
                                                     std::string_view relative);

/// The folder the program works in (Data, Pictures, Saved Stipples, templates, Results) and the
/// data shipped with the program, which stands in for data files that the folder lacks.
class ProgramFolder {
  public:
    /// `shipped` holds Data and Pictures; empty when nothing ships.
    explicit ProgramFolder(std::filesystem::path root, std::filesystem::path shipped = {});

    [[nodiscard]] const std::filesystem::path& Root() const { return root_; }
    [[nodiscard]] const std::filesystem::path& Shipped() const { return shipped_; }

    /// A place under the folder, existing or not, for example Path("Results/x.BMP").
    [[nodiscard]] std::filesystem::path Path(std::string_view relative) const;
    /// A file to read: the folder's own, else the shipped one, else the folder's own path.
    [[nodiscard]] std::filesystem::path DataFile(std::string_view relative) const;
    [[nodiscard]] bool Exists(std::string_view relative) const;

  private:
    std::filesystem::path root_;
    std::filesystem::path shipped_;
};

}  // namespace vendrel
