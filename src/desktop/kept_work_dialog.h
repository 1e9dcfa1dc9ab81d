#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>

#include "desktop/value_label.h"
#include "forms/touch_up_form.h"

namespace vendrel {

/// The list of work that was left unsaved, over the editor.
class KeptWorkDialog : public QDialog {
    Q_OBJECT

  public:
    explicit KeptWorkDialog(QWidget* parent);

    void Mirror(const KeptControls& shown);
    void reject() override { emit Closed(); }

  signals:
    void Chosen(int row);
    void Restored();
    void ThrownAway();
    void Closed();

  private:
    [[nodiscard]] QPushButton* MakeButton(const char* name, const QString& text);
    void Fill(const std::vector<KeptRow>& rows);

    QTreeWidget* list_;
    ValueLabel* hint_;
    QPushButton* throwAway_;
    QPushButton* restore_;
    QPushButton* close_;
    std::vector<KeptRow> rows_;
};

}  // namespace vendrel
