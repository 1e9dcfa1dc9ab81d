#include "desktop/add_paint_dialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "output/chart_contents.h"
#include "support/list.h"

namespace vendrel {
namespace {

// Nobody reads further; words find the others.
constexpr std::size_t kMostRows = 300;

}  // namespace

AddPaintDialog::AddPaintDialog(Offer offer, QWidget* parent)
    : QDialog(parent),
      offer_(std::move(offer)),
      words_(Named<QLineEdit>("PaintWords", tr("Words of the paint's set, name or code"))),
      list_(Named<QListWidget>("PaintOffers", tr("Paints, the most like the chosen one first"))) {
    setWindowTitle(tr("Add Paint"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    add_ = buttons->button(QDialogButtonBox::Ok);
    add_->setText(tr("Add"));
    words_->setPlaceholderText(tr("Set, name or code"));
    words_->setClearButtonEnabled(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(words_);
    column->addWidget(list_, 1);
    column->addWidget(buttons);
    connect(words_, &QLineEdit::textChanged, this, &AddPaintDialog::Search);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(420, 480);
    Search();
}

void AddPaintDialog::Search() {
    paints_ = offer_(words_->text().trimmed().toStdString());
    paints_.resize(std::min(paints_.size(), kMostRows));
    std::vector<PaintItem> items;
    items.reserve(paints_.size());
    for (const PaintColor& paint : paints_) {
        items.push_back({.Swatch = ColorOf(paint), .Label = Text(PaintLabel(paint))});
    }
    MirrorPaints(*list_, items, items.empty() ? -1 : 0);
    add_->setEnabled(!items.empty());
}

std::optional<PaintColor> AddPaintDialog::Chosen() const {
    const int row = list_->currentRow();
    return Holds(paints_, row) ? std::optional(At(paints_, row)) : std::nullopt;
}

}  // namespace vendrel
