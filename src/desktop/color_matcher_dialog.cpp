#include "desktop/color_matcher_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "export/qt_image.h"
#include "output/chart_contents.h"
#include "output/symbol_set.h"

namespace vendrel {
namespace {

constexpr QSize kPreview(300, 300);

QString Spoken(const MatcherRow& row, QChar symbol) {
    const QString paint = QObject::tr("%1, %2 of the picture, symbol %3")
                              .arg(Text(PaintLabel(row.Current)), Text(ShareText(row.ShareTenths)))
                              .arg(symbol);
    return row.Exchanged()
               ? QObject::tr("%1, instead of %2").arg(paint, Text(PaintLabel(row.Original)))
               : paint;
}

}  // namespace

ColorMatcherDialog::ColorMatcherDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      paintList_(Named<QListWidget>("MatcherPaints", tr("Paints of the palette"))),
      selectedSets_(Named<QRadioButton>("FromSelectedSets", tr("From the selected sets"))),
      wholeCatalogue_(Named<QRadioButton>("FromCatalogue", tr("From the whole catalogue"))),
      offersFrame_(new QGroupBox(tr("&Next best paints"))),
      offerList_(Named<QListWidget>("NextBestPaints", tr("Next best paints"))),
      preview_(Named<QLabel>("MatcherPreview", tr("Preview"))) {
    setWindowTitle(tr("Color Matcher"));
    auto* columns = new QHBoxLayout;
    columns->addWidget(MakePalette(), 4);
    columns->addWidget(MakeOffers(), 4);
    columns->addWidget(MakePreview(), 3);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns, 1);
    all->addLayout(MakeButtons());
    resize(1100, 560);
}

QWidget* ColorMatcherDialog::MakePalette() {
    auto* frame = new QGroupBox(tr("Paints of the &palette"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(paintList_);
    OnChosen(*paintList_,
             [this](int row) { Run([this, row] { form_.PaintList_Click(row + 1); }); });
    return frame;
}

QWidget* ColorMatcherDialog::MakeOffers() {
    auto* column = new QVBoxLayout(offersFrame_);
    selectedSets_->setText(tr("From the &selected sets"));
    wholeCatalogue_->setText(tr("From the &whole catalogue"));
    connect(selectedSets_, &QRadioButton::clicked, this,
            [this] { Run([this] { form_.Source_Click(MatchSource::SelectedSets); }); });
    connect(wholeCatalogue_, &QRadioButton::clicked, this,
            [this] { Run([this] { form_.Source_Click(MatchSource::WholeCatalogue); }); });
    column->addWidget(selectedSets_);
    column->addWidget(wholeCatalogue_);
    column->addWidget(offerList_, 1);
    exchange_ = MakeButton("Exchange", tr("E&xchange"),
                           [this] { form_.Exchange_Click(offerList_->currentRow()); });
    OnTaken(*offerList_, [this] { exchange_->click(); });
    connect(offerList_, &QListWidget::currentRowChanged, this,
            [this](int row) { exchange_->setEnabled(row >= 0); });
    column->addWidget(exchange_);
    return offersFrame_;
}

QWidget* ColorMatcherDialog::MakePreview() {
    auto* frame = new QGroupBox(tr("What accepting gives"));
    auto* column = new QVBoxLayout(frame);
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setMinimumSize(kPreview);
    column->addWidget(preview_, 1);
    return frame;
}

QLayout* ColorMatcherDialog::MakeButtons() {
    auto* row = new QHBoxLayout;
    putBack_ = MakeButton("PutBack", tr("Put &Back"), [this] { form_.PutBack_Click(); });
    putAllBack_ =
        MakeButton("PutAllBack", tr("Put &All Back"), [this] { form_.PutAllBack_Click(); });
    row->addWidget(putBack_);
    row->addWidget(putAllBack_);
    row->addWidget(MakeButton("SaveAsTemplate", tr("Save as &Template"), [this] {
        const std::string name = form_.SaveTemplate_Click();
        Context().Place.Screen.ShowMessage("Template Saved",
                                           "The palette is now the template \"" + name + "\".");
    }));
    row->addStretch(1);
    QPushButton* accept =
        MakeButton("AcceptButton", tr("Accept"), [this] { form_.AcceptButton_Click(); });
    accept->setDefault(true);
    row->addWidget(accept);
    row->addWidget(
        MakeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); }));
    return row;
}

void ColorMatcherDialog::Mirror() {
    std::vector<PaintItem> items;
    for (const MatcherRow& row : form_.Rows()) {
        const QLatin1Char symbol(CharacterOf(Context().Place.State, row.Symbol));
        items.push_back({ColorOf(row.Original), ColorOf(row.Current),
                         tr("%1   %2   %3")
                             .arg(QChar(symbol))
                             .arg(Text(ShareText(row.ShareTenths)), Text(PaintLabel(row.Current))),
                         Spoken(row, symbol)});
    }
    MirrorPaints(*paintList_, items, form_.Chosen() - 1);
    selectedSets_->setChecked(form_.Source() == MatchSource::SelectedSets);
    wholeCatalogue_->setChecked(form_.Source() == MatchSource::WholeCatalogue);
    const int chosen = form_.Chosen();
    putBack_->setEnabled(form_.Rows().Holds(chosen) && form_.Rows()[chosen].Exchanged());
    putAllBack_->setEnabled(form_.AnyExchanged());
    MirrorOffers();
    MirrorPreview();
}

void ColorMatcherDialog::MirrorOffers() {
    const int chosen = form_.Chosen();
    std::vector<PaintItem> items;
    for (const NextBestPaint& offer : form_.Offers()) {
        items.push_back(
            {ColorOf(form_.Rows()[chosen].Original), ColorOf(offer.Paint),
             tr("%1   %2").arg(offer.Difference, 0, 'f', 1).arg(Text(PaintLabel(offer.Paint))),
             tr("%1, difference %2")
                 .arg(Text(PaintLabel(offer.Paint)))
                 .arg(offer.Difference, 0, 'f', 1)});
    }
    MirrorPaints(*offerList_, items, items.empty() ? -1 : std::max(offerList_->currentRow(), 0));
    exchange_->setEnabled(!items.empty());
}

void ColorMatcherDialog::MirrorPreview() {
    const auto exchanged = std::ranges::count_if(form_.Rows(), &MatcherRow::Exchanged);
    preview_->setAccessibleName(tr("Preview, paints exchanged: %1").arg(exchanged));
    const QImage image = ToImage(form_.Preview());
    preview_->setPixmap(QPixmap::fromImage(
        image.scaled(preview_->size().expandedTo(kPreview) * 0.95, Qt::KeepAspectRatio)));
}

}  // namespace vendrel
