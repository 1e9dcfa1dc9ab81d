#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>
#include <optional>
#include <vector>

#include "plan/plan_layout.h"

namespace vendrel {

/// Who made a kit, and for which order: what its pages carry of a painter or a shop.
class ShopFacePanel : public QWidget {
    Q_OBJECT

  public:
    using Edit = std::function<void(PlanSettings&)>;

    ShopFacePanel();

    void Mirror(const PlanSettings& settings);
    /// What the Tab key goes through, in order.
    [[nodiscard]] std::vector<QWidget*> Controls() const;

  signals:
    void Changed(const Edit& edit);

  private:
    void Name();
    void AddRows(QFormLayout& rows);
    void Connect();
    void TakeAddress();
    void ChooseLogo();
    void ChooseAccent();
    void ChooseLeaflet();

    std::optional<Color> accent_;
    QLineEdit* maker_;
    QPushButton* logo_;
    QPushButton* noLogo_;
    QPlainTextEdit* address_;
    QPushButton* color_;
    QPushButton* noColor_;
    QLineEdit* order_;
    QPushButton* leaflet_;
    QPushButton* noLeaflet_;
};

}  // namespace vendrel
