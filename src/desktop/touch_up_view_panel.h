#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSlider>

#include "desktop/beside_view.h"

namespace vendrel {

/// How the editor's stipples are looked at.
class TouchUpViewPanel : public QWidget {
    Q_OBJECT

  public:
    explicit TouchUpViewPanel(TouchUpCanvas& canvas, QWidget* parent = nullptr);

    [[nodiscard]] Beside WhatBeside() const;

  signals:
    void BesideChosen();

  private:
    void ChooseLook();

    TouchUpCanvas& canvas_;
    QCheckBox* gridLines_;
    QCheckBox* symbols_;
    QSlider* photo_;
    QComboBox* beside_;
};

}  // namespace vendrel
