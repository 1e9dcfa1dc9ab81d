#include "desktop/crop_photo_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

CropPhotoDialog::CropPhotoDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Form.Chooser().Crop()),
      view_(new CropView(form_)),
      description_(new ValueLabel("Description", tr("About the crop"))),
      turnLeft_(Named<QPushButton>("TurnLeft", tr("Turn left"))),
      turnRight_(Named<QPushButton>("TurnRight", tr("Turn right"))),
      okButton_(Named<QPushButton>("OKButton", tr("OK"))),
      cancelButton_(Named<QPushButton>("CancelButton", tr("Cancel"))) {
    setWindowTitle(tr("Crop to Fit"));
    view_->setObjectName(QStringLiteral("CropView"));
    view_->setAccessibleName(tr("Photo with the crop frame"));
    Arrange();
    Connect();
    SetTabOrder({view_, turnLeft_, turnRight_, okButton_, cancelButton_});
    view_->setFocus();
    resize(900, 580);
}

void CropPhotoDialog::Arrange() {
    turnLeft_->setText(tr("Turn &Left"));
    turnRight_->setText(tr("Turn &Right"));
    okButton_->setText(tr("OK"));
    okButton_->setDefault(true);
    cancelButton_->setText(tr("Cancel"));
    for (QPushButton* button : {turnLeft_, turnRight_, cancelButton_}) {
        button->setAutoDefault(false);
    }
    auto* hint = new QLabel(
        tr("Drag the frame or its corners. Arrow keys move it, with Shift they resize it."));
    hint->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(turnLeft_);
    buttons->addWidget(turnRight_);
    buttons->addWidget(description_);
    buttons->addStretch();
    auto* box = new QDialogButtonBox;
    box->addButton(okButton_, QDialogButtonBox::AcceptRole);
    box->addButton(cancelButton_, QDialogButtonBox::RejectRole);
    buttons->addWidget(box);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(hint);
    rows->addWidget(view_, 1);
    rows->addLayout(buttons);
}

void CropPhotoDialog::Connect() {
    connect(view_, &CropView::Pressed, this, [this](QPoint at, int reach) {
        Run([&] { form_.Photo_MouseDown(at.x(), at.y(), reach); });
    });
    connect(view_, &CropView::Dragged, this,
            [this](QPoint at) { Run([&] { form_.Photo_MouseMove(at.x(), at.y()); }); });
    connect(view_, &CropView::Released, this, [this] { Run([this] { form_.Photo_MouseUp(); }); });
    connect(view_, &CropView::Moved, this,
            [this](int right, int down) { Run([&] { form_.Move(right, down); }); });
    connect(view_, &CropView::Grown, this, [this](int steps) { Run([&] { form_.Grow(steps); }); });
    connect(turnLeft_, &QPushButton::clicked, this,
            [this] { Run([this] { form_.TurnLeft_Click(); }); });
    connect(turnRight_, &QPushButton::clicked, this,
            [this] { Run([this] { form_.TurnRight_Click(); }); });
    connect(okButton_, &QPushButton::clicked, this,
            [this] { Run([this] { form_.OKButton_Click(); }); });
    connect(cancelButton_, &QPushButton::clicked, this, &CropPhotoDialog::reject);
}

void CropPhotoDialog::Mirror() {
    view_->Follow();
    description_->Show(Text(form_.Controls().Description));
}

}  // namespace vendrel
