#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "convert/bitmap_header.h"
#include "convert/crop.h"
#include "plan/plan_sketch.h"
#include "shell/kit_edits.h"
#include "shell/settings.h"
#include "support/grid.h"
#include "support/twips.h"

namespace vendrel {

/// The photo of a kit: its file in Pictures, and what tells it from another of that name.
struct KitPhoto {
    std::string File;
    std::string Sum;  // of its pixels, see PixelSum
    BitmapSize Size;

    bool operator==(const KitPhoto&) const = default;
};

/// How the photo was cut from another one.
struct KitCrop {
    std::string Of;  // the file it was cut from, without folders
    int QuartersRight = 0;
    CropRect Part;  // after the turn

    bool operator==(const KitCrop&) const = default;
};

/// Where the paints came from that a kit was chosen from.
struct PaintSource {
    std::vector<std::string> Sets;
    std::string Template;  // in place of sets; empty: none

    bool operator==(const PaintSource&) const = default;
};

/// What this version does not know of a file: the place of an object in it, and its members there
/// as names and JSON texts. Written again where they stood.
using UnknownFields = std::map<std::string, std::vector<std::pair<std::string, std::string>>>;

/// A kit as its file has it: all that makes it, and what was made.
struct KitFile {
    std::string Program;  // that wrote the file, and its version
    std::string Title;
    KitPhoto Photo;
    std::optional<KitCrop> Crop;       // where it is known
    ScreenSize Board = kDrawingBoard;  // that the photo was sized for
    Settings Chosen;                   // but for WatchItPaint
    int FinalColors = 0;               // at most so many were kept
    ValueGrid Protected;               // per stipple from 0, or empty
    bool PaintableKit = false;
    double SeenPerStipple = 0;
    PlanSettings Print;
    PaintSource Source;
    PaintList Choice;        // the paints it was chosen from
    std::vector<int> Owned;  // which of them, from 1, where what is owned goes first
    PaintList Paints;        // the palette it got
    KitEdits Layer;
    Grid<StippleCell> Stipples;  // finished; area numbers are 0
    UnknownFields Unknown;
};

/// The newest format that this version reads, and the one it writes.
inline constexpr int kKitFormat = 1;

/// Reads a kit file. Throws FileError, and FormatError naming what is wrong, also for a file of a
/// newer format. Nothing of a size that the file merely claims is allocated.
[[nodiscard]] KitFile ReadKitFile(const std::filesystem::path& file);
/// The same of a text; `file` is named in errors.
[[nodiscard]] KitFile ParseKitFile(const std::string& text, const std::filesystem::path& file);

/// The text of the file. Throws Error when a name in it is no UTF-8 text.
[[nodiscard]] std::string FormatKitFile(const KitFile& kit);
/// Writes it whole or not at all; on the disk when this returns. Throws Error, FileError.
void WriteKitFile(const std::filesystem::path& file, const KitFile& kit);

}  // namespace vendrel
