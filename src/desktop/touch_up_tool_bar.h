#pragma once

#include <QHBoxLayout>
#include <QSpinBox>
#include <array>
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
    [[nodiscard]] QSize minimumSizeHint() const override;

    QToolButton* Undo;
    QToolButton* Redo;
    QToolButton* ZoomIn;
    QToolButton* ZoomOut;
    QToolButton* Fit;
    QToolButton* ActualSize;

  signals:
    /// The brush has its size; the keyboard is the picture's again.
    void Sized();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddTools();
    void AddBrush();
    void AddSteps();
    void AddZoom();
    void Use(std::size_t tool);
    void MirrorPaints(const TouchUpControls& shown);

    EditorWork work_;
    std::vector<QToolButton*> tools_;
    QSpinBox* size_;
    QToolButton* round_;
    QToolButton* swap_;
    ValueLabel* zoom_;
    QBoxLayout* rows_ = nullptr;
    std::array<QHBoxLayout*, 2> halves_{};
};

}  // namespace vendrel
