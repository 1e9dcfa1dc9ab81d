#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/form_dialog.h"
#include "forms/color_matcher.h"

namespace vendrel {

/// Next best paints for those of the palette.
class ColorMatcherDialog : public FormDialog {
    Q_OBJECT

  public:
    ColorMatcherDialog(const ViewContext& context, QWidget* parent);

    void Load() override { form_.Form_Load(); }
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    [[nodiscard]] QWidget* MakePalette();
    [[nodiscard]] QWidget* MakeOffers();
    [[nodiscard]] QWidget* MakePreview();
    [[nodiscard]] QLayout* MakeButtons();
    void MirrorOffers();
    void MirrorPreview();

    ColorMatcher form_;
    QListWidget* paintList_;
    QRadioButton* selectedSets_;
    QRadioButton* wholeCatalogue_;
    QGroupBox* offersFrame_;
    QListWidget* offerList_;
    QPushButton* exchange_ = nullptr;
    QPushButton* putBack_ = nullptr;
    QPushButton* putAllBack_ = nullptr;
    QLabel* preview_;
};

}  // namespace vendrel
