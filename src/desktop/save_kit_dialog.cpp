#include "desktop/save_kit_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

SaveKitDialog::SaveKitDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent), title_(Named<QLineEdit>("KitTitle", tr("Kit's title"))) {
    setWindowTitle(tr("Save Kit As"));
    title_->setMinimumWidth(320);
    title_->setToolTip(tr("Names the kit's file in Kits, and all that is made of the kit"));
    QPushButton* save = MakeButton("SaveKitAs", tr("&Save"), [this] {
        Context().Form.SaveKitAs_Titled(title_->text().toStdString());
    });
    save->setDefault(true);
    QPushButton* cancel = MakeButton("CancelSaveKit", tr("Cancel"),
                                     [this] { Context().Form.Kits().TitleCancel_Click(); });
    auto* row = new QHBoxLayout;
    row->addWidget(LabelFor(*title_, tr("&Title")));
    row->addWidget(title_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addLayout(row);
    all->addLayout(buttons);
    title_->setFocus();
}

void SaveKitDialog::Prepare() {
    title_->setText(Text(Context().Form.Kits().Title()));
    title_->selectAll();
}

}  // namespace vendrel
