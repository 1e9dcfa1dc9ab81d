#include "desktop/color_chart_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

enum ChartColumn { kSymbolColumn, kPaintColumn, kStipplesColumn, kShareColumn, kChartColumns };

}  // namespace

ColorChartDialog::ColorChartDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports()),
      order_(Named<QComboBox>("ChartOrder", tr("Order of the paints"))),
      table_(Named<QTableWidget>("ChartTable", tr("Paints of the kit"))),
      saved_(new ValueLabel("ChartSaved", tr("Saved file"))) {
    setWindowTitle(tr("Color Chart"));
    order_->addItems({tr("By symbol"), tr("By share"), tr("By paint set")});
    connect(order_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Order_Click(static_cast<ChartOrder>(index)); });
    });
    table_->setColumnCount(kChartColumns);
    table_->setHorizontalHeaderLabels({tr("Symbol"), tr("Paint"), tr("Stipples"), tr("Share")});
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->horizontalHeader()->setSectionResizeMode(kPaintColumn, QHeaderView::Stretch);
    table_->setIconSize(QSize(32, 20));
    auto* save = Named<QPushButton>("SaveChart", tr("Save Color Chart"));
    save->setText(tr("&Save Color Chart"));
    save->setAutoDefault(false);
    connect(save, &QPushButton::clicked, this,
            [this] { Run([this] { form_.SaveButton_Click(); }); });
    auto* close = Named<QPushButton>("CloseChart", tr("Close"));
    close->setText(tr("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this,
            [this] { Run([this] { form_.CloseButton_Click(); }); });
    saved_->setWordWrap(true);
    auto* top = new QHBoxLayout;
    top->addWidget(LabelFor(*order_, tr("&Order")));
    top->addWidget(order_);
    top->addStretch(1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(saved_, 1);
    bottom->addWidget(save);
    bottom->addWidget(close);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addWidget(table_, 1);
    all->addLayout(bottom);
    SetTabOrder({order_, table_, save, close});
    resize(680, 600);
}

void ColorChartDialog::FillRow(int line, const ChartRow& row) {
    const auto put = [&](int column, const QString& text, Qt::Alignment alignment) {
        auto* item = new QTableWidgetItem(text);
        item->setTextAlignment(alignment | Qt::AlignVCenter);
        table_->setItem(line, column, item);
        return item;
    };
    QTableWidgetItem* symbol =
        put(kSymbolColumn, QString(QLatin1Char(form_.Symbol(row))), Qt::AlignHCenter);
    QFont bold = table_->font();
    bold.setBold(true);
    symbol->setFont(bold);
    put(kPaintColumn, Text(row.Label), Qt::AlignLeft)->setIcon(SwatchIcon(row.Swatch));
    put(kStipplesColumn, QString::number(row.Stipples), Qt::AlignRight);
    put(kShareColumn, Text(ShareText(row.ShareTenths)), Qt::AlignRight);
}

void ColorChartDialog::Mirror() {
    order_->setCurrentIndex(static_cast<int>(form_.Order()));
    table_->setRowCount(static_cast<int>(form_.Rows().size()));
    int line = 0;
    for (const ChartRow& row : form_.Rows()) {
        FillRow(line++, row);
    }
    saved_->Show(form_.SavedFile().empty() ? QString()
                                           : tr("Saved %1").arg(Text(form_.SavedFile())));
}

}  // namespace vendrel
