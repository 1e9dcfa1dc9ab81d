#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "shell/records.h"

namespace vendrel {

/// Asks for a paint that no catalogue has.
class OwnPaintDialog : public QDialog {
    Q_OBJECT

  public:
    explicit OwnPaintDialog(QWidget* parent);

    [[nodiscard]] PaintColor Paint() const;

  private:
    void PickColor();
    void ShowColor();

    QLineEdit* name_;
    QLineEdit* set_;
    QLineEdit* code_;
    QPushButton* pick_;
    Color color_ = Rgb(160, 160, 160);
};

}  // namespace vendrel
