#include "desktop/import_list_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "output/chart_contents.h"

namespace vendrel {

ImportListDialog::ImportListDialog(const std::vector<ImportProposal>& proposals,
                                   const PaintList& catalogue, QWidget* parent)
    : QDialog(parent),
      lines_(Named<QTreeWidget>("ImportLines", tr("Lines of the list; a tick takes one"))) {
    setWindowTitle(tr("Import a List of Paints"));
    auto* column = new QVBoxLayout(this);
    auto* hint = new QLabel(
        tr("Exact hits are ticked. Look at the others: tick what is right, choose another paint "
           "where the first is not the one you mean."));
    hint->setWordWrap(true);
    column->addWidget(hint);
    column->addWidget(lines_, 1);
    lines_->setHeaderLabels({tr("Your list"), tr("Match"), tr("Paint of the catalogue")});
    lines_->setRootIsDecorated(false);
    lines_->setColumnWidth(0, 270);
    lines_->setColumnWidth(1, 90);
    for (const ImportProposal& proposal : proposals) {
        AddLine(proposal, catalogue);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Take What Is Ticked"));
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(860, 460);
}

void ImportListDialog::AddLine(const ImportProposal& proposal, const PaintList& catalogue) {
    const QString matches[] = {tr("Exact"), tr("Near"), tr("Unknown")};
    const QString match = matches[static_cast<std::size_t>(proposal.Match)];
    auto* line = new QTreeWidgetItem(lines_, {Text(proposal.Text), match});
    if (proposal.Paints.empty()) {
        line->setText(2, tr("No paint is like it"));
        line->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        paints_.push_back(nullptr);
        return;
    }
    line->setFlags(line->flags() | Qt::ItemIsUserCheckable);
    line->setCheckState(0, proposal.Match == ImportMatch::Exact ? Qt::Checked : Qt::Unchecked);
    auto* box = new QComboBox;
    box->setAccessibleName(tr("Paint for %1").arg(Text(proposal.Text)));
    for (const int paint : proposal.Paints) {
        box->addItem(SwatchIcon(ColorOf(catalogue[paint])), Text(PaintLabel(catalogue[paint])),
                     paint);
    }
    lines_->setItemWidget(line, 2, box);
    paints_.push_back(box);
    // Who chooses a paint wants it.
    connect(box, &QComboBox::activated, this, [line] { line->setCheckState(0, Qt::Checked); });
}

std::vector<int> ImportListDialog::Taken() const {
    std::vector<int> taken;
    for (int row = 0; row < lines_->topLevelItemCount(); ++row) {
        const QComboBox* const box = paints_[static_cast<std::size_t>(row)];
        const bool ticked = lines_->topLevelItem(row)->checkState(0) == Qt::Checked;
        taken.push_back(box != nullptr && ticked ? box->currentData().toInt() : 0);
    }
    return taken;
}

}  // namespace vendrel
