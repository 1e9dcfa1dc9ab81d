#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSlider>

#include "desktop/beside_view.h"
#include "desktop/touch_up_work.h"

namespace vendrel {

/// How the editor's stipples are looked at.
class TouchUpViewPanel : public QWidget {
    Q_OBJECT

  public:
    TouchUpViewPanel(TouchUpCanvas& canvas, const EditorWork& work, QWidget* parent = nullptr);

    void Mirror(const TouchUpControls& shown);

    [[nodiscard]] Beside WhatBeside() const;

  signals:
    void BesideChosen();

  private:
    void ChooseLook();

    TouchUpCanvas& canvas_;
    QCheckBox* gridLines_;
    QCheckBox* symbols_;
    QCheckBox* edits_;
    QSlider* photo_;
    QComboBox* beside_;
};

}  // namespace vendrel
