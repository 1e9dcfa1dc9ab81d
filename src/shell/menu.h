#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "shell/settings.h"

namespace vendrel {

/// The entries of the main menu, in menu order.
enum class MenuId {
    FileHeader,
    LoadBMP,
    OpenKit,
    SaveKit,
    SaveKitAs,
    CropOrTurn,
    LoadStipples,
    SaveStipples,
    StartupPaintShop,
    ChangeToStipples,
    ColorPickerSelect,
    UndoTouchUp,
    RedoTouchUp,
    MakeItPaintable,
    PaintItNow,
    PrintMenu,
    PrintWorkform,
    SaveReference,
    PrintAll,
    PrintColorChart,
    SaveItAll,
    SaveKitPdf,
    Difficulty,
    EasySet,
    MediumSet,
    HardSet,
    SetPaintMax,
    Set16Colors,
    Set32Colors,
    Set40Colors,
    Set50Colors,
    TemplateMenu,
    RunTemplateShop,
    ShowMyPaints,
    ChoosePaintSource,
    ShowMissingPaints,
    ShowShopping,
    AddPaintCatalogue,
    NextBestColors,
    SampleMethod,
    AveragePixel,
    SamplePixel,
    MatchColors,
    MatchPlain,
    MatchEye,
    WatchItPaint,
    ShowAbout,
    EndItAll,
    kMenuBar,  // parent of the entries on the bar; no entry of its own
};

inline constexpr std::size_t kMenuEntryCount = static_cast<std::size_t>(MenuId::kMenuBar);

/// One entry: its name in code, its caption on screen and where it hangs.
struct MenuEntry {
    MenuId Id;
    std::string_view Name;
    std::string_view Caption;
    MenuId Parent;
    bool Enabled = true;
};

/// The main menu as data; the window mirrors it.
class Menu {
  public:
    Menu();

    [[nodiscard]] MenuEntry& operator[](MenuId id) {
        return entries_[static_cast<std::size_t>(id)];
    }
    [[nodiscard]] const MenuEntry& operator[](MenuId id) const {
        return entries_[static_cast<std::size_t>(id)];
    }
    [[nodiscard]] const std::array<MenuEntry, kMenuEntryCount>& Entries() const { return entries_; }

    /// Says on the entry what it would act on: "Undo Touch-Up: Fill". Without it the entry is off.
    void NameTarget(MenuId id, std::string target);
    /// The caption with that.
    [[nodiscard]] std::string CaptionOf(MenuId id) const;

  private:
    std::map<MenuId, std::string> targets_;
    std::array<MenuEntry, kMenuEntryCount> entries_;
};

/// Enables and disables entries for a stage of the work: 1 start, 2 photo or setting chosen,
/// 3 stipples made, 4 painted, 5 everything off. Entries a stage does not name stay as they were.
void SetupMenuItems(Menu& menu, int stage);

/// Whether an entry shows a mark: the settings that are chosen do, all others never.
[[nodiscard]] bool IsChecked(const Settings& settings, MenuId entry);

}  // namespace vendrel
