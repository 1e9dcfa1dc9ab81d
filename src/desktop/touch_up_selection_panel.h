#pragma once

#include "desktop/touch_up_work.h"
#include "desktop/value_label.h"

namespace vendrel {

/// What can be done with the editor's selection.
class TouchUpSelectionPanel : public QWidget {
    Q_OBJECT

  public:
    explicit TouchUpSelectionPanel(const EditorWork& work, QWidget* parent = nullptr);

    void Mirror(const TouchUpForm& form);

    QPushButton* Copy;
    QPushButton* Paste;

  private:
    ValueLabel* selected_;
    std::vector<QWidget*> forSelected_;  // on while something is selected
    std::vector<QWidget*> forPatch_;     // or floats
};

}  // namespace vendrel
