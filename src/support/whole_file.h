#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

#include "support/target.h"

namespace vendrel {

/// What a power cut may take: a file that can be made again from the photo may be lost, a
/// painter's own work may not.
enum class Lasting { Remade, Synced };

/// Writes a file whole or not at all: the bytes go into a new file without a name, which takes the
/// target's place on Commit. Without Commit the target stays as it was and nothing is left. Where
/// the disk has no files without names, it waits beside the target under a name of its own, locked
/// while this program lives (see leftovers.h). A Synced file is on the disk, name and folders too,
/// when Commit or CommitNew returns. All operations throw FileError naming the target's
/// place. Missing
/// folders are created.
class WholeFile {
  public:
    explicit WholeFile(const Target& target, Lasting lasting = Lasting::Remade);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view text);
    void Write(std::span<const std::byte> bytes);
    /// Takes the target's place, whether it is there or not.
    void Commit();
    /// Takes a name in the target's folder that nobody has. False when it is taken, whoever came
    /// first: then another one can be tried.
    [[nodiscard]] bool CommitNew(const std::filesystem::path& name);
    /// Open for reading too; what was written last may be on its way still.
    [[nodiscard]] int Descriptor() const;
    /// Whether another file has just the bytes written so far.
    [[nodiscard]] bool Holds(const std::filesystem::path& other);

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Open();
    [[nodiscard]] int OpenNamed();
    [[nodiscard]] std::filesystem::path Folder() const;
    [[nodiscard]] std::filesystem::path Way() const;
    void Flush();
    void Complete();
    [[nodiscard]] bool TakeFreeName(const std::filesystem::path& name);
    void Replace();
    void Settle();
    [[noreturn]] void Fail() const;
    [[noreturn]] void FailToReplace() const;

    std::filesystem::path target_;
    std::filesystem::path place_;  // what errors name
    Lasting lasting_;
    std::filesystem::path oldest_;   // the last folder to sync, upwards
    std::filesystem::path waiting_;  // empty while the file has no name
    std::unique_ptr<std::FILE, Closer> file_;
};

/// One call for a text that is ready.
void WriteWholeFile(const Target& target, std::string_view text, Lasting lasting = Lasting::Remade);

}  // namespace vendrel
