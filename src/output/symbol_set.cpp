#include "output/symbol_set.h"

#include <limits>
#include <string>

#include "support/error.h"
#include "support/field_reader.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr int kMin = std::numeric_limits<std::int16_t>::min();
constexpr int kMax = std::numeric_limits<std::int16_t>::max();

// From where a character is printed on the canvas to where its ink should stand on the sheet.
constexpr GlyphPoint kShift = {-2, -4};

int ReadShifted(FieldReader& fields, const char* what, int shift) {
    const int value = fields.ReadInt(what, kMin, kMax) + shift;
    if (value < kMin) {
        throw FormatError(fields.File(), fields.Line(),
                          std::string(what) + " lies too far out. Correct this line.");
    }
    return value;
}

SymbolGlyph ReadGlyph(FieldReader& fields) {
    SymbolGlyph glyph;
    const int count = fields.ReadInt("a symbol's pixel count", 0, kMax);
    for (int i = 1; i <= count; ++i) {
        const int x = ReadShifted(fields, "a symbol pixel's column", kShift.X);
        const int y = ReadShifted(fields, "a symbol pixel's row", kShift.Y);
        glyph.Points.Add({x, y});
    }
    return glyph;
}

void FillSymbolCodes(Symbols& symbols) {
    symbols.SymbolCodes.Clear();
    for (const char symbol : kSymbolCharacters) {
        symbols.SymbolCodes.Add(static_cast<unsigned char>(symbol));
    }
}

void AppendGlyph(std::string& text, const SymbolGlyph& glyph) {
    text += ' ' + std::to_string(glyph.PointCount()) + "\r\n";
    for (const GlyphPoint& point : glyph.Points) {
        text += std::to_string(point.X) + ',' + std::to_string(point.Y) + "\r\n";
    }
}

// Only pixels of exactly the ink count: the softened rim of a smoothed letter is no part of it.
void CollectInk(SymbolGlyph& glyph, const Canvas& canvas, Color ink) {
    glyph.Points.Clear();
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x) {
            if (canvas.Get(x, y) == ink) {
                glyph.Points.Add({x, y});
            }
        }
    }
}

void MakeAsciiSymbols(Symbols& symbols, Color ink, Canvas& canvas, int symbol) {
    canvas.Clear(kWhite);
    canvas.SetFont("Courier New", 12);
    canvas.Print(static_cast<char>(symbols.SymbolCodes[symbol]), ink);
    CollectInk(symbols.SymbolGlyphs[symbol], canvas, ink);
}

}  // namespace

void SetupBMPSymbols(Symbols& symbols, const ProgramFolder& folder) {
    const std::filesystem::path file = folder.DataFile("Data/Symbols.txt");
    const std::string text = ReadTextFile(file);
    FieldReader fields(text, file);
    OneBased<SymbolGlyph> glyphs;
    for (int k = 1; k <= kSymbolCount; ++k) {
        glyphs.Add(ReadGlyph(fields));
    }
    symbols.SymbolGlyphs = std::move(glyphs);
    FillSymbolCodes(symbols);
}

char CharacterOf(const Symbols& symbols, int symbol) {
    return symbols.SymbolCodes.Holds(symbol) ? static_cast<char>(symbols.SymbolCodes[symbol]) : '?';
}

std::span<const GlyphPoint> InkOf(const Symbols& symbols, int symbol) {
    if (symbol < 0 || symbol > symbols.SymbolGlyphs.Count()) {
        throw Error("There is no symbol " + std::to_string(symbol) +
                    ": a sheet can show 50 paints. Reduce the final paints to 50 or fewer.");
    }
    return symbols.SymbolGlyphs[symbol].Points.Entries();
}

int OnSheet(int cellSize, int position, int offset) {
    const int at = cellSize * position + offset;
    if (at < kMin || at > kMax) {
        throw OverflowError("The sheet is too large for its symbols (" + std::to_string(at) +
                            " pixels). Try a smaller photo.");
    }
    return at;
}

void Number2CDIB(const DibView& SheetDC, std::span<const GlyphPoint> ink, int cellSize, Color color,
                 CellPos at) {
    for (const GlyphPoint& point : ink) {
        SheetDC.Set(OnSheet(cellSize, at.X, point.X), OnSheet(cellSize, at.Y, point.Y), color);
    }
}

void MakeSymbolFile(Symbols& symbols, Color ink, const std::filesystem::path& file,
                    Canvas& canvas) {
    FillSymbolCodes(symbols);
    symbols.SymbolGlyphs = OneBased<SymbolGlyph>(kSymbolCount);
    std::string text;
    for (int k = 1; k <= kSymbolCount; ++k) {
        MakeAsciiSymbols(symbols, ink, canvas, k);
        AppendGlyph(text, symbols.SymbolGlyphs[k]);
    }
    WriteWholeFile(file, text);
}

}  // namespace vendrel
