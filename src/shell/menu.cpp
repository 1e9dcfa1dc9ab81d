#include "shell/menu.h"

#include <initializer_list>
#include <utility>

namespace vendrel {
namespace {

using enum MenuId;

constexpr std::array<MenuEntry, kMenuEntryCount> kEntries = {{
    {FileHeader, "FileHeader", "Picture", kMenuBar},
    {LoadBMP, "LoadBMP", "Load Photo", FileHeader},
    {OpenKit, "OpenKit", "Open Kit or Photo\u2026", FileHeader},
    {SaveKit, "SaveKit", "Save Kit", FileHeader, false},
    {SaveKitAs, "SaveKitAs", "Save Kit As\u2026", FileHeader, false},
    {CropOrTurn, "CropOrTurn", "Crop or Turn Photo", FileHeader, false},
    {LoadStipples, "LoadStipples", "Load Stipple Picture", FileHeader},
    {SaveStipples, "SaveStipples", "Save Stipples", FileHeader},
    {StartupPaintShop, "StartupPaintShop", "Paint Shop", FileHeader},
    {ChangeToStipples, "ChangeToStipples", "Change To Stipples", FileHeader},
    {ColorPickerSelect, "ColorPickerSelect", "Touch Up", FileHeader},
    {UndoTouchUp, "UndoTouchUp", "Undo Touch-Up", FileHeader, false},
    {RedoTouchUp, "RedoTouchUp", "Redo Touch-Up", FileHeader, false},
    {MakeItPaintable, "MakeItPaintable", "Make It Paintable\u2026", FileHeader},
    {PaintItNow, "PaintItNow", "Paint It", FileHeader},
    {PrintMenu, "PrintMenu", "Save", FileHeader},
    {PrintWorkform, "PrintWorkform", "Save Painted Picture", PrintMenu},
    {SaveReference, "SaveReference", "Save Symbol Reference Painting", PrintMenu},
    {PrintAll, "PrintAll", "Prepair and Save Paint by Symbol", PrintMenu},
    {PrintColorChart, "PrintColorChart", "View/Save Color Chart", PrintMenu},
    {SaveItAll, "SaveItAll", "Save Everything", PrintMenu},
    {SaveKitPdf, "SaveKitPdf", "Save Kit as PDF", PrintMenu},
    {Difficulty, "Difficulty", "Difficulty", kMenuBar},
    {EasySet, "EasySet", "Easy", Difficulty},
    {MediumSet, "MediumSet", "Medium", Difficulty},
    {HardSet, "HardSet", "Hard", Difficulty},
    {SetPaintMax, "SetPaintMax", "Final Paints", kMenuBar},
    {Set16Colors, "Set16Colors", "16 Colors", SetPaintMax},
    {Set32Colors, "Set32Colors", "32 Colors", SetPaintMax},
    {Set40Colors, "Set40Colors", "40 Colors", SetPaintMax},
    {Set50Colors, "Set50Colors", "50 Colors", SetPaintMax},
    {TemplateMenu, "TemplateMenu", "Tools", kMenuBar},
    {RunTemplateShop, "RunTemplateShop", "Template Shop", TemplateMenu},
    {ShowMyPaints, "ShowMyPaints", "My Paints\u2026", TemplateMenu},
    {ChoosePaintSource, "ChoosePaintSource", "Where Paints Come From\u2026", TemplateMenu},
    {ShowMissingPaints, "ShowMissingPaints", "What Is Missing\u2026", TemplateMenu, false},
    {ShowShopping, "ShowShopping", "Shopping List\u2026", TemplateMenu},
    {AddPaintCatalogue, "AddPaintCatalogue", "Add Catalogue\u2026", TemplateMenu},
    {NextBestColors, "NextBestColors", "Color Matcher", TemplateMenu},
    {SampleMethod, "SampleMethod", "Color Sample Method", TemplateMenu},
    {AveragePixel, "AveragePixel", "Pixel Averaging", SampleMethod},
    {SamplePixel, "SamplePixel", "Pixel Sampleing", SampleMethod},
    {MatchColors, "MatchColors", "Match Colors", TemplateMenu},
    {MatchPlain, "MatchPlain", "Plain", MatchColors},
    {MatchEye, "MatchEye", "By Eye", MatchColors},
    {WatchItPaint, "WatchItPaint", "Watch It Paint", TemplateMenu},
    {ShowAbout, "ShowAbout", "About", kMenuBar},
    {EndItAll, "EndItAll", "Exit", kMenuBar},
}};

void Enable(Menu& menu, std::initializer_list<MenuId> ids, bool on) {
    for (const MenuId id : ids) {
        menu[id].Enabled = on;
    }
}

}  // namespace

Menu::Menu() : entries_(kEntries) {}

void Menu::NameTarget(MenuId id, std::string target) {
    (*this)[id].Enabled = !target.empty();
    targets_[id] = std::move(target);
}

std::string Menu::CaptionOf(MenuId id) const {
    const std::string caption((*this)[id].Caption);
    const auto target = targets_.find(id);
    return target == targets_.end() || target->second.empty() ? caption
                                                              : caption + ": " + target->second;
}

void SetupMenuItems(Menu& menu, int stage) {
    menu[LoadBMP].Enabled = true;
    if (stage == 1) {
        menu[LoadStipples].Enabled = false;
    }
    menu[CropOrTurn].Enabled = stage >= 2 && stage <= 4;
    if (stage == 1 || stage == 2) {
        Enable(menu, {StartupPaintShop, TemplateMenu}, stage == 2);
    }
    menu[ChangeToStipples].Enabled = stage == 2;
    menu[PaintItNow].Enabled = stage == 3;
    Enable(menu, {ColorPickerSelect, MakeItPaintable, SaveStipples, ShowMissingPaints},
           stage == 3 || stage == 4);
    // A setting that waits for its stipples is no reason to lose a kit.
    Enable(menu, {SaveKit, SaveKitAs}, stage >= 2 && stage <= 4);
    menu[PrintMenu].Enabled = stage == 4;
}

bool IsChecked(const Settings& settings, MenuId entry) {
    switch (entry) {
        case EasySet:
            return settings.Level == vendrel::Difficulty::Easy;
        case MediumSet:
            return settings.Level == vendrel::Difficulty::Medium;
        case HardSet:
            return settings.Level == vendrel::Difficulty::Difficult;
        case Set16Colors:
            return settings.FinalPaints == 16;
        case Set32Colors:
            return settings.FinalPaints == 32;
        case Set40Colors:
            return settings.FinalPaints == 40;
        case Set50Colors:
            return settings.FinalPaints == 50;
        case AveragePixel:
            return settings.Sample == Sampling::Average;
        case SamplePixel:
            return settings.Sample == Sampling::Pixel;
        case MatchPlain:
            return settings.Match == Matching::Plain;
        case MatchEye:
            return settings.Match == Matching::ByEye;
        case WatchItPaint:
            return settings.WatchItPaint;
        default:
            return false;
    }
}

}  // namespace vendrel
