#include "desktop/plan_panel.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

constexpr int kHighestPage = 470;  // of the first page as it is shown
constexpr int kLowestPage = 180;
constexpr int kAroundPage = 350;    // title bar, figures and buttons
constexpr int kFigureLetters = 44;  // to a line
constexpr double kPageShape = 0.8;  // what it is fitted into, wide for its height
constexpr int kQuietMs = 150;       // before it is drawn again
constexpr double kUsualWidthMm = 500;
constexpr double kUsualHeightMm = 400;

QDoubleSpinBox* Length(const char* name, const QString& spoken) {
    auto* box = Named<QDoubleSpinBox>(name, spoken);
    box->setDecimals(1);
    return box;
}

// Shows a length without telling anybody; what the painter typed stays as it is.
void ShowLength(QDoubleSpinBox& box, double mm, double unit, double most) {
    const QSignalBlocker quiet(&box);
    const QString suffix = unit == kMmPerInch ? QObject::tr(" in") : QObject::tr(" cm");
    if (box.suffix() != suffix || std::abs(box.maximum() * unit - most) > unit / 20) {
        box.setSuffix(suffix);
        box.setRange(kSmallestCanvasCm * 10 / unit, most / unit);
    }
    if (mm > 0 && std::abs(box.value() * unit - mm) > unit / 20) {
        box.setValue(mm / unit);
    }
}

int PageHeightOn(const QWidget& window) {
    return std::clamp(window.screen()->availableGeometry().height() - kAroundPage, kLowestPage,
                      kHighestPage);
}

QHBoxLayout* Row(std::initializer_list<QWidget*> parts) {
    auto* row = new QHBoxLayout;
    for (QWidget* part : parts) {
        row->addWidget(part);
    }
    row->addStretch(1);
    return row;
}

int IndexOf(const Paper& paper) {
    const auto* const found = std::ranges::find(kNamedPapers, paper, &NamedPaper::Meaning);
    return static_cast<int>(found - kNamedPapers.begin());
}

}  // namespace

PlanPanel::PlanPanel(const QWidget& window)
    : tabs_(Named<QTabWidget>("PlanTabs", tr("What is chosen"))),
      paper_(Named<QComboBox>("Paper", tr("Paper"))),
      paperWidth_(Length("PaperWidth", tr("Width of the paper in millimeters"))),
      paperHeight_(Length("PaperHeight", tr("Height of the paper in millimeters"))),
      legible_(Named<QRadioButton>("LegibleCanvas", tr("As many pages as legible symbols need"))),
      chosenSize_(Named<QRadioButton>("ChosenCanvas", tr("A canvas of a chosen width"))),
      bothSides_(Named<QRadioButton>("SizedCanvas", tr("A canvas of chosen sides"))),
      width_(Length("CanvasWidth", tr("Width of the canvas"))),
      across_(Length("CanvasAcross", tr("Width of the canvas with its margins"))),
      down_(Length("CanvasDown", tr("Height of the canvas with its margins"))),
      inches_(Named<QCheckBox>("CanvasInches", tr("Canvas in inches"))),
      bleed_(Length("PlanBleed", tr("Bleed around the canvas in millimeters"))),
      symbols_(Named<QComboBox>("PlanSymbols", tr("Symbols"))),
      lines_(Named<QComboBox>("PlanLines", tr("Shape of the lines"))),
      gray_(Named<QSlider>("PlanGray", tr("Darkness of lines and symbols"))),
      coats_(Named<QSpinBox>("Coats", tr("Coats of paint"))),
      coverage_(Length("Coverage", tr("Area that 1 milliliter of paint covers"))),
      pot_(Length("PotSize", tr("Size of a pot of paint in milliliters"))),
      bySet_(Named<QCheckBox>("GroupBySet", tr("Group the chart's paints by their sets"))),
      shop_(new ShopFacePanel),
      page_(Value("PlanPage")),
      pages_(Value("PlanPages")),
      canvas_(Value("PlanCanvas")),
      smallest_(Value("PlanSmallest")),
      effort_(Value("PlanEffort")),
      warning_(Value("PlanWarning")),
      figures_(MakeFigures()) {
    Name();
    AddTab(tr("Paper and &canvas"), &PlanPanel::AddSizes);
    AddTab(tr("Lines and s&ymbols"), &PlanPanel::AddLooks);
    AddTab(tr("Pai&nt"), &PlanPanel::AddPaint);
    tabs_->addTab(shop_, tr("Make&r"));
    own_.push_back(shop_);
    const int height = PageHeightOn(window);
    page_->setFixedSize(static_cast<int>(std::lround(height * kPageShape)), height);
    page_->setAlignment(Qt::AlignCenter);
    page_->setAccessibleName(tr("First page of the plan"));
    figures_->setFixedWidth(
        std::max(page_->width(), kFigureLetters * fontMetrics().averageCharWidth()));
    auto* shown = new QVBoxLayout;
    shown->addWidget(page_, 0, Qt::AlignHCenter);
    shown->addWidget(figures_);
    shown->addStretch(1);
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(tabs_, 1);
    all->addLayout(shown);
    soon_.setSingleShot(true);
    soon_.setInterval(kQuietMs);
    ConnectSizes();
    ConnectLooks();
    ConnectPaint();
    connect(shop_, &ShopFacePanel::Changed, this, &PlanPanel::Change);
    ConnectTabs();
}

