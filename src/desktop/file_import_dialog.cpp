#include "desktop/file_import_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <initializer_list>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

QVBoxLayout* Column(std::initializer_list<QWidget*> widgets) {
    auto* column = new QVBoxLayout;
    for (QWidget* widget : widgets) {
        column->addWidget(widget);
    }
    return column;
}

}  // namespace

FileImportDialog::FileImportDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Form.Chooser()),
      importDrive_(Named<QComboBox>("ImportDrive", tr("Drive"))),
      folder_(new QLabel),
      importDir_(Named<QListWidget>("ImportDir", tr("Folders"))),
      importFile_(Named<QListWidget>("ImportFile", tr("Photos"))),
      files_(LabelFor(*importFile_, {})),
      panel_(new FitPanel(FitPanel::Shows::ChosenWay)),
      okButton_(Named<QPushButton>("OKButton", tr("OK"))),
      cancelButton_(Named<QPushButton>("CancelButton", tr("Cancel"))) {
    Arrange();
    Connect();
    const auto ways = panel_->Controls();
    SetTabOrder({importDrive_, importDir_, importFile_, ways[0], ways[1], ways[2], ways[3],
                 okButton_, cancelButton_});
    importFile_->setFocus();
    resize(820, 560);
}

void FileImportDialog::Arrange() {
    okButton_->setText(tr("OK"));
    okButton_->setDefault(true);
    cancelButton_->setText(tr("Cancel"));
    cancelButton_->setAutoDefault(false);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(okButton_, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancelButton_, QDialogButtonBox::RejectRole);
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* columns = new QHBoxLayout;
    columns->addLayout(Column({LabelFor(*importDrive_, tr("&Drive")), importDrive_,
                               LabelFor(*importDir_, tr("F&olders")), importDir_}),
                       2);
    columns->addLayout(Column({files_, importFile_}), 3);
    columns->addLayout(Column({new QLabel(tr("Preview")), panel_}));
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(columns, 1);
    rows->addWidget(folder_);
    rows->addWidget(buttons);
}

void FileImportDialog::Connect() {
    connect(importDrive_, &QComboBox::activated, this,
            [this](int drive) { Run([this, drive] { form_.ImportDrive_Change(drive); }); });
    connect(importDir_, &QListWidget::itemDoubleClicked, this, &FileImportDialog::OpenFolder);
    importDir_->installEventFilter(this);
    OnChosen(*importFile_,
             [this](int file) { Run([this, file] { form_.ImportFile_Click(file); }); });
    connect(importFile_, &QListWidget::itemDoubleClicked, okButton_, &QPushButton::click);
    connect(panel_, &FitPanel::WayChosen, this,
            [this](PhotoFit way) { Run([&] { form_.Fit().Way_Click(way); }); });
    connect(panel_, &FitPanel::CropAsked, this,
            [this] { Run([this] { form_.CropButton_Click(); }); });
    connect(okButton_, &QPushButton::clicked, this,
            [this] { Run([this] { form_.OKButton_Click(); }); });
    connect(cancelButton_, &QPushButton::clicked, this, &FileImportDialog::reject);
}

// Enter opens a folder of the list; elsewhere it means OK.
bool FileImportDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == importDir_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            OpenFolder();
            return true;
        }
    }
    return FormDialog::eventFilter(watched, event);
}

void FileImportDialog::OpenFolder() {
    Run([this] { form_.ImportDir_Change(importDir_->currentRow()); });
}

void FileImportDialog::Mirror() {
    const FileImportControls& shown = form_.Controls();
    setWindowTitle(Text(shown.Caption));
    files_->setText(Text(shown.Files));
    importFile_->setAccessibleName(files_->text().remove(QLatin1Char('&')));
    const QSignalBlocker quiet(importDrive_);
    importDrive_->clear();
    for (const Drive& drive : shown.ImportDrive) {
        importDrive_->addItem(Text(drive.Caption));
    }
    importDrive_->setCurrentIndex(shown.DriveIndex);
    const QString folder = Text(shown.Folder.string());
    const bool moved = folder != folder_->text();
    folder_->setText(folder);
    MirrorList(*importDir_, shown.ImportDir, moved ? -1 : importDir_->currentRow());
    MirrorList(*importFile_, shown.ImportFile, shown.FileIndex);
    panel_->Mirror(form_.Fit().Controls());
}

}  // namespace vendrel
