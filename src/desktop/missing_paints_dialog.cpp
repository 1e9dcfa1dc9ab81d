#include "desktop/missing_paints_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "export/qt_image.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

constexpr QSize kMissingPreview(300, 260);
constexpr int kSubstitutesHeight = 76;  // of as many as there ever are

QString BuyText(const ShoppingItem& item) {
    const QString ml = QObject::tr("%1 ml").arg(item.BuyMl, 0, 'f', 1);
    return item.Pots == 0   ? ml
           : item.Pots == 1 ? QObject::tr("%1, 1 pot").arg(ml)
                            : QObject::tr("%1, %2 pots").arg(ml).arg(item.Pots);
}

}  // namespace

MissingPaintsDialog::MissingPaintsDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports(), context.Form.Everything().Plan().Settings()),
      missing_(Named<QListWidget>("MissingPaints", tr("Paints to buy"))),
      substitutes_(Named<QListWidget>("Substitutes", tr("Your nearest paints"))),
      use_(nullptr),
      undo_(nullptr),
      picture_(Named<QLabel>("MissingPicture", tr("The kit"))),
      summary_(new ValueLabel("MissingSummary", tr("What is missing"))) {
    setWindowTitle(tr("What Is Missing"));
    auto* other = new QVBoxLayout;
    other->addWidget(MakeSubstitutes());
    other->addWidget(MakePicture(), 1);
    auto* columns = new QHBoxLayout;
    columns->addWidget(MakeMissing(), 1);
    columns->addLayout(other, 1);
    auto* all = new QVBoxLayout(this);
    all->addWidget(summary_);
    all->addLayout(columns, 1);
    all->addLayout(MakeEnd());
    resize(1000, 620);
}

QWidget* MissingPaintsDialog::MakeMissing() {
    auto* frame = new QGroupBox(tr("To &buy"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(missing_);
    OnChosen(*missing_, [this](int row) { Run([this, row] { form_.Missing_Click(row); }); });
    return frame;
}

QWidget* MissingPaintsDialog::MakeSubstitutes() {
    auto* frame = new QGroupBox(tr("Your &nearest: missing and own side by side"));
    auto* column = new QVBoxLayout(frame);
    substitutes_->setFixedHeight(kSubstitutesHeight);
    column->addWidget(substitutes_);
    use_ = MakeButton("UseSubstitute", tr("&Use That One Instead"),
                      [this] { form_.Use_Click(substitutes_->currentRow()); });
    OnTaken(*substitutes_, [this] { use_->click(); });
    column->addWidget(use_);
    return frame;
}

QWidget* MissingPaintsDialog::MakePicture() {
    auto* frame = new QGroupBox(tr("The kit"));
    auto* column = new QVBoxLayout(frame);
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setMinimumSize(kMissingPreview);
    column->addWidget(picture_, 1);
    return frame;
}

QLayout* MissingPaintsDialog::MakeEnd() {
    auto* row = new QHBoxLayout;
    undo_ = MakeButton("UndoSubstitute", tr("Un&do"), [this] { form_.Undo_Click(); });
    row->addWidget(undo_);
    row->addStretch(1);
    QPushButton* done = MakeButton("MissingDone", tr("Done"), [this] { form_.Done_Click(); });
    done->setDefault(true);
    row->addWidget(done);
    return row;
}

void MissingPaintsDialog::Mirror() {
    std::vector<PaintItem> items;
    double ml = 0;
    for (const MissingPaint& paint : form_.Missing()) {
        ml += paint.Item.BuyMl;
        const QString label = Text(PaintLabel(paint.Item.Paint));
        items.push_back({ColorOf(paint.Item.Paint), kNoColor,
                         tr("%1   %2").arg(BuyText(paint.Item), label),
                         tr("%1, %2 to buy").arg(label, BuyText(paint.Item))});
    }
    MirrorPaints(*missing_, items, form_.Chosen());
    summary_->Show(items.empty() ? tr("You have all paints of this kit.")
                                 : tr("%1 of %2 paints are to buy, %3 ml together.")
                                       .arg(items.size())
                                       .arg(form_.PaintsOfKit())
                                       .arg(ml, 0, 'f', 1));
    undo_->setEnabled(form_.CanUndo());
    MirrorSubstitutes();
    picture_->setPixmap(QPixmap::fromImage(
        ToImage(form_.Picture())
            .scaled(picture_->size().expandedTo(kMissingPreview) * 0.95, Qt::KeepAspectRatio)));
}

void MissingPaintsDialog::MirrorSubstitutes() {
    std::vector<PaintItem> items;
    if (form_.Chosen() >= 0) {
        const MissingPaint& chosen = form_.Missing()[static_cast<std::size_t>(form_.Chosen())];
        for (const Substitute& own : chosen.Nearest) {
            const QString label = Text(PaintLabel(own.Paint));
            items.push_back(
                {ColorOf(chosen.Item.Paint), ColorOf(own.Paint),
                 tr("%1   %2   %3").arg(own.Seen, 0, 'f', 1).arg(Text(own.Label), label),
                 tr("%1, your label %2, seen difference %3")
                     .arg(label, Text(own.Label))
                     .arg(own.Seen, 0, 'f', 1)});
        }
    }
    MirrorPaints(*substitutes_, items,
                 items.empty() ? -1
                               : std::clamp(substitutes_->currentRow(), 0,
                                            static_cast<int>(items.size()) - 1));
    use_->setEnabled(!items.empty());
}

}  // namespace vendrel
