#include "desktop/about_dialog.h"

#include <QDialogButtonBox>
#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"
#include "forms/about.h"

namespace vendrel {

AboutDialog::AboutDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent) {
    const About about;
    setWindowTitle(tr("About"));
    auto* title = new QLabel(Text(about.Title()));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    title->setFont(large);
    auto* description = new QLabel(Text(about.Description()));
    description->setWordWrap(true);
    description->setMinimumWidth(360);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &AboutDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 16);
    column->setSpacing(10);
    column->addWidget(title);
    column->addWidget(new QLabel(Text(about.Version())));
    column->addWidget(description);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace vendrel
