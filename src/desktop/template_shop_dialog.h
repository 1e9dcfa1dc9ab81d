#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "desktop/form_dialog.h"
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
    void AddChosenPaint();
    /// The paint of the template that is chosen, from 1; 0 none.
    [[nodiscard]] int ChosenPaint() const;
    void MovePaint(int by);

    TemplateShop form_;
    PaintSearch search_;
    QListWidget* templateList_;
    QGroupBox* paintsFrame_;
    SwatchBox* swatches_;
    QListWidget* paintList_;
    QComboBox* setBox_;
    QLineEdit* searchText_;
    QPushButton* nearButton_;
    QListWidget* foundList_;
    std::vector<QPushButton*> needTemplate_;
};

}  // namespace vendrel
