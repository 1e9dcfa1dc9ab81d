#pragma once

#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include "plan/sticker_sheet.h"

namespace vendrel {

/// Asks which sheet of labels is in the printer.
class StickersDialog : public QDialog {
    Q_OBJECT

  public:
    explicit StickersDialog(QWidget* parent);

    /// Throws Error for labels that do not fit on the paper.
    [[nodiscard]] StickerSheet Sheet() const;
    /// Labels that the first sheet lacks already.
    [[nodiscard]] int Used() const;

  private:
    void Mirror();

    QComboBox* sheet_;
    QDoubleSpinBox* width_;
    QDoubleSpinBox* height_;
    QSpinBox* used_;
};

}  // namespace vendrel
