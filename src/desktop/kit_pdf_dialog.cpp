#include "desktop/kit_pdf_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"

namespace vendrel {

KitPdfDialog::KitPdfDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports()),
      paper_(Named<QComboBox>("Paper", tr("Paper"))),
      legible_(Named<QRadioButton>("LegibleCanvas", tr("As many pages as legible symbols need"))),
      chosenSize_(Named<QRadioButton>("ChosenCanvas", tr("A canvas of a chosen width"))),
      width_(Named<QDoubleSpinBox>("CanvasWidth", tr("Width of the canvas in centimeters"))) {
    setWindowTitle(tr("Save Kit as PDF"));
    paper_->addItems({tr("A4"), tr("Letter"), tr("A3")});
    connect(paper_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Paper_Click(static_cast<Paper>(index)); });
    });
    legible_->setText(tr("As many pages as &legible symbols need (2 mm and more)"));
    chosenSize_->setText(tr("&Width of the canvas"));
    width_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    width_->setDecimals(1);
    width_->setSuffix(tr(" cm"));
    width_->setValue(50);
    connect(legible_, &QRadioButton::clicked, this, [this] { CanvasChanged(); });
    connect(chosenSize_, &QRadioButton::clicked, this, [this] { CanvasChanged(); });
    connect(width_, &QDoubleSpinBox::valueChanged, this, [this] { CanvasChanged(); });
    legible_->setChecked(true);
    auto* size = new QHBoxLayout;
    size->addWidget(chosenSize_);
    size->addWidget(width_);
    size->addStretch(1);
    auto* rows = new QFormLayout;
    rows->addRow(tr("&Paper"), paper_);
    rows->addRow(tr("Canvas"), legible_);
    rows->addRow(QString(), size);
    auto* save = Named<QPushButton>("SavePdf", tr("Save PDF"));
    save->setText(tr("Save PDF"));
    save->setDefault(true);
    connect(save, &QPushButton::clicked, this,
            [this] { Run([this] { form_.SaveButton_Click(); }); });
    auto* cancel = Named<QPushButton>("CancelPdf", tr("Cancel"));
    cancel->setText(tr("Cancel"));
    connect(cancel, &QPushButton::clicked, this, &KitPdfDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addLayout(rows);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    SetTabOrder({paper_, legible_, chosenSize_, width_, save, cancel});
}

void KitPdfDialog::CanvasChanged() {
    const double wanted = chosenSize_->isChecked() ? width_->value() : 0;
    Run([this, wanted] { form_.Canvas_Change(wanted); });
}

void KitPdfDialog::Mirror() {
    paper_->setCurrentIndex(static_cast<int>(form_.Settings().Sheet));
    width_->setEnabled(form_.Settings().CanvasCm > 0);
}

}  // namespace vendrel
