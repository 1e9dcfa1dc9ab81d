#include "desktop/kit_photo_dialog.h"

#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/text.h"

namespace vendrel {

KitPhotoDialog::KitPhotoDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      problem_(new ValueLabel("PhotoProblem", tr("What became of the photo"))) {
    setWindowTitle(tr("Where Is the Photo?"));
    problem_->WrapWhole();
    problem_->setMinimumSize(460, 4 * problem_->fontMetrics().height());
    QPushButton* choose = MakeButton("ChooseKitPhoto", tr("Choose &Photo…"), [] {});
    connect(choose, &QPushButton::clicked, this, &KitPhotoDialog::Choose);
    choose->setDefault(true);
    QPushButton* cancel = MakeButton("CancelKitPhoto", tr("Cancel"),
                                     [this] { Context().Form.Kits().PhotoCancel_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(choose);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(problem_);
    all->addLayout(buttons);
}

void KitPhotoDialog::Choose() {
    const QString photo = QFileDialog::getOpenFileName(this, tr("Choose the Kit's Photo"));
    if (!photo.isEmpty()) {
        Run([&] { Context().Form.Kits().Photo_Chosen(QFile::encodeName(photo).toStdString()); });
    }
}

void KitPhotoDialog::Mirror() {
    problem_->Show(Text(Context().Form.Kits().PhotoProblem()) +
                   tr(" Choose the photo as it was, wherever it is now."));
}

}  // namespace vendrel
