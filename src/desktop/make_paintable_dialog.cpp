#include "desktop/make_paintable_dialog.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "desktop/named.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr int kPauseMs = 40;
constexpr double kShareOfScreen = 0.86;

QDoubleSpinBox* Number(const char* name, const QString& spoken, double most, const QString& unit) {
    auto* box = Named<QDoubleSpinBox>(name, spoken);
    box->setRange(0, most);
    box->setSuffix(" " + unit);
    box->setKeyboardTracking(false);
    return box;
}

QGroupBox* Group(const QString& title, QLayout* inside) {
    auto* box = new QGroupBox(title);
    box->setLayout(inside);
    return box;
}

}  // namespace

MakePaintableDialog::MakePaintableDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      view_(new CompareView({tr("Photo"), tr("As it was"), tr("As it becomes")})),
      match_(Named<QComboBox>("MatchColors", tr("Match Colors"))),
      finalPaints_(Named<QComboBox>("FinalPaints", tr("Final Paints"))),
      smallest_(Number("SmallestSpot", tr("Smallest spot"), MakePaintable::kMostSmallestMm2,
                       tr("mm\u00B2"))),
      narrowest_(
          Number("NarrowestPart", tr("Narrowest part"), MakePaintable::kMostNarrowestMm, tr("mm"))),
      detail_(Named<QSlider>("Detail", tr("Detail"))),
      detailValue_(new QLabel),
      canvas_(Number("CanvasWidth", tr("Canvas width"), kLargestCanvasCm, tr("cm"))),
      outlines_(Named<QCheckBox>("OutlinesOnly", tr("Outlines only"))),
      protect_(Named<QCheckBox>("ProtectParts", tr("Protect parts with the brush"))),
      brush_(Named<QSpinBox>("ProtectBrush", tr("Brush width in stipples"))),
      figures_(Named<QLabel>("PaintableFigures", tr("Figures"))) {
    setWindowTitle(tr("Make It Paintable"));
    view_->setObjectName("PaintableView");
    view_->setAccessibleName(tr("Photo, as it was and as it becomes"));
    auto* figures = new QVBoxLayout;
    figures->addWidget(figures_);
    figures->addStretch(1);
    // Below, not beside: photos of either shape come out largest so.
    auto* below = new QHBoxLayout;
    below->addWidget(Group(tr("Kit"), MakeSettings()));
    below->addWidget(Group(tr("Show and protect"), MakeBrush()));
    below->addWidget(Group(tr("What it takes"), figures), 1);
    auto* all = new QVBoxLayout(this);
    all->addWidget(view_, 1);
    all->addLayout(below);
    all->addLayout(MakeButtons());
    ConnectView();
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, [this] { Run(std::exchange(pending_, {})); });
    resize(screen()->availableSize() * kShareOfScreen);
}

QLayout* MakePaintableDialog::MakeSettings() {
    auto* rows = new QFormLayout;
    match_->addItem(tr("Plain"), QVariant::fromValue(static_cast<int>(Matching::Plain)));
    match_->addItem(tr("By Eye"), QVariant::fromValue(static_cast<int>(Matching::ByEye)));
    connect(match_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Match_Click(index == 0 ? Matching::Plain : Matching::ByEye); });
    });
    for (const int paints : kFinalPaints) {
        finalPaints_->addItem(QString::number(paints), paints);
    }
    connect(finalPaints_, &QComboBox::activated, this, [this] {
        Run([this] { form_.FinalPaints_Click(finalPaints_->currentData().toInt()); });
    });
    connect(smallest_, &QDoubleSpinBox::valueChanged, this,
            [this](double mm2) { Later([this, mm2] { form_.Smallest_Change(mm2); }); });
    narrowest_->setSingleStep(0.5);
    connect(narrowest_, &QDoubleSpinBox::valueChanged, this,
            [this](double mm) { Later([this, mm] { form_.Narrowest_Change(mm); }); });
    canvas_->setMinimum(kSmallestCanvasCm);
    connect(canvas_, &QDoubleSpinBox::valueChanged, this,
            [this](double cm) { Later([this, cm] { form_.Canvas_Change(cm); }); });
    detail_->setOrientation(Qt::Horizontal);
    detail_->setRange(0, kMostDetail);
    detail_->setPageStep(10);
    detailValue_->setMinimumWidth(fontMetrics().horizontalAdvance("100"));
    connect(detail_, &QSlider::valueChanged, this, [this](int detail) {
        detailValue_->setNum(detail);
        Later([this, detail] { form_.Detail_Change(detail); });
    });
    auto* detail = new QHBoxLayout;
    detail->addWidget(detail_);
    detail->addWidget(detailValue_);
    rows->addRow(LabelFor(*match_, tr("&Match Colors")), match_);
    rows->addRow(LabelFor(*finalPaints_, tr("&Final Paints")), finalPaints_);
    rows->addRow(LabelFor(*smallest_, tr("&Smallest spot")), smallest_);
    rows->addRow(LabelFor(*narrowest_, tr("&Narrowest part")), narrowest_);
    rows->addRow(LabelFor(*detail_, tr("&Detail")), detail);
    rows->addRow(LabelFor(*canvas_, tr("Canvas &width")), canvas_);
    return rows;
}

