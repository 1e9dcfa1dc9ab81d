#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <optional>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// Asks for a paint: those that `offer(words)` gives, the best first.
class AddPaintDialog : public QDialog {
    Q_OBJECT

  public:
    using Offer = std::function<std::vector<PaintColor>(const std::string& words)>;

    AddPaintDialog(Offer offer, QWidget* parent);

    [[nodiscard]] std::optional<PaintColor> Chosen() const;

  private:
    void Search();

    Offer offer_;
    QLineEdit* words_;
    QListWidget* list_;
    QPushButton* add_;
    std::vector<PaintColor> paints_;  // by row
};

}  // namespace vendrel
