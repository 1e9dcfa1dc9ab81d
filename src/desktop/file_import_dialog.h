#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "desktop/fit_panel.h"
#include "desktop/form_dialog.h"
#include "forms/file_import.h"

namespace vendrel {

/// The photo chooser.
class FileImportDialog : public FormDialog {
    Q_OBJECT

  public:
    FileImportDialog(const ViewContext& context, QWidget* parent);

    void Mirror() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    void Arrange();
    void Connect();
    void OpenFolder();

    FileImport& form_;
    QComboBox* importDrive_;
    QLabel* folder_;
    QListWidget* importDir_;
    QListWidget* importFile_;
    QLabel* files_;
    FitPanel* panel_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace vendrel
