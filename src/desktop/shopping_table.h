#pragma once

#include <QTreeWidget>

#include "forms/shopping.h"

namespace vendrel {

/// What is to be bought, paint by paint under the headings of their sets.
class ShoppingTable : public QTreeWidget {
    Q_OBJECT

  public:
    enum Column { kPaint, kCode, kLabel, kKits, kNeeded, kLeft, kBuy, kPots, kColumns };

    explicit ShoppingTable(QWidget* parent = nullptr);

    /// Takes over the rows of the form and keeps its place among them.
    void Follow(const ShoppingForm& form);

  private:
    [[nodiscard]] QTreeWidgetItem* AddSet(const std::string& name);
    void AddPaint(QTreeWidgetItem& set, const ShoppingItem& item, const QString& kits);
};

}  // namespace vendrel
