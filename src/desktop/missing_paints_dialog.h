#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/missing_paints.h"

namespace vendrel {

/// What the kit at hand lacks, and what the painter owns in its place.
class MissingPaintsDialog : public FormDialog {
    Q_OBJECT

  public:
    MissingPaintsDialog(const ViewContext& context, QWidget* parent);

    void Load() override { form_.Form_Load(); }
    void Mirror() override;

  protected:
    void Dismiss() override { form_.Done_Click(); }

  private:
    [[nodiscard]] QWidget* MakeMissing();
    [[nodiscard]] QWidget* MakeSubstitutes();
    [[nodiscard]] QWidget* MakePicture();
    [[nodiscard]] QLayout* MakeEnd();
    void MirrorSubstitutes();

    MissingPaintsForm form_;
    QListWidget* missing_;
    QListWidget* substitutes_;
    QPushButton* use_;
    QPushButton* undo_;
    QLabel* picture_;
    ValueLabel* summary_;
};

}  // namespace vendrel
