#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "desktop/form_dialog.h"
#include "desktop/paint_items.h"
#include "desktop/swatch_box.h"
#include "forms/template_shop.h"

namespace vendrel {

/// The library of templates.
class TemplateShopDialog : public FormDialog {
    Q_OBJECT

  public:
    TemplateShopDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.Done_Click(); }

  private:
    [[nodiscard]] QWidget* MakeTemplates();
    [[nodiscard]] QWidget* MakePaints();
    [[nodiscard]] QWidget* MakeCatalogue();
    void MirrorTemplate();
    void MirrorCatalogue();
    void Search();
    void PickColor();
    void AskName(const QString& title, const QString& first,
                 const std::function<void(const std::string&)>& use);
    void ChooseImport();
    void ChooseExport();
    [[nodiscard]] std::vector<PaintItem> ItemsOf(const std::vector<PaintColor>& paints) const;
    /// Of the catalogue.
    [[nodiscard]] std::vector<int> ChosenRows() const;
    void Added(int paints);
    /// Of the template, from 1.
    [[nodiscard]] std::vector<int> ChosenPaints() const;
    void MovePaints(int by);

    TemplateShop form_;
    PaintSearch search_;
    QListWidget* templateList_;
    QGroupBox* paintsFrame_;
    SwatchBox* swatches_;
    QListWidget* paintList_;
    QComboBox* setBox_;
    QLineEdit* searchText_;
    QCheckBox* ownedOnly_;
    QPushButton* nearButton_;
    QListWidget* foundList_;
    std::vector<QPushButton*> needTemplate_;
};

}  // namespace vendrel
