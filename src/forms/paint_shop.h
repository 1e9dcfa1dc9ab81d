#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/swatches.h"
#include "shell/workplace.h"
#include "touchup/unsaved_work.h"

namespace vendrel {

/// What the paint shop shows. Indexes count from 0; -1 is nothing.
struct PaintShopControls {
    std::vector<std::string> MfgList;
    std::vector<std::string> SelectedPaintsList;
    std::vector<std::string> TemplateList;
    int MfgIndex = -1;
    int SelectedIndex = -1;
    int TemplateIndex = -1;
    std::string TransferCaption = ">>";
    bool TransferEnabled = false;
    bool ListsEnabled = true;  // both lists of sets
    bool TemplateListEnabled = false;
    bool AllDoneEnabled = true;
    bool DecoFrameShown = false;
    std::string PaletteCaption;
    SwatchLayout Swatches;
};

/// The choice of paints: whole sets or one template.
class PaintShop {
  public:
    /// The palette's box before its window gives it a size, pixels.
    static constexpr int kBoxWidth = 374;
    static constexpr int kBoxHeight = 187;

    explicit PaintShop(Workplace& place) : place_(place) {}

    void Form_Load();
    void MfgList_Click(int set);
    void SelectedPaintsList_Click(int set);
    void Transfer_Click();
    void MfgSelected_Click();
    void UseTemplate_Click();
    void TemplateList_Click(int entry);
    /// The palette's box got another size, in pixels.
    void PaintPalette_Resize(int width, int height);
    void AllDone_Click();
    /// Closing by other means than the button: a conversion stays with its paints. Where there is
    /// none, as done, with the sets when no template is usable.
    void QueryUnload();

    void TransferPaint();
    void LoadTemplates();
    void UpdatePaintColors();

    [[nodiscard]] const PaintShopControls& Controls() const { return controls_; }
    [[nodiscard]] bool UsesTemplate() const { return !place_.State->MfgSelected; }
    /// The paint of a swatch counted from 0; nullptr beyond the palette.
    [[nodiscard]] const PaintColor* PaintAt(int swatch) const;

  private:
    void ShowPalette();
    void ShowMode();
    void ShowSelected();
    bool ChangeSelection();

    /// The paints at work and what they were taken from.
    struct Choice {
        PaintList Palette;
        int FinalColors = 0;
        bool TemplateMode = false;
        bool TemplateLoaded = false;
        std::string SelectedTemplate;
    };
    [[nodiscard]] Choice TakeChoice() const;
    void PutChoice(const Choice& choice);

    Workplace& place_;
    PaintShopControls controls_;
    std::optional<Choice> kit_;  // of the conversion that was there at the opening
    int boxWidth_ = kBoxWidth;
    int boxHeight_ = kBoxHeight;
    bool busy_ = false;  // while the form sets its own option buttons
};

}  // namespace vendrel
