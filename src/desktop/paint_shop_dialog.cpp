#include "desktop/paint_shop_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

PaintShopDialog::PaintShopDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      mfgSelected_(Named<QRadioButton>("MfgSelected", tr("Paint with paint sets"))),
      useTemplate_(Named<QRadioButton>("UseTemplate", tr("Paint with a template"))),
      mfgList_(Named<QListWidget>("MfgList", tr("All paint sets"))),
      transfer_(Named<QPushButton>("Transfer", tr("Add or remove the chosen paint set"))),
      selectedPaintsList_(Named<QListWidget>("SelectedPaintsList", tr("Selected paint sets"))),
      templateList_(Named<QListWidget>("TemplateList", tr("Templates"))),
      decoFrame_(Named<QFrame>("DecoFrame", tr("Getting the paints"))),
      paletteFrame_(new QGroupBox),
      paintPalette_(new SwatchBox([this](int swatch) { return form_.PaintAt(swatch); })),
      allDone_(Named<QPushButton>("AllDone", tr("Done"))) {
    setWindowTitle(tr("Paint Shop"));
    allDone_->setText(tr("Done"));
    allDone_->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeModes());
    column->addWidget(MakeLists(), 1);
    column->addWidget(MakePalette());
    column->addWidget(decoFrame_);
    column->addWidget(allDone_, 0, Qt::AlignRight);
    Connect();
    SetTabOrder({mfgSelected_, useTemplate_, mfgList_, transfer_, selectedPaintsList_,
                 templateList_, paintPalette_, allDone_});
    resize(760, 560);
}

QWidget* PaintShopDialog::MakeModes() {
    auto* modeSelect = new QGroupBox(tr("Paint with"));
    modeSelect->setObjectName(QStringLiteral("ModeSelect"));
    mfgSelected_->setText(tr("&Paint sets"));
    useTemplate_->setText(tr("A &template"));
    auto* row = new QHBoxLayout(modeSelect);
    row->addWidget(mfgSelected_);
    row->addWidget(useTemplate_);
    row->addStretch(1);
    return modeSelect;
}

QWidget* PaintShopDialog::MakeLists() {
    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(LabelFor(*mfgList_, tr("&All paint sets")), 0, 0);
    grid->addWidget(LabelFor(*selectedPaintsList_, tr("&Selected paint sets")), 0, 2);
    grid->addWidget(LabelFor(*templateList_, tr("T&emplates")), 0, 3);
    grid->addWidget(mfgList_, 1, 0);
    grid->addWidget(transfer_, 1, 1);
    grid->addWidget(selectedPaintsList_, 1, 2);
    grid->addWidget(templateList_, 1, 3);
    transfer_->setAutoDefault(false);
    transfer_->setFixedWidth(48);
    return lists;
}

QWidget* PaintShopDialog::MakePalette() {
    paintPalette_->setObjectName(QStringLiteral("PaintPalette"));
    paintPalette_->setMinimumSize(PaintShop::kBoxWidth, PaintShop::kBoxHeight);
    auto* column = new QVBoxLayout(paletteFrame_);
    column->addWidget(paintPalette_);
    return paletteFrame_;
}

void PaintShopDialog::Connect() {
    OnChosen(*mfgList_, [this](int set) { Run([this, set] { form_.MfgList_Click(set); }); });
    OnChosen(*selectedPaintsList_,
             [this](int set) { Run([this, set] { form_.SelectedPaintsList_Click(set); }); });
    OnChosen(*templateList_,
             [this](int entry) { Run([this, entry] { form_.TemplateList_Click(entry); }); });
    const auto transfer = [this] { Run([this] { form_.Transfer_Click(); }); };
    connect(transfer_, &QPushButton::clicked, this, transfer);
    connect(mfgList_, &QListWidget::itemDoubleClicked, this, transfer);
    connect(selectedPaintsList_, &QListWidget::itemDoubleClicked, this, transfer);
    connect(mfgSelected_, &QRadioButton::clicked, this,
            [this] { Run([this] { form_.MfgSelected_Click(); }); });
    connect(useTemplate_, &QRadioButton::clicked, this,
            [this] { Run([this] { form_.UseTemplate_Click(); }); });
    connect(allDone_, &QPushButton::clicked, this,
            [this] { Run([this] { form_.AllDone_Click(); }); });
    connect(paintPalette_, &SwatchBox::Resized, this, [this](int width, int height) {
        form_.PaintPalette_Resize(width, height);
        Mirror();
    });
}

void PaintShopDialog::Load() {
    form_.PaintPalette_Resize(paintPalette_->width(), paintPalette_->height());
    Context().Form.Kits().LendPalette(true);
    form_.Form_Load();
}

void PaintShopDialog::hideEvent(QHideEvent* event) {
    if (!event->spontaneous()) {  // as when it is made small
        Context().Form.Kits().LendPalette(false);
    }
    FormDialog::hideEvent(event);
}

void PaintShopDialog::Mirror() {
    const PaintShopControls& shown = form_.Controls();
    mfgSelected_->setChecked(!form_.UsesTemplate());
    useTemplate_->setChecked(form_.UsesTemplate());
    MirrorList(*mfgList_, shown.MfgList, shown.MfgIndex);
    MirrorList(*selectedPaintsList_, shown.SelectedPaintsList, shown.SelectedIndex);
    MirrorList(*templateList_, shown.TemplateList, shown.TemplateIndex);
    mfgList_->setEnabled(shown.ListsEnabled);
    selectedPaintsList_->setEnabled(shown.ListsEnabled);
    templateList_->setEnabled(shown.TemplateListEnabled);
    transfer_->setText(Text(shown.TransferCaption));
    transfer_->setEnabled(shown.TransferEnabled);
    decoFrame_->setVisible(shown.DecoFrameShown);
    paletteFrame_->setTitle(WithoutMnemonics(Text(shown.PaletteCaption)));
    paintPalette_->SetTitle(Text(shown.PaletteCaption));
    paintPalette_->SetLayout(shown.Swatches);
    allDone_->setEnabled(shown.AllDoneEnabled);
}

}  // namespace vendrel
