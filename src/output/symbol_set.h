#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "shell/symbols.h"
#include "support/cell_pos.h"
#include "support/color.h"
#include "support/dib_view.h"
#include "support/program_folder.h"

namespace vendrel {

/// There are no more symbols than this; SymbolOf says which of them marks a paint.
inline constexpr int kSymbolCount = 50;

/// The characters of symbols 1 to 50. Letters that look like another symbol or a digit are left
/// out; the zero stands where an O would.
inline constexpr std::string_view kSymbolCharacters =
    "123456789ABCDEFGHIJKLMN0PRSTUWXYZacdefgkmnrstuwxyz";
static_assert(kSymbolCharacters.size() == kSymbolCount);

/// Reads the glyphs of `Data/Symbols.txt` and fills SymbolCodes. Throws FileError and FormatError.
void SetupBMPSymbols(Symbols& symbols, const ProgramFolder& folder);

/// The character of a symbol, "?" for one that is not there or while none are read.
[[nodiscard]] char CharacterOf(const Symbols& symbols, int symbol);

/// The pixels of a symbol's ink. Throws Error for a symbol outside 0..50 or while none are read.
[[nodiscard]] std::span<const GlyphPoint> InkOf(const Symbols& symbols, int symbol);

/// cellSize * position + offset, in sheet pixels. Throws OverflowError beyond 16 bits.
[[nodiscard]] int OnSheet(int cellSize, int position, int offset);

/// Stamps a symbol's ink onto SheetDC, its origin at sheet pixel (cellSize * column,
/// cellSize * row); pixels outside are not drawn. Throws OverflowError for a sheet position beyond
/// 16 bits.
void Number2CDIB(const DibView& SheetDC, std::span<const GlyphPoint> ink, int cellSize, Color color,
                 CellPos at);

/// Symbols that were drawn afresh.
struct MadeSymbols {
    std::filesystem::path File;
    std::string Note;  // what the painter should know; may be empty
};

/// A plain drawing area with a font: what making the glyphs needs.
class Canvas {
  public:
    Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    virtual ~Canvas() = default;

    [[nodiscard]] virtual int Width() const = 0;
    [[nodiscard]] virtual int Height() const = 0;
    virtual void Clear(Color background) = 0;
    /// A fixed-width font by name; the canvas may take one of the same widths for it.
    virtual void SetFont(std::string_view name, int points) = 0;
    /// Prints one character at the upper left corner.
    virtual void Print(char character, Color ink) = 0;
    [[nodiscard]] virtual Color Get(int x, int y) const = 0;
};

/// Draws every symbol's character in `ink` and writes the pixels to `file`, whole or not at all.
/// The glyphs hold canvas positions until SetupBMPSymbols reads the file again. Throws FileError.
void MakeSymbolFile(Symbols& symbols, Color ink, const std::filesystem::path& file, Canvas& canvas);

}  // namespace vendrel
