#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/file_import.h"

namespace vendrel {

/// The photo chooser.
class FileImportDialog : public FormDialog {
    Q_OBJECT

  public:
    FileImportDialog(const ViewContext& context, QWidget* parent);

    void Load() override {}  // Load Photo has filled the form
    void Mirror() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    void Arrange();
    void Connect();
    void OpenFolder();
    void ShowPreview();

    FileImport& form_;
    QComboBox* importDrive_;
    QLabel* folder_;
    QListWidget* importDir_;
    QListWidget* importFile_;
    QLabel* preview_;
    ValueLabel* description_;
    QPushButton* cropButton_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace vendrel
