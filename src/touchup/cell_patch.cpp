#include "touchup/cell_patch.h"

#include <algorithm>
#include <array>
#include <deque>
#include <string>

#include "edits/lay_edits.h"
#include "edits/paint_index.h"
#include "support/error.h"
#include "support/field_reader.h"
#include "touchup/palette_steps.h"

namespace vendrel {
namespace {

constexpr std::string_view kFirstField = "Vendrel stipples";
constexpr int kLargestSide = 32767;

// The file would not give a double quote back, and no paint set has one.
std::string Quoted(std::string text) {
    std::ranges::replace(text, '"', '\'');
    return '"' + text + '"';
}

PaintColor ReadPatchPaint(FieldReader& reader) {
    PaintColor paint;
    paint.Red = reader.ReadInt("red", 0, 255);
    paint.Green = reader.ReadInt("green", 0, 255);
    paint.Blue = reader.ReadInt("blue", 0, 255);
    paint.Mfg = reader.ReadText("a paint set");
    paint.PaintCode = reader.ReadText("a paint code");
    paint.PaintName = reader.ReadText("a paint name");
    return paint;
}

}  // namespace

CellPatch CutPatch(const EditSheet& sheet, const CellSet& cells) {
    const CellRect bounds = cells.Bounds();
    CellPatch patch;
    patch.Cells = Grid<int>(bounds.Right - bounds.Left + 1, bounds.Bottom - bounds.Top + 1);
    OneBased<int> ofPatch(sheet.PaintCount());
    for (const CellPos& at : cells.Cells()) {
        const int paint = sheet.PaintAt(at);
        if (!sheet.HoldsPaint(paint)) {
            continue;
        }
        if (ofPatch[paint] == 0) {
            patch.Paints.Add(sheet.Paints()[paint]);
            patch.Paints.Last().CellCount = 0;
            ofPatch[paint] = patch.Paints.Count();
        }
        patch.Cells(at.X - bounds.Left + 1, at.Y - bounds.Top + 1) = ofPatch[paint];
    }
    return patch;
}

CellPatch Mirrored(const CellPatch& patch, MirrorWay way) {
    CellPatch mirrored = patch;
    const int across = patch.Cells.Across();
    const int down = patch.Cells.Down();
    for (int y = 1; y <= down; ++y) {
        for (int x = 1; x <= across; ++x) {
            mirrored.Cells(x, y) = way == MirrorWay::LeftRight ? patch.Cells(across + 1 - x, y)
                                                               : patch.Cells(x, down + 1 - y);
        }
    }
    return mirrored;
}

CellSet CellsOf(const CellPatch& patch, CellPos corner, const EditSheet& sheet) {
    CellSet cells(sheet.Across(), sheet.Down());
    for (int y = 1; y <= patch.Cells.Down(); ++y) {
        for (int x = 1; x <= patch.Cells.Across(); ++x) {
            if (patch.Cells(x, y) != 0) {
                cells.Add({corner.X + x - 1, corner.Y + y - 1});
            }
        }
    }
    return cells;
}

OneBased<int> PaintsIn(const PaintList& paints, const CellPatch& patch) {
    const PaintIndex index(paints);
    OneBased<int> found(patch.Paints.Count());
    for (int i = 1; i <= found.Count(); ++i) {
        const int same = index.Find(patch.Paints[i]);
        found[i] = same != 0 ? same : StandInByEye(paints, patch.Paints[i]);
    }
    return found;
}

PaintList MissingPaints(const PaintList& paints, const CellPatch& patch) {
    const PaintIndex index(paints);
    PaintList missing;
    for (const PaintColor& paint : patch.Paints) {
        if (index.Find(paint) == 0 && paints.Count() + missing.Count() < kMostPaints) {
            missing.Add(paint);
        }
    }
    return missing;
}

void PlacePatch(EditPen& pen, const CellPatch& patch, CellPos corner) {
    const OneBased<int> paints = PaintsIn(pen.Sheet().Paints(), patch);
    for (int y = 1; y <= patch.Cells.Down(); ++y) {
        for (int x = 1; x <= patch.Cells.Across(); ++x) {
            // Paint 0, of places that are no part of it, paints nothing.
            pen.Paint({corner.X + x - 1, corner.Y + y - 1}, paints[patch.Cells(x, y)]);
        }
    }
}

void CloseHole(EditPen& pen, const CellSet& hole) {
    const EditSheet& sheet = pen.Sheet();
    constexpr std::array<CellPos, 4> kSides = {{{0, -1}, {-1, 0}, {1, 0}, {0, 1}}};
    CellSet open = hole;
    std::deque<CellPos> reached;
    for (const CellPos& at : Grown(hole).Cells()) {
        if (!hole.Has(at)) {
            reached.push_back(at);
        }
    }
    for (; !reached.empty(); reached.pop_front()) {
        const CellPos from = reached.front();
        for (const CellPos& side : kSides) {
            const CellPos at{from.X + side.X, from.Y + side.Y};
            if (open.Has(at)) {
                open.Remove(at);
                pen.Paint(at, sheet.PaintAt(from));
                reached.push_back(at);
            }
        }
    }
}

std::string PatchText(const CellPatch& patch) {
    std::string text =
        Quoted(std::string(kFirstField)) + ",1\n" + std::to_string(patch.Cells.Across()) + ',' +
        std::to_string(patch.Cells.Down()) + ',' + std::to_string(patch.Paints.Count()) + '\n';
    for (const PaintColor& paint : patch.Paints) {
        text += std::to_string(paint.Red) + ',' + std::to_string(paint.Green) + ',' +
                std::to_string(paint.Blue) + ',' + Quoted(paint.Mfg) + ',' +
                Quoted(paint.PaintCode) + ',' + Quoted(paint.PaintName) + '\n';
    }
    for (int y = 1; y <= patch.Cells.Down(); ++y) {
        for (int x = 1; x <= patch.Cells.Across(); ++x) {
            text += std::to_string(patch.Cells(x, y));
            text += x < patch.Cells.Across() ? ',' : '\n';
        }
    }
    return text;
}

CellPatch ReadPatch(std::string_view text) {
    FieldReader reader(text, "The clipboard");
    if (!text.starts_with(Quoted(std::string(kFirstField))) ||
        reader.ReadText("what it holds") != kFirstField) {
        throw FormatError(reader.File(), 0,
                          "it holds no stipples. Copy some in the editor of this or another kit.");
    }
    if (reader.ReadInt("its format", 1, kLargestSide) != 1) {
        throw FormatError(reader.File(), 1,
                          "its stipples are of a later format. Copy them with this version.");
    }
    const int across = reader.ReadInt("columns", 1, kLargestSide);
    const int down = reader.ReadInt("rows", 1, kLargestSide);
    if (static_cast<std::size_t>(down) > text.size() / static_cast<std::size_t>(across)) {
        throw FormatError(reader.File(), reader.Line(),
                          "it holds fewer stipples than it says. Copy them again.");
    }
    const int count = reader.ReadInt("paints", 1, kLargestSide);
    CellPatch patch;
    for (int i = 1; i <= count; ++i) {
        patch.Paints.Add(ReadPatchPaint(reader));
    }
    patch.Cells = Grid<int>(across, down);
    for (int y = 1; y <= down; ++y) {
        for (int x = 1; x <= across; ++x) {
            patch.Cells(x, y) = reader.ReadInt("a paint", 0, count);
        }
    }
    return patch;
}

}  // namespace vendrel
