#include "desktop/touch_up_selection_panel.h"

#include <QGridLayout>

#include "desktop/text.h"

namespace vendrel {

TouchUpSelectionPanel::TouchUpSelectionPanel(const EditorWork& work, QWidget* parent)
    : QWidget(parent),
      Copy(EditorButton<QPushButton>("CopySelection", tr("Copy"), tr("Copy (Ctrl+C)"))),
      Paste(EditorButton<QPushButton>("PasteSelection", tr("Paste"),
                                      tr("Paste, from another kit as well (Ctrl+V)"))),
      selected_(new ValueLabel("Selected", tr("Selection"))) {
    selected_->WrapWhole();
    const auto button = [&work](const char* name, const QString& caption, const QString& hint,
                                EditorHandler handler) {
        return EditorButton<QPushButton>(name, caption, hint, work, handler);
    };
    auto* all =
        button("SelectAll", tr("All"), tr("Select all (Ctrl+A)"), &TouchUpForm::SelectAll_Click);
    auto* none = button("SelectNone", tr("None"), tr("Select nothing (Ctrl+D)"),
                        &TouchUpForm::SelectNone_Click);
    auto* invert = button("InvertSelection", tr("Invert"), tr("Select all others (Ctrl+I)"),
                          &TouchUpForm::InvertSelection_Click);
    auto* grow = button("GrowSelection", tr("Grow"), tr("Grow by a stipple (G)"),
                        &TouchUpForm::GrowSelection_Click);
    auto* shrink = button("ShrinkSelection", tr("Shrink"), tr("Shrink by a stipple (Shift+G)"),
                          &TouchUpForm::ShrinkSelection_Click);
    auto* fill = button("FillSelection", tr("Fill"), tr("Fill with the chosen paint (Shift+F)"),
                        &TouchUpForm::FillSelection_Click);
    auto* erase =
        button("EraseSelection", tr("Erase"), tr("Back to what the conversion gave (Delete)"),
               &TouchUpForm::EraseSelection_Click);
    auto* across = button("MirrorAcross", tr("Mirror ↔"), tr("Mirror left to right (H)"),
                          &TouchUpForm::MirrorAcross_Click);
    auto* down = button("MirrorDown", tr("Mirror ↕"), tr("Mirror upside down (Shift+H)"),
                        &TouchUpForm::MirrorDown_Click);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(4);
    grid->addWidget(selected_, 0, 0, 1, 3);
    const std::vector<QWidget*> order = {all,   none,   invert, grow, shrink, fill,
                                         erase, across, down,   Copy, Paste};
    for (std::size_t i = 0; i < order.size(); ++i) {
        grid->addWidget(order[i], 1 + static_cast<int>(i) / 3, static_cast<int>(i) % 3);
    }
    grid->setRowStretch(6, 1);
    forSelected_ = {none, grow, shrink, fill, erase, Copy};
    forPatch_ = {across, down};
}

void TouchUpSelectionPanel::Mirror(const TouchUpForm& form) {
    const bool any = form.Selection().Any();
    const QString text = Text(form.Controls().Selected);
    selected_->Show(text.isEmpty() ? tr("Nothing is selected: tools paint everywhere") : text);
    for (QWidget* widget : forSelected_) {
        widget->setEnabled(any);
    }
    for (QWidget* widget : forPatch_) {
        widget->setEnabled(any || form.Selection().Floating() != nullptr);
    }
}

}  // namespace vendrel
