#include "desktop/touch_up_areas_panel.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "desktop/text.h"

namespace vendrel {
namespace {

QCheckBox* Check(const char* name, const QString& text, const QString& hint, const EditorWork& work,
                 EditorHandler handler) {
    auto* check = EditorButton<QCheckBox>(name, text, hint);
    OnClick(check, work, handler);
    return check;
}

QHBoxLayout* RowOf(std::initializer_list<QWidget*> widgets, QWidget* wide = nullptr) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets) {
        row->addWidget(widget, widget == wide ? 1 : 0);
    }
    if (wide == nullptr) {
        row->addStretch(1);
    }
    return row;
}

}  // namespace

TouchUpAreasPanel::TouchUpAreasPanel(EditorWork work, QWidget* parent)
    : QWidget(parent),
      NextLoner(EditorButton<QPushButton>("NextLoner", tr("&Next loner"),
                                          tr("Go to the next loner (F3)"))),
      NextHard(EditorButton<QPushButton>("NextHard", tr("Ne&xt"),
                                         tr("Go to the next area that is hard to paint (F4)"))),
      work_(std::move(work)),
      outlines_(Check("Outlines", tr("&Outlines"), tr("Outlines of the printed areas (O)"), work_,
                      &TouchUpForm::Outlines_Click)),
      markHard_(Check("MarkHard", tr("Mar&k hard areas"),
                      tr("Mark areas too small or too narrow to paint"), work_,
                      &TouchUpForm::MarkHard_Click)),
      hard_(new ValueLabel("Hard", tr("Areas hard to paint"))),
      below_(Named<QSpinBox>("MergeBelow", tr("Merge areas below"))),
      unit_(Named<QComboBox>("MergeUnit", tr("Unit of merging"))),
      preview_(Check("MergePreview", tr("Previ&ew"), tr("Show what merging would change"), work_,
                     &TouchUpForm::MergePreview_Click)),
      mergeText_(new ValueLabel("MergeText", tr("What merging would do"))),
      merge_(EditorButton<QPushButton>("MergeAreas", tr("&Merge"),
                                       tr("Give small areas the paint beside them"), work_,
                                       &TouchUpForm::MergeAreas_Click)),
      blinkLoners_(Check("BlinkLoners", tr("Blink &loners"), tr("Blink loners"), work_,
                         &TouchUpForm::BlinkLoners_Click)),
      blinkPaint_(Check("BlinkPaint", tr("Blink &paint"), tr("Blink the chosen paint"), work_,
                        &TouchUpForm::BlinkPaint_Click)),
      loners_(new ValueLabel("Loners", tr("Loners"))),
      lowerLevel_(EditorButton("LowerLevel", QStringLiteral("\u2212"),
                               tr("Lower the clean-up level"), work_,
                               &TouchUpForm::LowerCleanLevel_Click)),
      raiseLevel_(EditorButton("RaiseLevel", QStringLiteral("+"), tr("Raise the clean-up level"),
                               work_, &TouchUpForm::RaiseCleanLevel_Click)),
      cleanLevel_(new ValueLabel("CleanLevel", tr("Clean-up level"))),
      cleanPreview_(new ValueLabel("CleanPreview", tr("What a clean-up would do"))),
      cleanUp_(EditorButton<QPushButton>("CleanUp", tr("Clean &up"), tr("Clean up"), work_,
                                         &TouchUpForm::CleanUp_Click)) {
    // A long text takes more lines rather than widening the window.
    for (ValueLabel* label : {hard_, mergeText_, loners_, cleanPreview_}) {
        label->WrapWhole();
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    for (QWidget* box : {MakePrinted(), MakeMerging(), MakeMarkers(), MakeCleanUp()}) {
        column->addWidget(box);
    }
    column->addStretch(1);
}

QWidget* TouchUpAreasPanel::MakePrinted() {
    auto* box = new QGroupBox(tr("Printed areas"));
    auto* column = new QVBoxLayout(box);
    column->addLayout(RowOf({outlines_, markHard_}));
    column->addLayout(RowOf({NextHard, hard_}, hard_));
    return box;
}

QWidget* TouchUpAreasPanel::MakeMerging() {
    auto* box = new QGroupBox(tr("Merge areas below"));
    below_->setRange(1, TouchUpAreas::kMostBelow);
    below_->setFocusPolicy(Qt::StrongFocus);
    unit_->addItems({tr("stipples"), tr("mm²")});
    connect(below_, &QSpinBox::valueChanged, this, &TouchUpAreasPanel::TellBelow);
    connect(below_->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this,
            &TouchUpAreasPanel::Typed);
    connect(unit_, &QComboBox::activated, this, &TouchUpAreasPanel::TellBelow);
    auto* column = new QVBoxLayout(box);
    column->addLayout(RowOf({below_, unit_, preview_, merge_}));
    column->addWidget(mergeText_);
    return box;
}

void TouchUpAreasPanel::TellBelow() {
    work_([this](TouchUpForm& form) {
        form.MergeBelow_Change(below_->value(), static_cast<AreaUnit>(unit_->currentIndex()));
    });
}

QWidget* TouchUpAreasPanel::MakeMarkers() {
    auto* box = new QGroupBox(tr("Markers"));
    auto* column = new QVBoxLayout(box);
    column->addLayout(RowOf({blinkLoners_, blinkPaint_}));
    column->addLayout(RowOf({NextLoner, loners_}, loners_));
    return box;
}

QWidget* TouchUpAreasPanel::MakeCleanUp() {
    auto* box = new QGroupBox(tr("Clean-up"));
    auto* column = new QVBoxLayout(box);
    column->addLayout(RowOf({cleanLevel_, lowerLevel_, raiseLevel_, cleanUp_}));
    column->addWidget(cleanPreview_);
    return box;
}

void TouchUpAreasPanel::Mirror(const TouchUpControls& shown, const AreaControls& areas) {
    outlines_->setChecked(areas.Outlines);
    markHard_->setChecked(areas.MarkHard);
    hard_->Show(Text(areas.HardText));
    const QSignalBlocker quiet(below_);
    below_->setValue(areas.Below);
    unit_->setCurrentIndex(static_cast<int>(areas.Unit));
    preview_->setChecked(areas.Preview);
    mergeText_->Show(Text(areas.MergeText));
    merge_->setEnabled(areas.MergeEnabled);
    loners_->Show(Text(shown.Loners));
    cleanLevel_->Show(tr("Level %1").arg(shown.CleanLevel));
    cleanPreview_->Show(Text(shown.CleanPreview));
    lowerLevel_->setEnabled(shown.LowerEnabled);
    raiseLevel_->setEnabled(shown.RaiseEnabled);
    cleanUp_->setEnabled(shown.CleanEnabled);
    blinkLoners_->setChecked(shown.BlinkLoners);
    blinkPaint_->setChecked(shown.BlinkPaint);
}

}  // namespace vendrel
