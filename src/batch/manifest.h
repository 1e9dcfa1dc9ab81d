#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vendrel {

/// What became of an order: one line of the manifest.
struct ManifestEntry {
    struct File {
        std::string Output;           // as in "sheet"
        std::filesystem::path Place;  // from the folder of all orders
        std::uint64_t Bytes = 0;
        std::string Sum{};  // SHA-256
    };

    std::string Order;
    bool Done = false;
    std::string Inputs;  // a sum of photo, settings, data and version
    std::string Photo;
    std::string Sentence{};  // why not, of one that failed
    std::string Mark{};
    double Seconds = 0;
    double PeakMegabytes = 0;
    std::vector<File> Files{};
    std::string Figures{};  // of the kit, as `vendrel kit --json` prints them; empty: none
};

/// One line of JSON.
[[nodiscard]] std::string FormatEntry(const ManifestEntry& entry);
/// Nothing for a line that is none, as the last one after a power cut.
[[nodiscard]] std::optional<ManifestEntry> ParseEntry(std::string_view line);

/// What is known of every order, by its name: the last line counts.
using Manifest = std::map<std::string, ManifestEntry>;
/// A missing file knows nothing. Throws FileError.
[[nodiscard]] Manifest ReadManifest(const std::filesystem::path& file);

/// Adds lines at a manifest's end, each there whole or not at all.
class ManifestWriter {
  public:
    /// Throws FileError when the file cannot be written.
    explicit ManifestWriter(std::filesystem::path file);
    ~ManifestWriter();
    ManifestWriter(const ManifestWriter&) = delete;
    ManifestWriter& operator=(const ManifestWriter&) = delete;

    /// On the disk when it returns. Throws FileError.
    void Add(const ManifestEntry& entry);

  private:
    void EndTornLine();

    std::filesystem::path file_;
    int descriptor_;
};

/// The same at the end of a run, to be read in one piece: counts, and every order's last line.
[[nodiscard]] std::string FormatManifest(const Manifest& manifest, std::string_view program);

}  // namespace vendrel
