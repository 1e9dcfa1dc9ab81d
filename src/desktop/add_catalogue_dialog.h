#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/add_catalogue.h"

namespace vendrel {

/// Asks what the columns of a table hold, and shows its paints.
class AddCatalogueDialog : public FormDialog {
    Q_OBJECT

  public:
    AddCatalogueDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    [[nodiscard]] QWidget* MakeQuestions();
    [[nodiscard]] QWidget* MakeColors();
    [[nodiscard]] QWidget* MakePaints();
    [[nodiscard]] QLayout* MakeEnd();
    [[nodiscard]] QWidget* MakeThree(std::array<QComboBox*, 3>& boxes, const char* const* names,
                                     const QStringList& spoken);
    void ChooseFile();
    void Change();
    void MirrorColumns();

    AddCatalogueForm form_;
    QPushButton* file_;
    QLineEdit* name_;
    QCheckBox* heading_;
    QComboBox* names_;
    QComboBox* codes_;
    QComboBox* sets_;
    QLineEdit* set_;
    QRadioButton* byHex_;
    QRadioButton* byRgb_;
    QRadioButton* byLab_;
    QComboBox* hex_;
    std::array<QComboBox*, 3> rgb_{};
    std::array<QComboBox*, 3> lab_{};
    QGroupBox* questions_;
    QGroupBox* colors_;
    QListWidget* paints_;
    QListWidget* faults_;
    ValueLabel* summary_;
    QPushButton* accept_;
};

}  // namespace vendrel
