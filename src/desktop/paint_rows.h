#pragma once

#include <QTreeWidget>
#include <vector>

#include "forms/touch_up_form.h"

namespace vendrel {

/// The editor's palette: swatch, symbol, name and count of every paint.
class PaintRows : public QTreeWidget {
    Q_OBJECT

  public:
    explicit PaintRows(QWidget* parent = nullptr);

    /// Shows the palette in the order of its rows, with one paint chosen. Cheap when little
    /// changed. Rows can be dragged while they stand in the order of symbols.
    void Follow(const TouchUpControls& shown);

  signals:
    void Chosen(int paint);
    void Dragged(int paint, int to);

  protected:
    void dropEvent(QDropEvent* event) override;

  private:
    [[nodiscard]] int PaintOf(QTreeWidgetItem* row) const;
    void FitColumns();
    [[nodiscard]] bool ShowRow(int at, const TouchUpPaint& paint);

    OneBased<TouchUpPaint> shown_;  // by row
    std::vector<int> rows_;
};

}  // namespace vendrel
