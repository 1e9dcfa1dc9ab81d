#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

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
    /// A watcher reads blocks while the next ones are drawn: none may change before so many others,
    /// itself included, have been written, or the stream has ended.
    static constexpr std::size_t kBlocksInHand = 4;

    BitmapStream(const Target& target, int width, int height, PrintScale scale = kSheetScale,
                 Lasting lasting = Lasting::Remade);
    ~BitmapStream();
    BitmapStream(const BitmapStream&) = delete;
    BitmapStream& operator=(const BitmapStream&) = delete;

    /// The next rows, the lowest of the picture first, as a cDIBSection of its width holds them.
    void Write(std::span<const std::uint8_t> rows) { Put(std::as_bytes(rows)); }
    /// All rows of a picture of its size.
    void Write(const Surface& picture);
    void Commit() { file_.Commit(); }
    /// As WholeFile's.
    [[nodiscard]] bool CommitNew(const std::filesystem::path& name) {
        return file_.CommitNew(name);
    }
    [[nodiscard]] bool Holds(const std::filesystem::path& other) { return file_.Holds(other); }

  private:
    void Put(std::span<const std::byte> bytes);
    void AwaitAllBut(std::size_t blocks);

    WholeFile file_;
    FileWatcher* watcher_;
    std::array<std::vector<std::uint8_t>, kBlocksInHand> blocks_;  // of a picture written at once
};

}  // namespace vendrel
