#include "kitfile/take_kit.h"

#include <algorithm>
#include <utility>

#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "paints/owned_paints.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "shell/found_palette.h"
#include "shell/menu.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/work_settings.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Counts follow from the stipples.
PaintList WithoutCounts(PaintList paints) {
    for (PaintColor& paint : paints) {
        paint.CellCount = 0;
    }
    return paints;
}

// Marks of areas follow too.
Grid<StippleCell> WithoutAreas(Grid<StippleCell> cells) {
    for (StippleCell& cell : cells.All()) {
        cell.AreaNumber = 0;
    }
    return cells;
}

PaintList ChoiceOf(const Workplace& place, const PaintSource& source) {
    if (!source.Template.empty()) {
        return ReadTemplate(TemplatePath(place.Folder, source.Template));
    }
    PaintList paints;
    for (const std::string& set : source.Sets) {
        AppendPaintsOf(place.State, set, paints);
    }
    return paints;
}

std::vector<int> NumbersOf(const std::vector<bool>& chosen) {
    std::vector<int> numbers;
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (chosen[i]) {
            numbers.push_back(static_cast<int>(i) + 1);
        }
    }
    return numbers;
}

Photo ReadInShape(const KitFile& kit, const fs::path& file, const ScreenSize& screen) {
    auto photo = ReadPhotoInShape(file, screen, {kit.Stipples.Across(), kit.Stipples.Down()},
                                  TraitsOf(kit.Chosen.Level).StippleSize);
    if (!photo) {
        throw FileError(file, "has no pixels. Choose another photo.");
    }
    return *std::move(photo);
}

bool HasOwnShape(const KitFile& kit, const Photo& photo, const ScreenSize& screen) {
    return ComputeFittedSize(photo.Bmp, screen, TraitsOf(kit.Chosen.Level).StippleSize,
                             kit.Chosen.Fit)
               .Pixels(screen.Twips) == photo.Working.Pixels(screen.Twips);
}

void TakeSettings(WorkState& state, const KitFile& kit) {
    const bool watch = state.Chosen.WatchItPaint;
    SizeStipples(state, TraitsOf(kit.Chosen.Level).StippleSize);
    state.Chosen = kit.Chosen;
    state.Chosen.WatchItPaint = watch;
    state.FinalColors = kit.FinalColors;
    state.OwnedPaints = OwnedOf(kit);
    TakeSource(state, state, kit.Source);
}

void TakeGrid(WorkState& state, const KitFile& kit) {
    SetFoundColors(state, {});
    SetPalette(state, kit.Paints);
    SetGrid(state, kit.Stipples);
    state.StipplesMade = true;
    state.WorkStage = 1;
    state.PaintableKit = kit.PaintableKit;
    state.SeenPerStipple = kit.SeenPerStipple;
    state.Protected = kit.Protected;
    static_cast<EditPast&>(state) = {};  // its steps are of another kit
    static_cast<KitEdits&>(state) = kit.Layer;
    state.Converted = true;  // or will be, as soon as a setting changes
    static_cast<EditPast&>(state) = {};
}

void DrawGrid(Workplace& place) {
    EraseToColor(EaselOf(place), kBlack);
    DrawStipplePicture(place);
    SetupMenuItems(place.MainMenu, 2);  // as with the photo, and then with its stipples
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
}

}  // namespace

PaintList OwnedOf(const KitFile& kit) {
    PaintList owned;
    for (const int paint : kit.Owned) {
        owned.Add(kit.Choice[paint]);
    }
    return owned;
}

PaintSource SourceOf(const Catalogue& catalogue, const PaintChoice& choice) {
    const bool fromSets = choice.PaintShopLoaded ? choice.MfgSelected : !choice.TemplateMode;
    if (!fromSets) {
        return {{}, choice.SelectedTemplate};
    }
    PaintChoice listed = choice;
    if (!choice.PaintShopLoaded) {
        FillSelectedPaintsList(listed, catalogue);
    }
    return {std::move(listed.SelectedPaintsList), {}};
}

void TakeSource(Catalogue& catalogue, PaintChoice& choice, const PaintSource& source) {
    choice.TemplateMode = !source.Template.empty();
    choice.TemplateLoaded = choice.TemplateMode;
    choice.MfgSelected = !choice.TemplateMode;
    if (choice.TemplateMode) {
        choice.SelectedTemplate = source.Template;
        return;
    }
    for (PaintSet& set : catalogue.PaintSets) {
        set.Selected = std::ranges::find(source.Sets, set.Name) != source.Sets.end();
    }
    FillSelectedPaintsList(choice, catalogue);
}

void TakeStipples(KitFile& kit, const KitStipples& stipples) {
    kit.Paints = WithoutCounts(stipples.Paints);
    kit.Stipples = WithoutAreas(stipples.Cells);
    kit.Layer = stipples.Layer;
    kit.Layer.BasePaints = WithoutCounts(std::move(kit.Layer.BasePaints));
}

KitFile KitOf(const Workplace& place, const KitPhoto& photo, const PlanSettings& print,
              const KitFile* before) {
    const WorkState& state = place.State;
    KitFile kit;
    kit.Program = "Vendrel " VENDREL_VERSION;
    kit.Title = state.PictureName;
    kit.Photo = photo;
    kit.Board = place.Screen.Screen();
    kit.Chosen = state.Chosen;
    kit.FinalColors = state.FinalColors;
    kit.Protected = state.Protected;
    kit.PaintableKit = state.PaintableKit;
    kit.SeenPerStipple = state.PaintableKit ? state.SeenPerStipple : 0;
    kit.Print = print;
    kit.Source = SourceOf(state, state);
    const bool sameSource = before != nullptr && before->Source == kit.Source &&
                            before->Chosen.Buying.Asked == kit.Chosen.Buying.Asked;
    kit.Choice = sameSource ? before->Choice : WithoutCounts(ChoiceOf(place, kit.Source));
    if (kit.Chosen.Buying.Asked) {
        JoinOwned(kit.Choice, WithoutCounts(state.OwnedPaints));
        kit.Owned = NumbersOf(WhichAreOwned(kit.Choice, state.OwnedPaints));
    }
    TakeStipples(kit, {state.PaintColors, state.Stipples, state});
    if (before != nullptr) {
        kit.Unknown = before->Unknown;
        if (before->Photo.Sum == photo.Sum) {
            kit.Crop = before->Crop;
        }
    }
    return kit;
}

void TakeKit(Workplace& place, const KitFile& kit, const fs::path& file) {
    WorkState& state = place.State;
    const ScreenSize screen = place.Screen.Screen();
    Photo photo = ReadInShape(kit, file, screen);
    const bool ownShape = HasOwnShape(kit, photo, screen);
    TakeSettings(state, kit);
    state.PictureFile = file.filename().string();
    state.PicturesFolder = file.parent_path().string() + "/";
    state.PicturePath = file.string();
    state.PictureName = kit.Title;
    ShowPhoto(place, std::move(photo));
    state.ShapedByGrid = !ownShape;
    TakeGrid(state, kit);
    DrawGrid(place);
}

}  // namespace vendrel
