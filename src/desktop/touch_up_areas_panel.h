#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include "desktop/touch_up_work.h"
#include "desktop/value_label.h"

namespace vendrel {

/// What the editor has for areas: outlines, those too small or narrow to paint, merging, loners,
/// clean-up.
class TouchUpAreasPanel : public QWidget {
    Q_OBJECT

  public:
    explicit TouchUpAreasPanel(EditorWork work, QWidget* parent = nullptr);

    void Mirror(const TouchUpControls& shown, const AreaControls& areas);

    QPushButton* NextLoner;
    QPushButton* NextHard;

  signals:
    /// A number was typed to its end.
    void Typed();

  private:
    [[nodiscard]] QWidget* MakePrinted();
    [[nodiscard]] QWidget* MakeMerging();
    [[nodiscard]] QWidget* MakeMarkers();
    [[nodiscard]] QWidget* MakeCleanUp();
    void TellBelow();

    EditorWork work_;
    QCheckBox* outlines_;
    QCheckBox* markHard_;
    ValueLabel* hard_;
    QSpinBox* below_;
    QComboBox* unit_;
    QCheckBox* preview_;
    ValueLabel* mergeText_;
    QPushButton* merge_;
    QCheckBox* blinkLoners_;
    QCheckBox* blinkPaint_;
    ValueLabel* loners_;
    QToolButton* lowerLevel_;
    QToolButton* raiseLevel_;
    ValueLabel* cleanLevel_;
    ValueLabel* cleanPreview_;
    QPushButton* cleanUp_;
};

}  // namespace vendrel
