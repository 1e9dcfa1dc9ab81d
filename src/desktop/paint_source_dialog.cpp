#include "desktop/paint_source_dialog.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr int kSourceQuietMs = 120;  // before the photo is tried again
constexpr QSize kSourcePreview(420, 320);
// The slider goes from "whatever helps a little" to "only what changes the picture", each step a
// fifth more.
constexpr int kWorthSteps = 40;
constexpr double kLeastWorth = 0.005;
constexpr double kWorthStep = 1.2;

double WorthAt(int position) {
    return position == 0 ? 0 : kLeastWorth * std::pow(kWorthStep, position - 1);
}

int PositionOf(double worth) {
    return worth < kLeastWorth
               ? 0
               : std::clamp(1 + static_cast<int>(std::lround(std::log(worth / kLeastWorth) /
                                                             std::log(kWorthStep))),
                            1, kWorthSteps);
}

}  // namespace

PaintSourceDialog::PaintSourceDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      sets_(Named<QRadioButton>("FromSets", tr("The chosen paint sets"))),
      template_(Named<QRadioButton>("FromTemplate", tr("A template"))),
      owned_(Named<QRadioButton>("FromOwned", tr("What I own"))),
      templates_(Named<QComboBox>("SourceTemplate", tr("Template"))),
      byEye_(Named<QCheckBox>("SourceByEye", tr("Match colors by eye"))),
      first_(Named<QCheckBox>("OwnedFirst", tr("What I own first"))),
      worth_(Named<QSlider>("BuyWorth", tr("What buying a paint must be worth"))),
      worthText_(Value("BuyWorthText")),
      most_(Named<QSpinBox>("BuyAtMost", tr("Paints to buy at most"))),
      preview_(Named<QLabel>("SourcePreview", tr("The photo with these paints"))),
      figures_(new ValueLabel("SourceFigures", tr("With these paints"))) {
    setWindowTitle(tr("Where Paints Come From"));
    auto* choices = new QVBoxLayout;
    choices->addWidget(MakeSources());
    choices->addWidget(MakeBuying());
    choices->addStretch(1);
    auto* halves = new QHBoxLayout;
    halves->addLayout(choices);
    halves->addWidget(MakeFigures(), 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(halves, 1);
    all->addLayout(MakeEnd());
    soon_.setSingleShot(true);
    soon_.setInterval(kSourceQuietMs);
    connect(&soon_, &QTimer::timeout, this, &PaintSourceDialog::Measure);
    resize(900, 460);
}

QWidget* PaintSourceDialog::MakeSources() {
    auto* frame = new QGroupBox(tr("Paints come from"));
    template_->setText(tr("A &template"));
    byEye_->setText(tr("Match colors by &eye"));
    auto* rows = new QVBoxLayout(frame);
    rows->addWidget(sets_);
    auto* row = new QHBoxLayout;
    row->addWidget(template_);
    row->addWidget(templates_, 1);
    rows->addLayout(row);
    rows->addWidget(owned_);
    rows->addWidget(byEye_);
    auto* shops = new QHBoxLayout;
    shops->addWidget(MakeButton("OpenMyPaints", tr("&My Paints…"),
                                [this] { Context().Place.Screen.OpenForm(FormId::MyPaints); }));
    shops->addStretch(1);
    rows->addLayout(shops);
    for (QRadioButton* source : {sets_, template_, owned_}) {
        connect(source, &QRadioButton::clicked, this, &PaintSourceDialog::Change);
    }
    connect(templates_, &QComboBox::activated, this, [this] {
        template_->setChecked(true);
        Change();
    });
    return frame;
}

QWidget* PaintSourceDialog::MakeBuying() {
    auto* frame = new QGroupBox(tr("Buying"));
    first_->setText(tr("What I own goes &first"));
    worth_->setOrientation(Qt::Horizontal);
    worth_->setRange(0, kWorthSteps);
    worth_->setPageStep(5);
    worth_->setMinimumWidth(220);
    most_->setRange(0, kMostToBuy);
    auto* rows = new QFormLayout(frame);
    rows->addRow(first_);
    rows->addRow(LabelFor(*worth_, tr("A paint must be &worth")), worth_);
    rows->addRow(QString(), worthText_);
    rows->addRow(LabelFor(*most_, tr("&Buy at most")), most_);
    connect(byEye_, &QCheckBox::clicked, this, &PaintSourceDialog::Change);
    connect(first_, &QCheckBox::clicked, this, &PaintSourceDialog::Change);
    connect(worth_, &QSlider::valueChanged, this, &PaintSourceDialog::Change);
    connect(most_, &QSpinBox::valueChanged, this, &PaintSourceDialog::Change);
    return frame;
}

QWidget* PaintSourceDialog::MakeFigures() {
    auto* frame = new QGroupBox(tr("What that makes of the photo"));
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setMinimumSize(kSourcePreview);
    figures_->WrapWhole();
    auto* column = new QVBoxLayout(frame);
    column->addWidget(preview_, 1);
    column->addWidget(figures_);
    return frame;
}

QLayout* PaintSourceDialog::MakeEnd() {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    QPushButton* accept =
        MakeButton("AcceptSource", tr("Accept"), [this] { form_.AcceptButton_Click(); });
    accept->setDefault(true);
    row->addWidget(accept);
    row->addWidget(
        MakeButton("CancelSource", tr("Cancel"), [this] { form_.CancelButton_Click(); }));
    return row;
}

void PaintSourceDialog::Load() {
    form_.Form_Load();
    soon_.start();
}

// My Paints was open over it, perhaps.
bool PaintSourceDialog::event(QEvent* event) {
    const bool handled = FormDialog::event(event);
    if (event->type() == QEvent::WindowActivate) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                Run([this] { form_.ReadOwned(); });
                soon_.start();
            },
            Qt::QueuedConnection);
    }
    return handled;
}

