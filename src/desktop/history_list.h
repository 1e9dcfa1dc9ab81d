#pragma once

#include <QListWidget>

#include "desktop/touch_up_work.h"

namespace vendrel {

/// The editor's steps by name, the undone ones greyed; choosing one goes to its state.
class HistoryList : public QListWidget {
    Q_OBJECT

  public:
    explicit HistoryList(EditorWork work, QWidget* parent = nullptr);

    void Mirror(const TouchUpControls& shown);

  private:
    std::vector<std::string> shown_;
    int done_ = -1;
};

}  // namespace vendrel
