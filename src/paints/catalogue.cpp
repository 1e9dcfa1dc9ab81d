#include "paints/catalogue.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "paints/paint_fields.h"
#include "shell/paint_id.h"
#include "shell/warnings.h"
#include "support/counter.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// By name, so that every start has them in one order; the folder's own stand for shipped ones.
std::map<std::string, fs::path> MoreCatalogues(const ProgramFolder& folder) {
    std::map<std::string, fs::path> files;
    for (const fs::path& from :
         {folder.Path("Data/catalogues"),
          folder.Shipped().empty() ? fs::path() : folder.Shipped() / "Data/catalogues"}) {
        if (from.empty()) {
            continue;
        }
        for (const auto& entry : EntriesOf(from)) {
            const std::string name = ToLower(entry.path().filename().string());
            if (name.ends_with(".csv") && IsFile(entry.path()) && !IsWaitingName(name)) {
                files.emplace(name, entry.path());
            }
        }
    }
    return files;
}

// Of paints that several catalogues have, the first stands.
void AppendNew(PaintList& paints, std::set<PaintId>& known, const PaintList& more,
               const fs::path& file) {
    for (const PaintColor& paint : more) {
        const PaintId id = IdOf(paint);
        if (id.Named() && !known.insert(id).second) {
            continue;
        }
        if (paints.Count() >= kMaxCounter) {
            throw FileError(file,
                            "with it there are more than 32767 paints, and the rest are left "
                            "out. Take a catalogue out of Data/catalogues.");
        }
        paints.Add(paint);
    }
}

// A catalogue that cannot be read must not keep the others from being used.
void AppendCatalogues(PaintList& paints, GivenWarnings& given, Ui& screen,
                      const ProgramFolder& folder) {
    const auto files = MoreCatalogues(folder);
    std::set<PaintId> known;
    for (const PaintColor& paint : paints) {
        known.insert(IdOf(paint));
    }
    for (const auto& [name, file] : files) {
        try {
            AppendNew(paints, known, ReadPaints(given, screen, file), file);
        } catch (const Error& error) {
            WarnOnce(given, screen, error.what());
        }
    }
}

}  // namespace

void LoadMasterColors(Catalogue& catalogue, GivenWarnings& given, Ui& screen,
                      const ProgramFolder& folder) {
    PaintList paints = ReadPaints(given, screen, folder.DataFile("Data/studiopaint.csv"));
    AppendCatalogues(paints, given, screen, folder);
    SetCatalogue(catalogue, std::move(paints));
}

void BuildPaintSets(Catalogue& catalogue) {
    OneBased<PaintSet> sets;
    std::unordered_set<std::string_view> known;
    for (const PaintColor& paint : catalogue.MasterColors) {
        if (paint.Mfg.empty() || known.insert(paint.Mfg).second) {
            sets.Add({paint.Mfg, false});
        }
    }
    SetPaintSets(catalogue, std::move(sets));
}

}  // namespace vendrel
