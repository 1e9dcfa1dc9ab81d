#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "support/print_scale.h"
#include "support/surface.h"
#include "support/target.h"
#include "support/whole_file.h"

namespace vendrel {

/// Writes a BMP file of 24 bits, uncompressed, rows bottom-up, header of 40 bytes, which says how
/// large the picture is printed. The file is there whole or not at all. Throws FileError,
/// OverflowError when the picture outgrows the format.
void WriteBitmap(const Target& target, const Surface& picture, PrintScale scale = kSheetScale);

/// The same file written in parts, for a picture not worth holding as a whole. Without Commit the
/// file stays as it was.
class BitmapStream {
  public:
    /// A watcher reads blocks while the next ones are drawn: none may change before so many,
    /// itself included, have been written.
    static constexpr std::size_t kBlocksInHand = 4;

    BitmapStream(const Target& target, int width, int height, PrintScale scale = kSheetScale,
                 Lasting lasting = Lasting::Remade);
    /// The next rows, the lowest of the picture first, as a cDIBSection of its width holds them;
    /// `owner` keeps them. Without an owner they may change when it returns.
    void Write(std::span<const std::uint8_t> rows, std::shared_ptr<const void> owner = nullptr) {
        Put(std::as_bytes(rows), std::move(owner));
    }
    /// All rows of a picture of its size.
    void Write(const Surface& picture);
    void Commit() { file_.Commit(); }
    /// As WholeFile's.
    [[nodiscard]] bool CommitNew(const std::filesystem::path& name) {
        return file_.CommitNew(name);
    }
    [[nodiscard]] bool Holds(const std::filesystem::path& other) { return file_.Holds(other); }

  private:
    void Put(std::span<const std::byte> bytes, std::shared_ptr<const void> owner);

    WholeFile file_;
    FileWatcher* watcher_;
};

}  // namespace vendrel
