#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

#include "forms/my_paints.h"

namespace vendrel {

/// The paints of My Paints as a table with tick boxes; what is typed goes to the form.
class MyPaintsModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Name, Set, Code, Label, MlLeft, Pots, Note, Standing, kColumns };

    MyPaintsModel(const MyPaints& form, QObject* parent)
        : QAbstractTableModel(parent), form_(form) {}

    /// Takes over the rows of the form, in place where they are the same paints.
    void Mirror();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

  signals:
    void Ticked(int row, bool owned);
    void Typed(int row, ShelfField field, const QString& text);

  private:
    [[nodiscard]] const MyPaintsRow& RowAt(const QModelIndex& index) const;
    [[nodiscard]] QString TextOf(const QModelIndex& index) const;
    [[nodiscard]] QString SpokenOf(const MyPaintsRow& row) const;

    const MyPaints& form_;
    std::vector<PaintId> shown_;
};

}  // namespace vendrel
