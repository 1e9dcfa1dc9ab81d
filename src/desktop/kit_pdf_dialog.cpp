#include "desktop/kit_pdf_dialog.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

KitPdfDialog::KitPdfDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports()),
      paper_(Named<QComboBox>("Paper", tr("Paper"))),
      symbols_(Named<QComboBox>("Symbols", tr("Symbols"))),
      legible_(Named<QRadioButton>("LegibleCanvas", tr("As many pages as legible symbols need"))),
      chosenSize_(Named<QRadioButton>("ChosenCanvas", tr("A canvas of a chosen width"))),
      width_(Named<QDoubleSpinBox>("CanvasWidth", tr("Width of the canvas in centimeters"))),
      lines_(Named<QComboBox>("PlanLines", tr("Shape of the lines"))),
      gray_(Named<QSlider>("PlanGray", tr("Darkness of lines and symbols"))),
      pages_(Value("PlanPages")),
      canvas_(Value("PlanCanvas")),
      smallest_(Value("PlanSmallest")),
      warning_(Value("PlanWarning")) {
    setWindowTitle(tr("Save Kit as PDF"));
    auto* all = new QVBoxLayout(this);
    all->addLayout(MakeChoices());
    all->addWidget(MakeFigures());
    all->addLayout(MakeButtons());
    all->setSizeConstraint(QLayout::SetFixedSize);
    Connect();
}

QLayout* KitPdfDialog::MakeChoices() {
    paper_->addItems({tr("A4"), tr("Letter"), tr("A3")});
    symbols_->addItems(
        {tr("Letters of the sheet"), tr("The clearest letters"), tr("Numbers"), tr("Signs")});
    legible_->setText(tr("As many pages as &legible symbols need (2 mm and more)"));
    chosenSize_->setText(tr("&Width of the canvas"));
    width_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    width_->setDecimals(1);
    width_->setSuffix(tr(" cm"));
    width_->setValue(50);
    legible_->setChecked(true);
    lines_->addItems({tr("Smooth curves"), tr("Steps, as painted")});
    gray_->setOrientation(Qt::Horizontal);
    gray_->setRange(kLightestGray, kDarkestGray);
    gray_->setPageStep(10);
    gray_->setValue(kUsualGray);
    gray_->setToolTip(tr("Paint covers light lines; dark ones are easier to follow."));
    auto* size = new QHBoxLayout;
    size->addWidget(chosenSize_);
    size->addWidget(width_);
    size->addStretch(1);
    auto* rows = new QFormLayout;
    rows->addRow(tr("&Paper"), paper_);
    rows->addRow(tr("&Symbols"), symbols_);
    rows->addRow(tr("Canvas"), legible_);
    rows->addRow(QString(), size);
    rows->addRow(tr("L&ines"), lines_);
    rows->addRow(tr("&Darkness"), gray_);
    return rows;
}

QWidget* KitPdfDialog::MakeFigures() {
    auto* box = new QGroupBox(tr("What is printed"));
    auto* rows = new QFormLayout;
    rows->addRow(tr("Pages"), pages_);
    rows->addRow(tr("Canvas"), canvas_);
    rows->addRow(tr("Smallest symbol"), smallest_);
    // Room for the whole warning: the window shall not jump while a width is chosen.
    warning_->setWordWrap(true);
    warning_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    warning_->setMinimumHeight(3 * fontMetrics().lineSpacing());
    auto* column = new QVBoxLayout(box);
    column->addLayout(rows);
    column->addWidget(warning_);
    return box;
}

QLayout* KitPdfDialog::MakeButtons() {
    QPushButton* save = MakeButton("SavePdf", tr("Save PDF"), [this] { form_.SaveButton_Click(); });
    save->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    QPushButton* cancel =
        MakeButton("CancelPdf", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    buttons->addWidget(cancel);
    SetTabOrder({paper_, symbols_, legible_, chosenSize_, width_, lines_, gray_, save, cancel});
    return buttons;
}

void KitPdfDialog::Connect() {
    connect(paper_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Paper_Click(static_cast<Paper>(index)); });
    });
    connect(symbols_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Symbols_Click(static_cast<SymbolStyle>(index)); });
    });
    connect(legible_, &QRadioButton::clicked, this, [this] { CanvasChanged(); });
    connect(chosenSize_, &QRadioButton::clicked, this, [this] { CanvasChanged(); });
    connect(width_, &QDoubleSpinBox::valueChanged, this, [this] { CanvasChanged(); });
    connect(lines_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] {
            form_.Lines_Click(index == 0 ? LineShape::Smooth : LineShape::Steps);
        });
    });
    connect(gray_, &QSlider::valueChanged, this,
            [this](int gray) { Run([this, gray] { form_.Gray_Change(gray); }); });
}

void KitPdfDialog::Load() {
    form_.Form_Load();
    const QSignalBlocker quiet(width_);
    width_->setMaximum(form_.WidestCm());
}

void KitPdfDialog::CanvasChanged() {
    const double wanted = chosenSize_->isChecked() ? width_->value() : 0;
    Run([this, wanted] { form_.Canvas_Change(wanted); });
}

void KitPdfDialog::Mirror() {
    paper_->setCurrentIndex(static_cast<int>(form_.Settings().Sheet));
    symbols_->setCurrentIndex(static_cast<int>(form_.Settings().Symbols));
    lines_->setCurrentIndex(form_.HasSmoothLines() ? 0 : 1);
    width_->setEnabled(form_.Settings().CanvasCm > 0);
    if (form_.Figures()) {
        MirrorFigures(*form_.Figures());
    }
}

void KitPdfDialog::MirrorFigures(const PlanFigures& figures) {
    pages_->setText(tr("%1 of the plan, and 3 in front").arg(figures.Pages));
    canvas_->setText(tr("%1 \u00d7 %2 cm")
                         .arg(figures.Canvas.Width / 10, 0, 'f', 1)
                         .arg(figures.Canvas.Height / 10, 0, 'f', 1));
    smallest_->setText(tr("%1 mm").arg(Text(SmallestText(figures))));
    const std::string warning = WarningOf(figures);
    warning_->setText(warning.empty() ? tr("All symbols can be read.")
                                      : tr("\u26a0 %1").arg(Text(warning)));
}

}  // namespace vendrel