void PaintSourceDialog::Mirror() {
    const PaintSourceWish& wish = form_.Wish();
    const QSignalBlocker quiet[] = {QSignalBlocker(worth_), QSignalBlocker(most_)};
    sets_->setText(tr("The chosen &paint sets (%1)").arg(form_.SelectedSets().size()));
    owned_->setText(tr("What I &own (%1 paints)").arg(form_.OwnedCount()));
    sets_->setChecked(wish.From == PaintsFrom::Sets);
    template_->setChecked(wish.From == PaintsFrom::Template);
    owned_->setChecked(wish.From == PaintsFrom::Owned);
    byEye_->setChecked(wish.ByEye || (wish.From != PaintsFrom::Owned && wish.Buying.Asked));
    byEye_->setEnabled(wish.From == PaintsFrom::Owned || !wish.Buying.Asked);
    if (templates_->count() != static_cast<int>(form_.Templates().size())) {
        templates_->clear();
        for (const std::string& name : form_.Templates()) {
            templates_->addItem(Text(name));
        }
    }
    templates_->setCurrentText(Text(wish.Template));
    template_->setEnabled(!form_.Templates().empty());
    templates_->setEnabled(!form_.Templates().empty());
    const bool fits = wish.From != PaintsFrom::Owned;
    const bool buying = fits && wish.Buying.Asked;
    first_->setEnabled(fits);
    first_->setChecked(buying);
    worth_->setEnabled(buying);
    most_->setEnabled(buying);
    worth_->setValue(PositionOf(wish.Buying.Worth));
    most_->setValue(wish.Buying.MostToBuy);
    worthText_->setText(tr("at least %1 of seen difference").arg(wish.Buying.Worth, 0, 'f', 3));
    worthText_->setEnabled(buying);
}

void PaintSourceDialog::Change() {
    PaintSourceWish wish = form_.Wish();
    wish.From = sets_->isChecked()       ? PaintsFrom::Sets
                : template_->isChecked() ? PaintsFrom::Template
                                         : PaintsFrom::Owned;
    if (byEye_->isEnabled()) {
        wish.ByEye = byEye_->isChecked();
    }
    if (templates_->currentIndex() >= 0) {
        wish.Template = templates_->currentText().toStdString();
    }
    if (wish.From != PaintsFrom::Owned) {
        const bool moved = worth_->value() != PositionOf(wish.Buying.Worth);
        wish.Buying = {first_->isChecked(), moved ? WorthAt(worth_->value()) : wish.Buying.Worth,
                       most_->value()};
    }
    Run([&] { form_.Choose(wish); });
    soon_.start();
}

void PaintSourceDialog::Measure() {
    Run([this] {
        const auto figures = form_.Figures();
        if (!figures) {
            preview_->setPixmap({});
            figures_->Show(form_.OwnedCount() == 0
                               ? tr("Nothing is owned yet: tick your paints in My Paints.")
                               : tr("Load a photo to see what these paints make of it."));
            return;
        }
        preview_->setPixmap(QPixmap::fromImage(
            ToImage(figures->Picture)
                .scaled(preview_->size().expandedTo(kSourcePreview) * 0.95, Qt::KeepAspectRatio)));
        figures_->Show(tr("%1 paints: %2 owned, %3 to buy. Mean seen difference %4.")
                           .arg(figures->Paints)
                           .arg(figures->Paints - figures->ToBuy)
                           .arg(figures->ToBuy)
                           .arg(figures->Seen, 0, 'f', 2));
    });
}

}  // namespace vendrel