void PlanPanel::AddTab(const QString& title, void (PlanPanel::*fill)(QFormLayout& rows)) {
    auto* tab = new QWidget;
    (this->*fill)(*new QFormLayout(tab));
    tabs_->addTab(tab, title);
    own_.push_back(tab);
}

void PlanPanel::PutFirst(QWidget* tab, const QString& title) {
    tabs_->insertTab(0, tab, title);
    tabs_->setCurrentIndex(0);
}

void PlanPanel::SetPlanEnabled(bool on) {
    for (QWidget* tab : own_) {
        tab->setEnabled(on);
    }
    figures_->setEnabled(on);
    page_->setEnabled(on);
}

void PlanPanel::Name() {
    for (const NamedPaper& paper : kNamedPapers) {
        paper_->addItem(paper.Meaning.IsCanvas() ? tr("The canvas, in one piece")
                                                 : Text(std::string(paper.Name)));
    }
    paper_->addItem(tr("Another size"));
    for (QDoubleSpinBox* side : {paperWidth_, paperHeight_}) {
        side->setRange(kSmallestPaperMm, kLargestPaperMm);
        side->setSuffix(tr(" mm"));
    }
    width_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    width_->setValue(kUsualWidthMm / 10);
    across_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    across_->setValue(kUsualWidthMm / 10);
    down_->setRange(kSmallestCanvasCm, kLargestCanvasCm);
    down_->setValue(kUsualHeightMm / 10);
    paperWidth_->setValue(250);
    paperHeight_->setValue(400);
    legible_->setText(tr("As &legible symbols need (2 mm and more)"));
    chosenSize_->setText(tr("&Width"));
    bothSides_->setText(tr("Both si&des"));
    bleed_->setRange(0, kWidestBleedMm);
    bleed_->setSuffix(tr(" mm"));
    bleed_->setToolTip(tr("Outlines run on past the canvas, to wrap it round a frame."));
    symbols_->addItems({tr("The sheet's letters"), tr("The clearest letters"), tr("Numbers"),
                        tr("Signs"), tr("My labels")});
    lines_->addItems({tr("As the kit has them"), tr("Smooth curves"), tr("Steps, as painted")});
    gray_->setOrientation(Qt::Horizontal);
    gray_->setRange(kLightestGray, kDarkestGray);
    gray_->setPageStep(10);
    gray_->setToolTip(tr("Paint covers light lines; dark ones are easier to follow."));
    inches_->setText(tr("&in inches"));
    coats_->setRange(1, 10);
    pot_->setRange(0, 10'000);
    pot_->setDecimals(0);
    pot_->setSuffix(tr(" ml"));
    pot_->setSpecialValueText(tr("not counted"));
    bySet_->setText(tr("Paints &grouped by set"));
}

void PlanPanel::AddSizes(QFormLayout& rows) {
    auto* paper = Row({paper_, paperWidth_, new QLabel(QStringLiteral("\u00d7")), paperHeight_});
    rows.addRow(LabelFor(*paper_, tr("&Paper")), paper);
    rows.addRow(tr("Canvas"), legible_);
    rows.addRow(QString(), Row({chosenSize_, width_}));
    rows.addRow(QString(), Row({bothSides_, across_, new QLabel(QStringLiteral("\u00d7")), down_}));
    rows.addRow(QString(), inches_);
    rows.addRow(LabelFor(*bleed_, tr("Bl&eed")), Row({bleed_}));
}

void PlanPanel::AddLooks(QFormLayout& rows) {
    rows.addRow(LabelFor(*symbols_, tr("Sym&bols")), symbols_);
    rows.addRow(LabelFor(*lines_, tr("L&ines")), lines_);
    rows.addRow(LabelFor(*gray_, tr("&Darkness")), gray_);
}

void PlanPanel::AddPaint(QFormLayout& rows) {
    rows.addRow(LabelFor(*coats_, tr("C&oats of paint")), Row({coats_}));
    rows.addRow(LabelFor(*coverage_, tr("1 ml co&vers")), Row({coverage_}));
    rows.addRow(LabelFor(*pot_, tr("&Pots of")), Row({pot_}));
    rows.addRow(tr("Chart"), bySet_);
}

QGroupBox* PlanPanel::MakeFigures() {
    auto* box = new QGroupBox(tr("What is printed"));
    auto* rows = new QFormLayout;
    rows->addRow(tr("Pages"), pages_);
    rows->addRow(tr("Canvas"), canvas_);
    rows->addRow(tr("Smallest symbol"), smallest_);
    rows->addRow(tr("Painting"), effort_);
    for (int row = 0; row < rows->rowCount(); ++row) {
        auto* name = qobject_cast<QLabel*>(rows->itemAt(row, QFormLayout::LabelRole)->widget());
        name->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    auto* column = new QVBoxLayout(box);
    column->addLayout(rows);
    column->addWidget(warning_);
    // Room for the longest of each: the window shall not jump while a width is chosen.
    const std::pair<QLabel*, int> lines[] = {
        {pages_, 2}, {canvas_, 2}, {effort_, 2}, {warning_, 5}};
    for (const auto& [label, count] : lines) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setMinimumHeight(count * fontMetrics().lineSpacing());
    }
    return box;
}

// Lists take Ctrl+Tab for something typed, and it would end there.
void PlanPanel::ConnectTabs() {
    const std::pair<QKeySequence::StandardKey, int> ways[] = {{QKeySequence::NextChild, 1},
                                                              {QKeySequence::PreviousChild, -1}};
    for (const auto& [keys, step] : ways) {
        auto* turn = new QShortcut(keys, this);
        turn->setContext(Qt::WidgetWithChildrenShortcut);
        connect(turn, &QShortcut::activated, this, [this, step = step] {
            tabs_->setCurrentIndex((tabs_->currentIndex() + step + tabs_->count()) %
                                   tabs_->count());
        });
    }
}

void PlanPanel::Change(const Edit& edit) {
    PlanSettings wanted = shown_;
    edit(wanted);
    emit Chosen(wanted);
}

void PlanPanel::ConnectSizes() {
    connect(paper_, &QComboBox::activated, this, &PlanPanel::ChangePaper);
    for (QDoubleSpinBox* side : {paperWidth_, paperHeight_}) {
        connect(side, &QDoubleSpinBox::valueChanged, this, &PlanPanel::ChangePaper);
    }
    for (QRadioButton* canvas : {legible_, chosenSize_, bothSides_}) {
        connect(canvas, &QRadioButton::clicked, this, &PlanPanel::ChangeCanvas);
    }
    for (QDoubleSpinBox* side : {width_, across_, down_}) {
        connect(side, &QDoubleSpinBox::valueChanged, this, &PlanPanel::ChangeCanvas);
    }
    connect(bleed_, &QDoubleSpinBox::valueChanged, this,
            [this](double mm) { Change([mm](PlanSettings& plan) { plan.BleedMm = mm; }); });
    connect(inches_, &QCheckBox::clicked, this,
            [this](bool on) { Change([on](PlanSettings& plan) { plan.InchCanvas = on; }); });
    connect(&soon_, &QTimer::timeout, this, [this] {
        emit PageWanted(static_cast<int>(std::lround(page_->height() * devicePixelRatioF())));
    });
}

void PlanPanel::ConnectLooks() {
    connect(symbols_, &QComboBox::activated, this, [this](int index) {
        Change([index](PlanSettings& plan) { plan.Symbols = static_cast<SymbolStyle>(index); });
    });
    connect(lines_, &QComboBox::activated, this, [this](int index) {
        Change([index](PlanSettings& plan) { plan.Lines = static_cast<LineShape>(index); });
    });
    connect(gray_, &QSlider::valueChanged, this,
            [this](int gray) { Change([gray](PlanSettings& plan) { plan.Gray = gray; }); });
}

void PlanPanel::ConnectPaint() {
    connect(coats_, &QSpinBox::valueChanged, this,
            [this](int coats) { Change([coats](PlanSettings& plan) { plan.Use.Coats = coats; }); });
    connect(coverage_, &QDoubleSpinBox::valueChanged, this, [this](double area) {
        const double cm2 = area * AreaUnit();
        Change([cm2](PlanSettings& plan) { plan.Use.Cm2PerMl = cm2; });
    });
    connect(pot_, &QDoubleSpinBox::valueChanged, this,
            [this](double ml) { Change([ml](PlanSettings& plan) { plan.Use.PotMl = ml; }); });
    connect(bySet_, &QCheckBox::clicked, this,
            [this](bool on) { Change([on](PlanSettings& plan) { plan.GroupBySet = on; }); });
}

void PlanPanel::ChangePaper() {
    const auto index = static_cast<std::size_t>(paper_->currentIndex());
    const Paper own = PaperOf({paperWidth_->value(), paperHeight_->value()}, false);
    Change([&](PlanSettings& plan) {
        plan.Sheet = index < kNamedPapers.size() ? kNamedPapers.at(index).Meaning : own;
    });
}

void PlanPanel::ChangeCanvas() {
    const double unit = Unit();
    Change([&](PlanSettings& plan) {
        plan.CanvasCm =
            chosenSize_->isChecked() ? std::min(width_->value() * unit / 10, widestCm_) : 0;
        plan.Canvas = bothSides_->isChecked()
                          ? SizeMm{across_->value() * unit, down_->value() * unit}
                          : SizeMm{};
    });
}

void PlanPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    AskForPage();
}

