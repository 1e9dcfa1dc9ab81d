#include "kitset/kit_mark.h"

#include <cstdint>
#include <string_view>

#include "kitset/sha256.h"

namespace vendrel {
namespace {

constexpr std::string_view kLetters = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
static_assert(kLetters.size() == 32);
constexpr int kMarkLength = 8;

void AppendNumber(std::string& out, int number) {
    const auto bits = static_cast<std::uint32_t>(number);
    for (unsigned shift = 0; shift < 32; shift += 8) {
        out += static_cast<char>((bits >> shift) & 255U);
    }
}

void AppendText(std::string& out, std::string_view text) {
    out += text;
    out += '\0';
}

// Area numbers are left out: painting deals them out anew.
std::string BytesOf(const Palette& palette, const StippleGrid& grid, std::string_view difficulty) {
    std::string bytes;
    AppendText(bytes, difficulty);
    AppendNumber(bytes, palette.PaintCount);
    for (const PaintColor& paint : palette.PaintColors) {
        AppendNumber(bytes, Rgb(paint.Red, paint.Green, paint.Blue));
        AppendText(bytes, paint.Mfg);
        AppendText(bytes, paint.PaintCode);
        AppendText(bytes, paint.PaintName);
    }
    AppendNumber(bytes, grid.CellsAcross);
    AppendNumber(bytes, grid.CellsDown);
    for (int y = 1; y <= grid.CellsDown; ++y) {
        for (int x = 1; x <= grid.CellsAcross; ++x) {
            const StippleCell& cell = grid.Stipples(x, y);
            AppendNumber(bytes, cell.ColorIndex);
            AppendNumber(bytes, cell.X);
            AppendNumber(bytes, cell.Y);
        }
    }
    return bytes;
}

}  // namespace

std::string KitMark(const Palette& palette, const StippleGrid& grid, const WorkSettings& settings) {
    const Sha256 sum = Sha256Of(BytesOf(palette, grid, DifficultyWord(settings)));
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i) {
        bits = bits << 8U | sum[i];
    }
    std::string mark;
    for (int i = 0; i < kMarkLength; ++i, bits >>= 5U) {
        mark += kLetters[bits & 31U];
    }
    return mark;
}

}  // namespace vendrel
