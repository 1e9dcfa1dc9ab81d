#include "desktop/fit_photo_dialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "desktop/named.h"

namespace vendrel {

FitPhotoDialog::FitPhotoDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Form.Chooser().Asking()),
      panel_(new FitPanel(FitPanel::Shows::EveryWay)) {
    setWindowTitle(tr("Fit the Photo"));
    auto* ok = Named<QPushButton>("OKButton", tr("OK"));
    ok->setText(tr("OK"));
    ok->setDefault(true);
    auto* cancel = MakeButton("CancelButton", tr("Cancel"), [this] { Dismiss(); });
    auto* box = new QDialogButtonBox;
    box->addButton(ok, QDialogButtonBox::AcceptRole);
    box->addButton(cancel, QDialogButtonBox::RejectRole);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(panel_);
    rows->addWidget(box);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    connect(ok, &QPushButton::clicked, this, [this] { Run([this] { form_.OKButton_Click(); }); });
    connect(panel_, &FitPanel::WayChosen, this,
            [this](PhotoFit way) { Run([&] { form_.Fit().Way_Click(way); }); });
    connect(panel_, &FitPanel::CropAsked, this,
            [this] { Run([this] { form_.CropButton_Click(); }); });
    const auto ways = panel_->Controls();
    SetTabOrder({ways[0], ways[1], ways[2], ways[3], ok, cancel});
}

}  // namespace vendrel
