#include "desktop/plan_panel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

constexpr int kPageWidth = 380;  // what the page shown is fitted into
constexpr int kPageHeight = 470;
constexpr int kQuietMs = 150;  // before it is drawn again
constexpr double kUsualWidthMm = 500;
constexpr double kUsualHeightMm = 400;

QDoubleSpinBox* Length(const char* name, const QString& spoken) {
    auto* box = Named<QDoubleSpinBox>(name, spoken);
    box->setDecimals(1);
    return box;
}

// Shows a length without telling anybody; what the painter typed stays as it is.
void Show(QDoubleSpinBox& box, double mm, double unit, double most) {
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

PlanPanel::PlanPanel()
    : paper_(Named<QComboBox>("Paper", tr("Paper"))),
      paperWidth_(Length("PaperWidth", tr("Width of the paper in millimeters"))),
      paperHeight_(Length("PaperHeight", tr("Height of the paper in millimeters"))),
      legible_(Named<QRadioButton>("LegibleCanvas", tr("As many pages as legible symbols need"))),
      chosenSize_(Named<QRadioButton>("ChosenCanvas", tr("A canvas of a chosen width"))),
      bothSides_(Named<QRadioButton>("SizedCanvas", tr("A canvas of chosen sides"))),
      width_(Length("CanvasWidth", tr("Width of the canvas"))),
      across_(Length("CanvasAcross", tr("Width of the canvas with its margins"))),
      down_(Length("CanvasDown", tr("Height of the canvas with its margins"))),
      bleed_(Length("PlanBleed", tr("Bleed around the canvas in millimeters"))),
      symbols_(Named<QComboBox>("PlanSymbols", tr("Symbols"))),
      lines_(Named<QComboBox>("PlanLines", tr("Shape of the lines"))),
      gray_(Named<QSlider>("PlanGray", tr("Darkness of lines and symbols"))),
      pot_(Length("PotSize", tr("Size of a pot of paint in milliliters"))),
      bySet_(Named<QCheckBox>("GroupBySet", tr("Group the chart's paints by their sets"))),
      maker_(Named<QLineEdit>("KitMaker", tr("Your name or address on the pages"))),
      logo_(Named<QPushButton>("KitLogo", tr("Choose a logo for the pages"))),
      noLogo_(Named<QPushButton>("NoKitLogo", tr("No logo"))),
      page_(Value("PlanPage")),
      pages_(Value("PlanPages")),
      canvas_(Value("PlanCanvas")),
      smallest_(Value("PlanSmallest")),
      effort_(Value("PlanEffort")),
      warning_(Value("PlanWarning")) {
    Name();
    auto* choices = new QVBoxLayout;
    auto* rows = new QFormLayout;
    AddSizes(*rows);
    AddLooks(*rows);
    AddMaker(*rows);
    choices->addLayout(rows);
    choices->addWidget(MakeFigures());
    choices->addStretch(1);
    page_->setFixedSize(kPageWidth, kPageHeight);
    page_->setAlignment(Qt::AlignCenter);
    page_->setAccessibleName(tr("First page of the plan"));
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins({});
    all->addLayout(choices);
    all->addWidget(page_);
    soon_.setSingleShot(true);
    soon_.setInterval(kQuietMs);
    ConnectSizes();
    ConnectLooks();
    ConnectMaker();
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
    bothSides_->setText(tr("&Both sides"));
    bleed_->setRange(0, kWidestBleedMm);
    bleed_->setSuffix(tr(" mm"));
    bleed_->setToolTip(tr("Outlines run on past the canvas, to wrap it round a frame."));
    symbols_->addItems(
        {tr("The sheet's letters"), tr("The clearest letters"), tr("Numbers"), tr("Signs")});
    lines_->addItems({tr("As the kit has them"), tr("Smooth curves"), tr("Steps, as painted")});
    gray_->setOrientation(Qt::Horizontal);
    gray_->setRange(kLightestGray, kDarkestGray);
    gray_->setPageStep(10);
    gray_->setToolTip(tr("Paint covers light lines; dark ones are easier to follow."));
    pot_->setRange(0, 10'000);
    pot_->setDecimals(0);
    pot_->setSuffix(tr(" ml"));
    pot_->setSpecialValueText(tr("not counted"));
    bySet_->setText(tr("by set"));
    maker_->setPlaceholderText(tr("Your name or address"));
    noLogo_->setText(tr("&No logo"));
}

void PlanPanel::AddSizes(QFormLayout& rows) {
    auto* paper = Row({paper_, paperWidth_, new QLabel(QStringLiteral("\u00d7")), paperHeight_});
    rows.addRow(LabelFor(*paper_, tr("&Paper")), paper);
    rows.addRow(tr("Canvas"), legible_);
    rows.addRow(QString(), Row({chosenSize_, width_, bothSides_, across_,
                                new QLabel(QStringLiteral("\u00d7")), down_}));
    rows.addRow(LabelFor(*bleed_, tr("Bl&eed")), Row({bleed_}));
}

void PlanPanel::AddLooks(QFormLayout& rows) {
    rows.addRow(LabelFor(*symbols_, tr("S&ymbols")), symbols_);
    rows.addRow(LabelFor(*lines_, tr("L&ines")), lines_);
    rows.addRow(LabelFor(*gray_, tr("&Darkness")), gray_);
}

void PlanPanel::AddMaker(QFormLayout& rows) {
    rows.addRow(LabelFor(*pot_, tr("P&ots of")), Row({pot_, bySet_}));
    rows.addRow(LabelFor(*maker_, tr("&Maker")), maker_);
    rows.addRow(QString(), Row({logo_, noLogo_}));
}

QWidget* PlanPanel::MakeFigures() {
    auto* box = new QGroupBox(tr("What is printed"));
    auto* rows = new QFormLayout;
    rows->addRow(tr("Pages"), pages_);
    rows->addRow(tr("Canvas"), canvas_);
    rows->addRow(tr("Smallest symbol"), smallest_);
    rows->addRow(tr("Painting"), effort_);
    // Room for the whole warning: the window shall not jump while a width is chosen.
    warning_->setWordWrap(true);
    warning_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    warning_->setMinimumHeight(3 * fontMetrics().lineSpacing());
    auto* column = new QVBoxLayout(box);
    column->addLayout(rows);
    column->addWidget(warning_);
    return box;
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
    connect(&soon_, &QTimer::timeout, this, [this] {
        emit PageWanted(static_cast<int>(std::lround(kPageHeight * devicePixelRatioF())));
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

void PlanPanel::ConnectMaker() {
    connect(pot_, &QDoubleSpinBox::valueChanged, this,
            [this](double ml) { Change([ml](PlanSettings& plan) { plan.Use.PotMl = ml; }); });
    connect(bySet_, &QCheckBox::clicked, this,
            [this](bool on) { Change([on](PlanSettings& plan) { plan.GroupBySet = on; }); });
    connect(maker_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Change([&text](PlanSettings& plan) { plan.Maker = text.toStdString(); });
    });
    connect(logo_, &QPushButton::clicked, this, &PlanPanel::ChooseLogo);
    connect(noLogo_, &QPushButton::clicked, this,
            [this] { Change([](PlanSettings& plan) { plan.Logo.clear(); }); });
}

void PlanPanel::ChooseLogo() {
    const QString file = QFileDialog::getOpenFileName(this, tr("A Logo for the Pages"), {},
                                                      tr("Pictures (*.png *.jpg *.jpeg *.bmp)"));
    if (!file.isEmpty()) {
        Change([&file](PlanSettings& plan) { plan.Logo = file.toStdString(); });
    }
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
    return {paper_,     paperWidth_, paperHeight_, legible_, chosenSize_, width_,
            bothSides_, across_,     down_,        bleed_,   symbols_,    lines_,
            gray_,      pot_,        bySet_,       maker_,   logo_,       noLogo_};
}

void PlanPanel::Mirror(PlanChoice& shown) {
    if (shown_ != shown.Settings()) {
        shown_ = shown.Settings();
        AskForPage();
    }
    widestCm_ = shown.WidestCm();
    MirrorSizes(shown_);
    MirrorLooks(shown_);
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
    Show(*width_, wide ? settings.CanvasCm * 10 : 0, Unit(), widestCm_ * 10);
    Show(*across_, sized ? settings.Canvas.Width : 0, Unit(), kLargestCanvasCm * 10);
    Show(*down_, sized ? settings.Canvas.Height : 0, Unit(), kLargestCanvasCm * 10);
    width_->setEnabled(wide);
    across_->setEnabled(sized);
    down_->setEnabled(sized);
    bleed_->setEnabled(settings.Sheet.IsCanvas());
}

void PlanPanel::MirrorLooks(const PlanSettings& settings) {
    symbols_->setCurrentIndex(static_cast<int>(settings.Symbols));
    lines_->setCurrentIndex(static_cast<int>(settings.Lines));
    const QSignalBlocker quietGray(gray_);
    const QSignalBlocker quietPot(pot_);
    const QSignalBlocker quietBleed(bleed_);
    gray_->setValue(settings.Gray);
    pot_->setValue(settings.Use.PotMl);
    bleed_->setValue(settings.BleedMm);
    bySet_->setChecked(settings.GroupBySet);
    if (maker_->text() != Text(settings.Maker)) {
        maker_->setText(Text(settings.Maker));
    }
    const QString logo = QFileInfo(Text(settings.Logo.string())).fileName();
    logo_->setText(logo.isEmpty() ? tr("Lo&go...") : logo);
    noLogo_->setEnabled(!logo.isEmpty());
}

void PlanPanel::MirrorFigures(const PlanFigures& figures) {
    pages_->setText(tr("%1 of the plan, and cover, chart and map in front").arg(figures.Pages));
    const QString picture =
        figures.Canvas == figures.Picture
            ? QString()
            : tr(", the picture %1").arg(Text(SizeText(figures.Picture, figures.Inches)));
    canvas_->setText(Text(SizeText(figures.Canvas, figures.Inches)) + picture);
    smallest_->setText(figures.Symbols ? tr("%1 mm").arg(Text(SmallestText(*figures.Symbols)))
                                       : QStringLiteral("\u2026"));
    effort_->setText(tr("about %1 hours, %2 ml of paint")
                         .arg(figures.Hours, 0, 'f', 0)
                         .arg(figures.Ml, 0, 'f', 0));
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