std::vector<QWidget*> PlanPanel::Controls() const {
    std::vector<QWidget*> controls = {paper_,    paperWidth_, paperHeight_, legible_, chosenSize_,
                                      width_,    bothSides_,  across_,      down_,    inches_,
                                      bleed_,    symbols_,    lines_,       gray_,    coats_,
                                      coverage_, pot_,        bySet_};
    const std::vector<QWidget*> shop = shop_->Controls();
    controls.insert(controls.end(), shop.begin(), shop.end());
    return controls;
}

void PlanPanel::Mirror(PlanChoice& shown) {
    if (shown_ != shown.Settings()) {
        shown_ = shown.Settings();
        AskForPage();
    }
    widestCm_ = shown.WidestCm();
    MirrorSizes(shown_);
    MirrorLooks(shown_);
    MirrorPaint(shown_);
    if (shown.Figures()) {
        MirrorFigures(*shown.Figures());
    }
}

void PlanPanel::MirrorSizes(const PlanSettings& settings) {
    const bool sized = settings.Canvas.Width > 0;
    const bool wide = !sized && settings.CanvasCm > 0;
    paper_->setCurrentIndex(IndexOf(settings.Sheet));
    const bool own = paper_->currentIndex() == static_cast<int>(kNamedPapers.size());
    paperWidth_->setEnabled(own);
    paperHeight_->setEnabled(own);
    (sized ? bothSides_ : wide ? chosenSize_ : legible_)->setChecked(true);
    ShowLength(*width_, wide ? settings.CanvasCm * 10 : 0, Unit(), widestCm_ * 10);
    ShowLength(*across_, sized ? settings.Canvas.Width : 0, Unit(), kLargestCanvasCm * 10);
    ShowLength(*down_, sized ? settings.Canvas.Height : 0, Unit(), kLargestCanvasCm * 10);
    width_->setEnabled(wide);
    across_->setEnabled(sized);
    down_->setEnabled(sized);
    inches_->setChecked(settings.InInches());
    inches_->setEnabled(!settings.Sheet.Inches);
    const QSignalBlocker quietBleed(bleed_);
    bleed_->setValue(settings.BleedMm);
    bleed_->setEnabled(settings.Sheet.IsCanvas());
}

