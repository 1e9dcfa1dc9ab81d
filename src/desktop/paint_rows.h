#pragma once

#include <QTreeWidget>

#include "forms/touch_up_form.h"

namespace vendrel {

/// The editor's palette: swatch, symbol, name and count of every paint.
class PaintRows : public QTreeWidget {
    Q_OBJECT

  public:
    explicit PaintRows(QWidget* parent = nullptr);

    /// Shows the palette with one paint chosen. Cheap when little changed.
    void Follow(const OneBased<TouchUpPaint>& palette, int chosen);

  signals:
    void Chosen(int paint);

  private:
    void ShowRow(QTreeWidgetItem& row, const TouchUpPaint& paint);

    OneBased<TouchUpPaint> shown_;
};

}  // namespace vendrel
