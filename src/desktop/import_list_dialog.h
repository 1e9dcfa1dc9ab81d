#pragma once

#include <QComboBox>
#include <QDialog>
#include <QTreeWidget>
#include <vector>

#include "shelf/paint_import.h"

namespace vendrel {

/// Shows what the lines of a list seem to mean; what is not ticked is not taken.
class ImportListDialog : public QDialog {
    Q_OBJECT

  public:
    ImportListDialog(const std::vector<ImportProposal>& proposals, const PaintList& catalogue,
                     QWidget* parent);

    /// For each proposal the paint of the catalogue that is taken, 0 for none.
    [[nodiscard]] std::vector<int> Taken() const;

  private:
    void AddLine(const ImportProposal& proposal, const PaintList& catalogue);

    QTreeWidget* lines_;
    std::vector<QComboBox*> paints_;  // by proposal; null without any
};

}  // namespace vendrel
