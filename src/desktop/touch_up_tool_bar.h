#pragma once

#include <QSpinBox>
#include <vector>

#include "desktop/touch_up_work.h"
#include "desktop/value_label.h"

namespace vendrel {

/// The editor's tools, its brush, and the steps back and forth.
class TouchUpToolBar : public QWidget {
    Q_OBJECT

  public:
    explicit TouchUpToolBar(EditorWork work, QWidget* parent = nullptr);

    void Mirror(const TouchUpControls& shown);
    void ShowZoom(double edge);
    /// A tool's key was pressed.
    void Take(const char* tool);

    QToolButton* Undo;
    QToolButton* Redo;
    QToolButton* ZoomIn;
    QToolButton* ZoomOut;
    QToolButton* Fit;
    QToolButton* ActualSize;

  private:
    void AddTools(class QHBoxLayout& row);
    void AddBrush(QHBoxLayout& row);
    void Use(std::size_t tool);

    EditorWork work_;
    std::vector<QToolButton*> tools_;
    QSpinBox* size_;
    QToolButton* round_;
    ValueLabel* zoom_;
};

}  // namespace vendrel
