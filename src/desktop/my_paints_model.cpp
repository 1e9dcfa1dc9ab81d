#include "desktop/my_paints_model.h"

#include <QBrush>
#include <QPalette>

#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "support/list.h"

namespace vendrel {
namespace {

std::optional<ShelfField> FieldOf(int column) {
    switch (column) {
        case MyPaintsModel::Label:
            return ShelfField::Label;
        case MyPaintsModel::MlLeft:
            return ShelfField::MlLeft;
        case MyPaintsModel::Pots:
            return ShelfField::Pots;
        case MyPaintsModel::Note:
            return ShelfField::Note;
        default:
            return std::nullopt;
    }
}

}  // namespace

void MyPaintsModel::Mirror() {
    std::vector<PaintId> paints;
    for (const MyPaintsRow& row : form_.Rows()) {
        paints.push_back(IdOf(row.Paint));
    }
    if (paints != shown_) {
        beginResetModel();
        shown_ = std::move(paints);
        endResetModel();
    } else if (!shown_.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    }
}

int MyPaintsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int MyPaintsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

const MyPaintsRow& MyPaintsModel::RowAt(const QModelIndex& index) const {
    return At(form_.Rows(), index.row());
}

QString MyPaintsModel::TextOf(const QModelIndex& index) const {
    const MyPaintsRow& row = RowAt(index);
    switch (index.column()) {
        case Name:
            return Text(row.Paint.PaintName);
        case Set:
            return Text(row.Paint.Mfg);
        case Code:
            return Text(row.Paint.PaintCode);
        case Label:
            return Text(row.Label);
        case MlLeft:
            return Text(row.MlLeft);
        case Pots:
            return Text(row.Pots);
        case Note:
            return Text(row.Note);
        default:
            return !row.Left ? tr("Used up") : Text(row.Standing);
    }
}

QString MyPaintsModel::SpokenOf(const MyPaintsRow& row) const {
    const QString paint = Text(row.Paint.PaintName + ", " + row.Paint.Mfg);
    return row.Owned ? tr("%1, owned, label %2").arg(paint, Text(row.Label))
                     : tr("%1, not owned").arg(paint);
}

QVariant MyPaintsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !Holds(form_.Rows(), index.row())) {
        return {};
    }
    const MyPaintsRow& row = RowAt(index);
    const bool first = index.column() == Name;
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return TextOf(index);
        case Qt::ToolTipRole:
            return TextOf(index).isEmpty() ? QVariant() : TextOf(index);
        case Qt::CheckStateRole:
            return first ? QVariant(row.Owned ? Qt::Checked : Qt::Unchecked) : QVariant();
        case Qt::DecorationRole:
            return first ? QVariant(SwatchIcon(ColorOf(row.Paint),
                                               form_.Search().Near.value_or(kNoColor)))
                         : QVariant();
        case Qt::AccessibleTextRole:
            return first ? QVariant(SpokenOf(row)) : QVariant();
        default:
            return {};
    }
}

bool MyPaintsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role == Qt::CheckStateRole && index.column() == Name) {
        emit Ticked(index.row(), value.toInt() == Qt::Checked);
        return true;
    }
    const auto field = FieldOf(index.column());
    if (role != Qt::EditRole || !field || value.toString() == TextOf(index)) {
        return false;
    }
    emit Typed(index.row(), *field, value.toString());
    return true;
}

QVariant MyPaintsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QString titles[] = {tr("Paint"),   tr("Set"),  tr("Code"), tr("Label"),
                              tr("ml left"), tr("Pots"), tr("Note"), tr("Remark")};
    return titles[section];
}

Qt::ItemFlags MyPaintsModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == Name) {
        flags |= Qt::ItemIsUserCheckable;
    } else if (FieldOf(index.column()) && Holds(form_.Rows(), index.row()) && RowAt(index).Owned) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

}  // namespace vendrel
