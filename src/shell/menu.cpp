#include "shell/menu.h"

#include <initializer_list>

namespace vendrel {
namespace {

using enum MenuId;

constexpr std::array<MenuEntry, kMenuEntryCount> kEntries = {{
    {FileHeader, "FileHeader", "Picture", kMenuBar},
    {LoadBMP, "LoadBMP", "Load Photo", FileHeader},
    {LoadStipples, "LoadStipples", "Load Stipple Picture", FileHeader},
    {StartupPaintShop, "StartupPaintShop", "Paint Shop", FileHeader},
    {ChangeToStipples, "ChangeToStipples", "Change To Stipples", FileHeader},
    {ColorPickerSelect, "ColorPickerSelect", "Touch Up", FileHeader},
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
    {NextBestColors, "NextBestColors", "Color Matcher", TemplateMenu},
    {SampleMethod, "SampleMethod", "Color Sample Method", TemplateMenu},
    {AveragePixel, "AveragePixel", "Pixel Averaging", SampleMethod},
    {SamplePixel, "SamplePixel", "Pixel Sampleing", SampleMethod},
    {WatchItPaint, "WatchItPaint", "Watch It Paint", TemplateMenu, true, true},
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

void SetupMenuItems(Menu& menu, int stage) {
    menu[LoadBMP].Enabled = true;
    if (stage == 1) {
        menu[LoadStipples].Enabled = false;
    }
    if (stage == 1 || stage == 2) {
        Enable(menu, {StartupPaintShop, TemplateMenu}, stage == 2);
    }
    menu[ChangeToStipples].Enabled = stage == 2;
    menu[PaintItNow].Enabled = stage == 3;
    menu[ColorPickerSelect].Enabled = stage == 3 || stage == 4;
    menu[PrintMenu].Enabled = stage == 4;
}

void SetColorChecks(Menu& menu, int finalColors) {
    menu[Set16Colors].Checked = finalColors == 16;
    menu[Set32Colors].Checked = finalColors == 32;
    menu[Set40Colors].Checked = finalColors == 40;
    menu[Set50Colors].Checked = finalColors == 50;
}

std::string_view DifficultyWord(const Menu& menu) {
    if (menu[EasySet].Checked) {
        return "Easy";
    }
    return menu[MediumSet].Checked ? "Medium" : "Difficult";
}

int WantedFinalColors(const Menu& menu) {
    if (menu[Set16Colors].Checked) {
        return 16;
    }
    if (menu[Set32Colors].Checked) {
        return 32;
    }
    if (menu[Set40Colors].Checked) {
        return 40;
    }
    return menu[Set50Colors].Checked ? 50 : 0;
}

}  // namespace vendrel
