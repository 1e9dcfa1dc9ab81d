#pragma once

#include <QComboBox>
#include <QPushButton>

#include "desktop/paint_rows.h"
#include "desktop/touch_up_work.h"
#include "desktop/value_label.h"

namespace vendrel {

/// The editor's paints: their list, its order, and what can be done with one.
class TouchUpPaints : public QWidget {
    Q_OBJECT

  public:
    TouchUpPaints(EditorWork work, QWidget* parent = nullptr);

    void Mirror(const TouchUpControls& shown);
    [[nodiscard]] PaintRows& List() { return *list_; }
    /// Asks which paint of the catalogue is to join the palette.
    void AskForPaint();

  private:
    void Connect();

    EditorWork work_;
    PaintRows* list_;
    QComboBox* order_;
    QToolButton* alone_;
    ValueLabel* chosen_;
    QPushButton* add_;
    QPushButton* remove_;
    QPushButton* tidy_;
};

}  // namespace vendrel
