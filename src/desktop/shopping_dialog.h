#pragma once

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QPushButton>

#include "desktop/form_dialog.h"
#include "desktop/shopping_table.h"
#include "desktop/value_label.h"
#include "forms/shopping.h"

namespace vendrel {

/// What several kits together ask to be bought.
class ShoppingDialog : public FormDialog {
    Q_OBJECT

  public:
    ShoppingDialog(const ViewContext& context, QWidget* parent);

    void Load() override { form_.Form_Load(); }
    void Mirror() override;

  protected:
    void Dismiss() override { form_.Done_Click(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* MakeKits();
    [[nodiscard]] QWidget* MakeList();
    [[nodiscard]] QLayout* MakeEnd();
    void MirrorKits();
    void AddKits();
    void Save(const QString& title, const QString& file, const QString& filter,
              const std::function<void(const std::filesystem::path&)>& save);
    [[nodiscard]] std::vector<int> ChosenKits() const;
    void Painted(bool painted);

    ShoppingForm form_;
    QListWidget* kits_;
    QPushButton* remove_;
    QPushButton* painted_;
    QPushButton* undo_;
    QCheckBox* all_;
    QDoubleSpinBox* pot_;
    ShoppingTable* table_;
    ValueLabel* summary_;
    ValueLabel* told_;
    std::vector<QPushButton*> saves_;
};

}  // namespace vendrel