QLayout* MakePaintableDialog::MakeBrush() {
    auto* column = new QVBoxLayout;
    outlines_->setText(tr("&Outlines only"));
    connect(outlines_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Outlines_Click(on); }); });
    protect_->setText(tr("&Protect parts with the brush"));
    protect_->setToolTip(
        tr("The limits are a third there: mark eyes and mouths. The left button "
           "protects, the right one takes it back."));
    connect(protect_, &QCheckBox::toggled, view_, &CompareView::SetMarking);
    brush_->setRange(1, MakePaintable::kLargestBrush);
    brush_->setSuffix(tr(" stipples wide"));
    connect(brush_, &QSpinBox::valueChanged, this,
            [this](int stipples) { form_.Brush_Change(stipples); });
    undo_ = MakeButton("UndoProtect", tr("&Undo"), [this] { form_.Undo_Click(); });
    redo_ = MakeButton("RedoProtect", tr("&Redo"), [this] { form_.Redo_Click(); });
    nothing_ = MakeButton("ProtectNothing", tr("Protect no&thing"),
                          [this] { form_.ProtectNothing_Click(); });
    undo_->setShortcut(QKeySequence::Undo);
    redo_->setShortcut(QKeySequence::Redo);
    auto* steps = new QHBoxLayout;
    steps->addWidget(undo_);
    steps->addWidget(redo_);
    column->addWidget(outlines_);
    column->addWidget(protect_);
    column->addWidget(brush_);
    column->addLayout(steps);
    column->addWidget(nothing_);
    column->addStretch(1);
    return column;
}

QLayout* MakePaintableDialog::MakeButtons() {
    auto* row = new QHBoxLayout;
    const auto zoom = [this, row](const char* name, const QString& text, auto step) {
        row->addWidget(MakeButton(name, text, step));
    };
    zoom("ZoomIn", tr("Zoom &In"), [this] { view_->ZoomIn(); });
    zoom("ZoomOut", tr("Zoom O&ut"), [this] { view_->ZoomOut(); });
    zoom("ZoomFit", tr("F&it"), [this] { view_->Fit(); });
    row->addStretch(1);
    QPushButton* ok = MakeButton("OkButton", tr("OK"), [this] {
        if (pending_) {
            pause_.stop();
            std::exchange(pending_, {})();
        }
        form_.OkButton_Click();
    });
    ok->setDefault(true);
    row->addWidget(ok);
    row->addWidget(
        MakeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); }));
    return row;
}

void MakePaintableDialog::ConnectView() {
    connect(view_, &CompareView::StrokeBegun, this,
            [this](bool marks) { form_.Stroke_Begin(marks); });
    connect(view_, &CompareView::StrokeMoved, this, [this](QPoint pixel) {
        const int size = form_.StippleSize();
        form_.Stroke_Over({(pixel.x() - 1) / size, (pixel.y() - 1) / size});
        view_->SetMarks(form_.Protected(), size);
    });
    connect(view_, &CompareView::StrokeEnded, this,
            [this] { Run([this] { form_.Stroke_End(); }); });
}

void MakePaintableDialog::Later(std::function<void()> change) {
    // Changes of another control that still wait come first.
    pending_ = [before = std::move(pending_), change = std::move(change)] {
        if (before) {
            before();
        }
        change();
    };
    pause_.start(kPauseMs);
}

void MakePaintableDialog::Mirror() {
    view_->SetPictures({ToImage(form_.Photo()), ToImage(form_.Before()), ToImage(form_.After())});
    view_->SetMarks(form_.Protected(), form_.StippleSize());
    MirrorSettings();
    MirrorFigures();
}

void MakePaintableDialog::MirrorSettings() {
    if (pending_) {
        return;  // what the painter turns is ahead of the form
    }
    const QList<QObject*> quiet = {smallest_, narrowest_, detail_, canvas_, brush_};
    for (QObject* control : quiet) {
        control->blockSignals(true);
    }
    const Settings& wish = form_.Wish();
    match_->setCurrentIndex(wish.Match == Matching::Plain ? 0 : 1);
    finalPaints_->setCurrentIndex(finalPaints_->findData(wish.FinalPaints));
    smallest_->setValue(wish.Limits.SmallestMm2);
    narrowest_->setValue(wish.Limits.NarrowestMm);
    detail_->setValue(wish.Detail);
    detailValue_->setNum(wish.Detail);
    canvas_->setValue(wish.CanvasCm);
    brush_->setValue(form_.Brush());
    for (QObject* control : quiet) {
        control->blockSignals(false);
    }
    outlines_->setChecked(form_.OutlinesOnly());
    undo_->setEnabled(form_.CanUndo());
    redo_->setEnabled(form_.CanRedo());
}

void MakePaintableDialog::MirrorFigures() {
    QStringList lines;
    for (const std::string& line : form_.FigureLines()) {
        lines << Text(line);
    }
    figures_->setText(lines.join("\n"));
    figures_->setAccessibleDescription(lines.join(". "));
}

}  // namespace vendrel
