#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/kit_edits.h"
#include "shell/loaded_photo.h"
#include "shell/records.h"
#include "shell/work_settings.h"
#include "support/field_reader.h"
#include "support/grid.h"
#include "support/program_folder.h"
#include "support/whole_file.h"

namespace vendrel {

/// "Saved Stipples/<PictureName>-<Easy|Medium|Difficult>.stp" of the photo and the difficulty
/// chosen now, existing or not.
[[nodiscard]] std::filesystem::path StippleFilePath(const ProgramFolder& folder,
                                                    const LoadedPhoto& photo,
                                                    const WorkSettings& settings);
/// The same of a photo's name and a difficulty's word.
[[nodiscard]] std::filesystem::path StippleFilePath(const ProgramFolder& folder,
                                                    const std::string& photo,
                                                    const std::string& difficulty);
[[nodiscard]] bool StippleFileExists(const ProgramFolder& folder, const LoadedPhoto& photo,
                                     const WorkSettings& settings);

/// What a stipple file keeps. References only, so that an editor's working copies can be saved as
/// well as the kit's own.
struct SavedGrid {
    const PaintList& Palette;
    const Grid<StippleCell>& Cells;
    int Across = 0;
    int Down = 0;
    int FinalColors = 50;
    const EditLayer* Edits = nullptr;  // follow behind the stipples, where most readers do not look
};

/// The bytes of the file. The paints' CellCount is counted afresh from the cells.
[[nodiscard]] std::string FormatStippleFile(const SavedGrid& saved);
/// Replaces the file whole or not at all; creates its folder. Throws FileError.
void WriteStippleFile(const Target& target, const SavedGrid& saved,
                      Lasting lasting = Lasting::Synced);

/// The first line of a stipple file.
struct StippleHeader {
    int PaintCount = 0;
    int Across = 0;
    int Down = 0;
    int FinalColors = 0;
};

/// Reads a stipple file from front to back: the header at once, then PaintCount times ReadPaint,
/// then ReadRow for every row. How many rows of what length is the caller's choice: the file
/// carries no marks between them. All throw FormatError with file and line.
class StippleFileReader {
  public:
    /// `text` must outlive the reader.
    StippleFileReader(std::string_view text, const std::filesystem::path& path);

    [[nodiscard]] const StippleHeader& Header() const { return header_; }
    [[nodiscard]] PaintColor ReadPaint();
    /// The whole palette.
    [[nodiscard]] PaintList ReadPalette();
    /// After the palette: that the file has a line for every stipple its header announces, which
    /// are some. Nothing of the cells is read.
    void RequireCells() const;
    /// Columns 1..across of row y of `cells`, which must hold them.
    void ReadRow(Grid<StippleCell>& cells, int y, int across);
    /// After all rows: the edits that made the grid what it is; nothing where the file ends there.
    [[nodiscard]] std::optional<EditLayer> ReadEdits();

  private:
    [[nodiscard]] int ReadFirst(const char* what, int min, int max);
    void EndRecord() const;
    [[nodiscard]] StippleEdit ReadEdit(const EditLayer& layer);
    void ReadOrder(EditLayer& layer);

    FieldReader fields_;
    StippleHeader header_;
    int recordLine_ = 0;
};

}  // namespace vendrel
