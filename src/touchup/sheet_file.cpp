#include "touchup/sheet_file.h"

#include <algorithm>
#include <string>
#include <vector>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr const char* kTakeBack =
    " Take the load back with Undo; \"Load Stipple Picture\" of the main window may still read it.";

std::string TooMuch(int inFile, const char* what, int inEditor) {
    return "the file has " + std::to_string(inFile) + what + ", but the editor was opened with " +
           std::to_string(inEditor) + "." + kTakeBack;
}

void ReadPaints(StippleFileReader& reader, const std::filesystem::path& path, WorkState& state) {
    const int room = static_cast<int>(state.FoundColors.size()) - 1;
    for (int i = 1; i <= state.FoundCount; ++i) {
        if (i > room) {
            throw FormatError(path, i + 1, TooMuch(state.FoundCount, " paints", room));
        }
        state.FoundColors[static_cast<std::size_t>(i)] = reader.ReadPaint();
    }
}

void ReadCells(StippleFileReader& reader, const std::filesystem::path& path, WorkState& state) {
    Grid<StippleCell>& cells = state.EditStipples;
    for (int y = 1; y <= state.CellsDown; ++y) {
        const int rowLine = 1 + state.FoundCount + (y - 1) * state.CellsAcross + 1;
        if (y > cells.Down()) {
            throw FormatError(path, rowLine, TooMuch(state.CellsDown, " rows", cells.Down()));
        }
        reader.ReadRow(cells, y, std::min(state.CellsAcross, cells.Across()));
        if (state.CellsAcross > cells.Across()) {
            throw FormatError(path, rowLine + cells.Across(),
                              TooMuch(state.CellsAcross, " columns", cells.Across()));
        }
    }
}

}  // namespace

void ReadIntoSheet(StippleFileReader& reader, const std::filesystem::path& path, WorkState& state) {
    const StippleHeader& header = reader.Header();
    state.FoundCount = header.PaintCount;
    state.CellsAcross = header.Across;
    state.CellsDown = header.Down;
    state.FinalColors = header.FinalColors;
    ReadPaints(reader, path, state);
    ReadCells(reader, path, state);
}

void WriteSheet(const std::filesystem::path& path, const WorkState& state) {
    // A load of fewer paints leaves room behind them that is no part of the palette.
    std::vector<PaintColor> palette = state.FoundColors;
    palette.resize(static_cast<std::size_t>(state.FoundCount) + 1);
    WriteStippleFile(
        path, {palette, state.EditStipples, state.CellsAcross, state.CellsDown, state.FinalColors});
}

}  // namespace vendrel
