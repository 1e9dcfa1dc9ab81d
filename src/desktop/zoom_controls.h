#pragma once

#include <QAction>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

#include "desktop/zoom_view.h"

namespace vendrel {

/// The zoom of the picture that is shown, for the status bar; its commands with their keys are the
/// entries of the View menu.
class ZoomControls : public QWidget {
    Q_OBJECT

  public:
    explicit ZoomControls(QMenu& menu);

    /// The picture they are for; none switches them off.
    void Follow(ZoomView* view);

  private:
    [[nodiscard]] QAction* MakeAction(QMenu& menu, const char* name, const QString& caption,
                                      const QList<QKeySequence>& keys);
    void Connect();
    void Mirror();

    ZoomView* view_ = nullptr;
    QAction* zoomIn_;
    QAction* zoomOut_;
    QAction* fit_;
    QAction* pixels_;
    QSpinBox* percent_;
};

}  // namespace vendrel
