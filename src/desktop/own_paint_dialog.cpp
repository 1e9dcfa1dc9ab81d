#include "desktop/own_paint_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFormLayout>

#include "desktop/named.h"
#include "desktop/paint_items.h"

namespace vendrel {

OwnPaintDialog::OwnPaintDialog(QWidget* parent)
    : QDialog(parent),
      name_(Named<QLineEdit>("OwnPaintName", tr("Name of the paint"))),
      set_(Named<QLineEdit>("OwnPaintSet", tr("Set of the paint"))),
      code_(Named<QLineEdit>("OwnPaintCode", tr("Code or pigment of the paint"))),
      pick_(Named<QPushButton>("OwnPaintColor", tr("Color of the paint"))) {
    setWindowTitle(tr("Add Paint of My Own"));
    set_->setText(tr("My Paints"));
    pick_->setAutoDefault(false);
    connect(pick_, &QPushButton::clicked, this, &OwnPaintDialog::PickColor);
    auto* rows = new QFormLayout(this);
    rows->addRow(tr("&Name"), name_);
    rows->addRow(tr("&Set"), set_);
    rows->addRow(tr("Co&de or pigment"), code_);
    rows->addRow(tr("&Color"), pick_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Add"));
    rows->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowColor();
    resize(360, sizeHint().height());
}

void OwnPaintDialog::PickColor() {
    const QColor color = QColorDialog::getColor(
        QColor(RedOf(color_), GreenOf(color_), BlueOf(color_)), this, tr("Color of the Paint"));
    if (color.isValid()) {
        color_ = Rgb(color.red(), color.green(), color.blue());
        ShowColor();
    }
}

void OwnPaintDialog::ShowColor() {
    pick_->setIcon(SwatchIcon(color_));
    pick_->setText(QColor(RedOf(color_), GreenOf(color_), BlueOf(color_)).name().toUpper());
}

PaintColor OwnPaintDialog::Paint() const {
    return {RedOf(color_),
            GreenOf(color_),
            BlueOf(color_),
            set_->text().trimmed().toStdString(),
            code_->text().trimmed().toStdString(),
            name_->text().trimmed().toStdString(),
            0};
}

}  // namespace vendrel
