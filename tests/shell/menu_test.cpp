#include "shell/menu.h"

#include <gtest/gtest.h>

#include <string>

namespace vendrel {
namespace {

using enum MenuId;

constexpr MenuId kStaged[] = {LoadBMP,          LoadStipples, StartupPaintShop,  TemplateMenu,
                              ChangeToStipples, PaintItNow,   ColorPickerSelect, PrintMenu};

std::string States(const Menu& menu) {
    std::string states;
    for (const MenuId id : kStaged) {
        states += menu[id].Enabled ? '+' : '-';
    }
    return states;
}

TEST(Menu, EachStageSetsItsEntriesAndLeavesTheOthers) {
    struct Case {
        int stage;
        const char* fromAllOn;
        const char* fromAllOff;
    };
    for (const Case& c : {Case{1, "+-------", "+-------"}, Case{2, "+++++---", "+-+++---"},
                          Case{3, "++++-++-", "+----++-"}, Case{4, "++++--++", "+-----++"},
                          Case{5, "++++----", "+-------"}}) {
        for (const bool on : {true, false}) {
            Menu menu;
            for (const MenuId id : kStaged) {
                menu[id].Enabled = on;
            }
            SetupMenuItems(menu, c.stage);
            EXPECT_EQ(States(menu), on ? c.fromAllOn : c.fromAllOff) << c.stage;
        }
    }
}

TEST(Menu, EntriesStandAtTheirIds) {
    const Menu menu;
    int at = 0;
    for (const MenuEntry& entry : menu.Entries()) {
        EXPECT_EQ(static_cast<int>(entry.Id), at++);
        EXPECT_TRUE(entry.Parent == kMenuBar || entry.Parent < entry.Id) << entry.Name;
    }
    EXPECT_EQ(menu[PrintAll].Caption, "Prepair and Save Paint by Symbol");
    EXPECT_EQ(menu[SamplePixel].Caption, "Pixel Sampleing");
}

TEST(Menu, TheChosenSettingsAloneAreChecked) {
    const auto checked = [](const Settings& settings) {
        std::string names;
        const Menu menu;
        for (const MenuEntry& entry : menu.Entries()) {
            names += IsChecked(settings, entry.Id) ? std::string(entry.Name) + " " : "";
        }
        return names;
    };
    Settings settings;
    EXPECT_EQ(checked(settings), "EasySet Set50Colors AveragePixel MatchPlain WatchItPaint ");
    settings.Level = vendrel::Difficulty::Difficult;
    settings.FinalPaints = 0;
    settings.Sample = Sampling::Pixel;
    settings.Match = Matching::ByEye;
    settings.WatchItPaint = false;
    EXPECT_EQ(checked(settings), "HardSet SamplePixel MatchEye ");
    for (const int n : {16, 32, 40, 50}) {
        SetColorChecks(settings, n);
        EXPECT_EQ(settings.FinalPaints, n);
    }
    SetColorChecks(settings, 12);
    EXPECT_EQ(settings.FinalPaints, 0);
}

}  // namespace
}  // namespace vendrel
