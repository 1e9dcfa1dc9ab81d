#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/form_dialog.h"
#include "desktop/swatch_box.h"
#include "forms/paint_shop.h"

namespace vendrel {

/// The choice of paints.
class PaintShopDialog : public FormDialog {
    Q_OBJECT

  public:
    PaintShopDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.QueryUnload(); }
    void hideEvent(QHideEvent* event) override;

  private:
    [[nodiscard]] QWidget* MakeModes();
    [[nodiscard]] QWidget* MakeLists();
    [[nodiscard]] QWidget* MakePalette();
    void Connect();

    PaintShop form_;
    QRadioButton* mfgSelected_;
    QRadioButton* useTemplate_;
    QListWidget* mfgList_;
    QPushButton* transfer_;
    QListWidget* selectedPaintsList_;
    QListWidget* templateList_;
    QFrame* decoFrame_;
    QGroupBox* paletteFrame_;
    SwatchBox* paintPalette_;
    QPushButton* allDone_;
};

}  // namespace vendrel
