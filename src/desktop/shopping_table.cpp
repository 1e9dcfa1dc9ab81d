#include "desktop/shopping_table.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStringList>

#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "export/print_symbols.h"
#include "shell/symbol_of.h"
#include "support/list.h"

namespace vendrel {
namespace {

using ShopColumn = ShoppingTable::Column;

constexpr std::pair<ShopColumn, int> kShopWidths[] = {
    {ShopColumn::kPaint, 250}, {ShopColumn::kCode, 84}, {ShopColumn::kLabel, 52},
    {ShopColumn::kNeeded, 76}, {ShopColumn::kLeft, 84}, {ShopColumn::kBuy, 70},
    {ShopColumn::kPots, 48}};
constexpr ShopColumn kShopFigures[] = {ShopColumn::kNeeded, ShopColumn::kLeft, ShopColumn::kBuy,
                                       ShopColumn::kPots};

constexpr int kRowHeight = 24;  // keeps swatches apart

QString MlText(double ml) {
    return ml > 0 ? QString::number(ml, 'f', 1) : QString();
}

QString OnShelfText(const ShoppingItem& item) {
    return item.IsUnknown ? QObject::tr("not noted") : MlText(item.LeftMl);
}

QString ToBuyText(const ShoppingItem& item) {
    return item.BuyMl > 0 ? MlText(item.BuyMl) : QObject::tr("enough");
}

QString SpokenOf(const ShoppingItem& item) {
    const QString paint = Text(item.Paint.PaintName + ", " + item.Paint.Mfg);
    return item.BuyMl > 0
               ? QObject::tr("%1, %2 ml to buy, %3").arg(paint, MlText(item.BuyMl)).arg(item.Pots)
               : QObject::tr("%1, you have enough").arg(paint);
}

// "A beach, 7 aunt": which symbol it has in which kit.
QString KitsText(const ShoppingItem& item, const std::vector<KitNeeds>& kits,
                 const std::vector<PrintSymbols>& symbols) {
    QStringList all;
    for (const PaintInKit& in : item.In) {
        const KitNeeds& kit = At(kits, in.Kit);
        const QString symbol = Text(At(symbols, in.Kit).NameOf(SymbolOf(kit.Paints, in.Paint)));
        all << (symbol.isEmpty() ? Text(kit.Title)
                                 : QStringLiteral("%1  %2").arg(symbol, Text(kit.Title)));
    }
    return all.join(QStringLiteral(",  "));
}

}  // namespace

ShoppingTable::ShoppingTable(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(kColumns);
    setHeaderLabels({tr("Paint"), tr("Code"), tr("Label"), tr("Symbol in its kits"),
                     tr("Needed ml"), tr("On shelf"), tr("Buy ml"), tr("Pots")});
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    setIconSize(QSize(18, 18));
    setIndentation(14);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kKits, QHeaderView::Stretch);
    for (const auto& [column, width] : kShopWidths) {
        setColumnWidth(column, width);
    }
    for (const ShopColumn column : kShopFigures) {
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

QTreeWidgetItem* ShoppingTable::AddSet(const std::string& name) {
    auto* set = new QTreeWidgetItem(this, {name.empty() ? tr("Other paints") : Text(name)});
    QFont bold = font();
    bold.setBold(true);
    set->setFont(kPaint, bold);
    set->setFirstColumnSpanned(true);
    set->setExpanded(true);
    set->setSizeHint(kPaint, QSize(0, kRowHeight));  // and so are all rows
    return set;
}

void ShoppingTable::AddPaint(QTreeWidgetItem& set, const ShoppingItem& item, const QString& kits) {
    auto* row = new QTreeWidgetItem(
        &set, {Text(item.Paint.PaintName), Text(item.Paint.PaintCode), Text(item.Label), kits,
               MlText(item.NeededMl), OnShelfText(item), ToBuyText(item),
               item.Pots > 0 ? QString::number(item.Pots) : QString()});
    row->setIcon(kPaint, SwatchIcon(ColorOf(item.Paint)));
    row->setData(kPaint, Qt::AccessibleTextRole, SpokenOf(item));
    row->setToolTip(kPaint, row->text(kPaint));
    row->setToolTip(kKits, kits);
    for (const ShopColumn column : kShopFigures) {
        row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    if (item.BuyMl <= 0) {
        for (int column = 0; column < kColumns; ++column) {
            row->setForeground(column, palette().brush(QPalette::Disabled, QPalette::Text));
        }
    }
}

void ShoppingTable::Follow(const ShoppingForm& form) {
    const int stood = verticalScrollBar()->value();
    std::vector<PrintSymbols> symbols;
    for (const KitNeeds& kit : form.Counted()) {
        symbols.emplace_back(kit.Marks);
    }
    clear();
    QTreeWidgetItem* set = nullptr;
    const std::string* name = nullptr;
    for (const ShoppingItem& item : form.Rows()) {
        if (name == nullptr || *name != item.Paint.Mfg) {
            name = &item.Paint.Mfg;
            set = AddSet(*name);
        }
        AddPaint(*set, item, KitsText(item, form.Counted(), symbols));
    }
    verticalScrollBar()->setValue(stood);
}

}  // namespace vendrel
