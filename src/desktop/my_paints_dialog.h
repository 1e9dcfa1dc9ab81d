#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>

#include "desktop/form_dialog.h"
#include "desktop/my_paints_model.h"
#include "desktop/value_label.h"

namespace vendrel {

/// The painter's own paints: the catalogue with tick boxes.
class MyPaintsDialog : public FormDialog {
    Q_OBJECT

  public:
    MyPaintsDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;
    void KeepWork() override { form_.Save(); }

  protected:
    void Dismiss() override { form_.Cancel_Click(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* MakeSets();
    [[nodiscard]] QWidget* MakeTable();
    [[nodiscard]] QLayout* MakeSearch();
    [[nodiscard]] QLayout* MakeTools();
    [[nodiscard]] QLayout* MakeEnd();
    void MirrorSets();
    void Search();
    void PickNear();
    void PickMeasured();
    void AddOwn();
    void ImportList();
    void PrintStickers();
    /// Ticks the paint of a row with all others that are chosen together with it.
    void Tick(int row, bool owned);
    void TickChosen();
    void SetTicked(const QListWidgetItem& item);
    [[nodiscard]] std::vector<int> ChosenRows() const;

    MyPaints form_;
    MyPaintsSearch search_;
    MyPaintsModel* model_;
    QListWidget* setList_;
    QLineEdit* words_;
    QComboBox* show_;
    QComboBox* order_;
    QPushButton* near_;
    QPushButton* undo_;
    QTreeView* table_;
    ValueLabel* summary_;
};

}  // namespace vendrel