void PlanPanel::MirrorLooks(const PlanSettings& settings) {
    symbols_->setCurrentIndex(static_cast<int>(settings.Symbols));
    lines_->setCurrentIndex(static_cast<int>(settings.Lines));
    const QSignalBlocker quietGray(gray_);
    gray_->setValue(settings.Gray);
    shop_->Mirror(settings);
}

void PlanPanel::MirrorPaint(const PlanSettings& settings) {
    const QSignalBlocker quietCoats(coats_);
    const QSignalBlocker quietCoverage(coverage_);
    const QSignalBlocker quietPot(pot_);
    coats_->setValue(settings.Use.Coats);
    coverage_->setSuffix(settings.InInches() ? tr(" sq in") : tr(" cm\u00b2"));
    coverage_->setRange(1 / AreaUnit(), 1000 / AreaUnit());
    if (std::abs(coverage_->value() * AreaUnit() - settings.Use.Cm2PerMl) > AreaUnit() / 20) {
        coverage_->setValue(settings.Use.Cm2PerMl / AreaUnit());
    }
    pot_->setValue(settings.Use.PotMl);
    bySet_->setChecked(settings.GroupBySet);
}

void PlanPanel::MirrorFigures(const PlanFigures& figures) {
    pages_->setText(tr("%1, after cover, chart and map").arg(figures.Pages));
    const QString picture =
        figures.Canvas == figures.Picture
            ? QString()
            : tr(", the picture %1").arg(Text(SizeText(figures.Picture, figures.Inches)));
    canvas_->setText(Text(SizeText(figures.Canvas, figures.Inches)) + picture);
    smallest_->setText(figures.Symbols ? tr("%1 mm").arg(Text(SmallestText(*figures.Symbols)))
                                       : QStringLiteral("\u2026"));
    effort_->setText(
        tr("%1 hours, %2 ml of paint").arg(figures.Hours, 0, 'f', 0).arg(figures.Ml, 0, 'f', 0));
    const std::string warning = WarningOf(figures);
    warning_->setText(!figures.Symbols  ? QString()
                      : warning.empty() ? tr("All symbols can be read.")
                                        : tr("\u26a0 %1").arg(Text(warning)));
}

void PlanPanel::ShowPage(const QImage& page) {
    QPixmap shown = QPixmap::fromImage(page.scaled(page_->size() * devicePixelRatioF(),
                                                   Qt::KeepAspectRatio, Qt::SmoothTransformation));
    shown.setDevicePixelRatio(devicePixelRatioF());
    page_->setPixmap(shown);
}

}  // namespace vendrel
