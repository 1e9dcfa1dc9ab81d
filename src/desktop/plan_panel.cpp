#include "desktop/plan_panel.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

PlanPanel::PlanPanel()
    : paper_(Named<QComboBox>("Paper", tr("Paper"))),
      legible_(Named<QRadioButton>("LegibleCanvas", tr("As many pages as legible symbols need"))),
      chosenSize_(Named<QRadioButton>("ChosenCanvas", tr("A canvas of a chosen width"))),
      width_(Named<QDoubleSpinBox>("CanvasWidth", tr("Width of the canvas in centimeters"))),
      pages_(Value("PlanPages")),
      canvas_(Value("PlanCanvas")),
      smallest_(Value("PlanSmallest")),
      warning_(Value("PlanWarning")) {
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addLayout(MakeChoices());
    all->addWidget(MakeFigures());
    Connect();
}

QLayout* PlanPanel::MakeChoices() {
    paper_->addItems({tr("A4"), tr("Letter"), tr("A3")});
    legible_->setText(tr("As many pages as &legible symbols need (2 mm and more)"));
    chosenSize_->setText(tr("&Width of the canvas"));
    width_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    width_->setDecimals(1);
    width_->setSuffix(tr(" cm"));
    width_->setValue(50);
    auto* size = new QHBoxLayout;
    size->addWidget(chosenSize_);
    size->addWidget(width_);
    size->addStretch(1);
    auto* rows = new QFormLayout;
    rows->addRow(tr("&Paper"), paper_);
    rows->addRow(tr("Canvas"), legible_);
    rows->addRow(QString(), size);
    return rows;
}

QWidget* PlanPanel::MakeFigures() {
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

void PlanPanel::Connect() {
    connect(paper_, &QComboBox::activated, this,
            [this](int index) { emit PaperChosen(static_cast<Paper>(index)); });
    connect(legible_, &QRadioButton::clicked, this, &PlanPanel::TellCanvas);
    connect(chosenSize_, &QRadioButton::clicked, this, &PlanPanel::TellCanvas);
    connect(width_, &QDoubleSpinBox::valueChanged, this, &PlanPanel::TellCanvas);
}

void PlanPanel::TellCanvas() {
    emit CanvasChosen(chosenSize_->isChecked() ? width_->value() : 0);
}

std::array<QWidget*, 4> PlanPanel::Controls() const {
    return {paper_, legible_, chosenSize_, width_};
}

void PlanPanel::Mirror(const PlanChoice& shown) {
    const PlanSettings& settings = shown.Settings();
    const bool chosen = settings.CanvasCm > 0;
    paper_->setCurrentIndex(static_cast<int>(settings.Sheet));
    (chosen ? chosenSize_ : legible_)->setChecked(true);
    width_->setEnabled(chosen);
    const QSignalBlocker quiet(width_);
    width_->setMaximum(shown.WidestCm());
    if (chosen && width_->value() != settings.CanvasCm) {
        width_->setValue(settings.CanvasCm);
    }
    if (shown.Figures()) {
        MirrorFigures(*shown.Figures());
    }
}

void PlanPanel::MirrorFigures(const PlanFigures& figures) {
    pages_->setText(tr("%1 of the plan, and cover, chart and map in front").arg(figures.Pages));
    canvas_->setText(tr("%1 \u00d7 %2 cm")
                         .arg(figures.Canvas.Width / 10, 0, 'f', 1)
                         .arg(figures.Canvas.Height / 10, 0, 'f', 1));
    smallest_->setText(tr("%1 mm").arg(Text(SmallestText(figures))));
    const std::string warning = WarningOf(figures);
    warning_->setText(warning.empty() ? tr("All symbols can be read.")
                                      : tr("\u26a0 %1").arg(Text(warning)));
}

}  // namespace vendrel
