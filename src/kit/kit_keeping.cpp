#include "kit/kit_keeping.h"

#include "kitfile/kit_photo.h"
#include "kitfile/kit_places.h"
#include "kitfile/take_kit.h"
#include "kitset/kit_list.h"
#include "kitset/kit_mark.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Of what is chosen only what makes a grid; a plain kit has no limits, and its canvas is print.
Settings GridSettings(Settings chosen) {
    chosen.WatchItPaint = true;
    if (!chosen.Paintable) {
        chosen.Limits = {};
        chosen.Detail = kUsualDetail;
        chosen.CanvasCm = 0;
    }
    return chosen;
}

bool SameKit(KitFile kept, const KitFile& kit) {
    kept.Program = kit.Program;
    kept.Unknown = kit.Unknown;
    return FormatKitFile(kept) == FormatKitFile(kit);
}

void RequireFreeResults(const Workplace& place, const KitOptions& options) {
    const KitPaths paths(place.Folder, KitNameOf(place.State, place.State));
    const auto list = ReadKitList(paths.List());
    if (options.From && list && list->Mark != KitMark(place.State, place.State, place.State)) {
        throw FileError(paths.List(), "is of another kit of that name. Choose another --title.");
    }
}

}  // namespace

fs::path FindKit(const ProgramFolder& folder, const std::string& word) {
    const fs::path kept = folder.Path("Kits/" + word);
    if (IsFile(word) || fs::path(word).has_parent_path() || !IsFile(kept)) {
        if (!Stands(word)) {
            throw FileError(word,
                            "there is no such kit, neither here nor in Kits. Check its name.");
        }
        return word;
    }
    return kept;
}

bool ChangesGrid(const KitOptions& options) {
    const KitFile& kit = *options.From;
    const bool otherBoard =
        options.Screen.Width != kit.Board.Width || options.Screen.Height != kit.Board.Height;
    return !options.Sets.empty() || options.Template || options.OwnedOnly || options.BuyingNamed ||
           otherBoard || GridSettings(options.Chosen) != GridSettings(kit.Chosen);
}

void RequireOwnTitle(const KitOptions& options) {
    if (ChangesGrid(options) &&
        (options.Title.empty() || SameIgnoringCase(options.Title, options.From->Title))) {
        throw Error("With other settings \"" + options.From->Title +
                    "\" becomes another kit, which needs a name of its own. Add --title NAME.");
    }
}

bool KeepsKit(const KitOptions& options) {
    return options.SaveKit || (options.From && !options.Title.empty());
}

void KeepKit(const Workplace& place, const KitOptions& options, const TakenPhoto& taken,
             KitReport& report) {
    RequireFreeResults(place, options);
    KitFile kit =
        KitOf(place, KitPhotoOf(place.State->PicturePath), options.Plan, options.From.get());
    if (taken.Crop) {
        kit.Crop = taken.Crop;
    }
    const fs::path file = KitPath(place.Folder, kit.Title);
    if (!Stands(file)) {
        WriteKitFile(file, kit);
    } else if (!SameKit(ReadKitFile(file), kit)) {
        throw FileError(file, "is another kit and was kept. Choose another --title.");
    }
    report.Files.emplace_back("kit", file.lexically_normal().string());
}

}  // namespace vendrel
