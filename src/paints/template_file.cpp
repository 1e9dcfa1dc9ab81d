#include "paints/template_file.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "paints/paint_fields.h"
#include "paints/restore.h"
#include "shell/palette.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const fs::path& file, const std::string& text) {
    if (text.find('"') != std::string::npos) {
        throw Error(Shown(file) + ": the paint text " + text +
                    " holds a double quote, which a template cannot keep. Rename the paint.");
    }
    return '"' + text + '"';
}

std::string LineOf(const fs::path& file, const PaintColor& paint) {
    return std::to_string(paint.Red) + ',' + std::to_string(paint.Green) + ',' +
           std::to_string(paint.Blue) + ',' + Quoted(file, paint.Mfg) + ',' +
           Quoted(file, paint.PaintCode) + ',' + Quoted(file, paint.PaintName) + "\r\n";
}

bool ContinuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Whatever the ending is: files that are no templates are listed too.
std::string WithoutEnding(std::string name) {
    for (int i = 0; i < 4 && !name.empty(); ++i) {
        while (ContinuesCharacter(name.back()) && name.size() > 1) {
            name.pop_back();
        }
        name.pop_back();
    }
    return name;
}

void MakeFolder(const fs::path& folder) {
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (failure) {
        throw FileError(folder, "cannot be created (" + failure.message() + "). " +
                                    AdviceOn(failure, "Check the folder's permissions."));
    }
}

}  // namespace

fs::path TemplatePath(const ProgramFolder& folder, std::string_view name) {
    return folder.Path("templates/" + std::string(name) + ".csv");
}

PaintList ReadTemplate(const fs::path& file) {
    return ReadPaintFile(file).Paints;
}

void WriteTemplate(const fs::path& file, const PaintList& paints) {
    std::string text = ' ' + std::to_string(paints.Count()) + "\r\n";
    for (const PaintColor& paint : paints) {
        text += LineOf(file, paint);
    }
    WriteWholeFile(file, text, Lasting::Synced);
}

bool LoadTemplateColors(Workplace& place, std::string_view name) {
    WorkState& state = place.State;
    SetPalette(state, {});  // not the one before, when the file cannot be read
    SetPalette(state, ReadPaints(state, place.Screen, TemplatePath(place.Folder, name)));
    if (state.PaintCount == 0) {
        place.Screen.ShowMessage("Unable To Continue",
                                 "The Selected Template Has NO Paints Assigned!");
        return false;
    }
    state.FinalColors = SetMaxFinalColors(state.Chosen, state.PaintCount);
    return true;
}

std::vector<std::string> ListTemplates(const ProgramFolder& program) {
    const fs::path folder = program.Path("templates");
    MakeFolder(folder);
    std::vector<std::string> names;
    for (const auto& entry : EntriesOf(folder)) {
        const std::string file = entry.path().filename().string();
        std::string name = WithoutEnding(file);
        std::error_code unreadable;
        if (entry.is_regular_file(unreadable) && !name.empty() && !IsWaitingName(file)) {
            names.push_back(std::move(name));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace vendrel
