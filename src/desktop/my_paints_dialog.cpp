#include "desktop/my_paints_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/import_list_dialog.h"
#include "desktop/named.h"
#include "desktop/own_paint_dialog.h"
#include "desktop/paint_items.h"
#include "desktop/stickers_dialog.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

std::optional<Color> AskColor(QWidget& parent, Color first, const QString& title) {
    const QColor color =
        QColorDialog::getColor(QColor(RedOf(first), GreenOf(first), BlueOf(first)), &parent, title);
    return color.isValid() ? std::optional(Rgb(color.red(), color.green(), color.blue()))
                           : std::nullopt;
}

constexpr std::pair<int, int> kPaintColumnWidths[] = {
    {MyPaintsModel::Name, 230}, {MyPaintsModel::Set, 130},   {MyPaintsModel::Code, 80},
    {MyPaintsModel::Label, 56}, {MyPaintsModel::MlLeft, 64}, {MyPaintsModel::Pots, 50},
    {MyPaintsModel::Note, 120}};

}  // namespace

MyPaintsDialog::MyPaintsDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      model_(new MyPaintsModel(form_, this)),
      setList_(Named<QListWidget>("PaintSets", tr("Paint sets; a tick owns the whole set"))),
      words_(Named<QLineEdit>("MyPaintsWords", tr("Words of set, name, code, label or note"))),
      show_(Named<QComboBox>("MyPaintsShown", tr("Which paints are shown"))),
      order_(Named<QComboBox>("MyPaintsOrder", tr("Order of the paints"))),
      near_(MakeButton("MyPaintsNear", tr("&Nearest to a Color…"), [this] { PickNear(); })),
      undo_(MakeButton("MyPaintsUndo", tr("&Undo"), [this] { form_.Undo_Click(); })),
      table_(Named<QTreeView>("MyPaintsTable", tr("Paints; a tick says that you own one"))),
      summary_(new ValueLabel("MyPaintsSummary", tr("What you own"))) {
    setWindowTitle(tr("My Paints"));
    auto* halves = new QSplitter;
    halves->addWidget(MakeSets());
    halves->addWidget(MakeTable());
    halves->setStretchFactor(1, 1);
    halves->setSizes({250, 850});
    auto* all = new QVBoxLayout(this);
    all->addLayout(MakeSearch());
    all->addWidget(halves, 1);
    all->addLayout(MakeTools());
    all->addLayout(MakeEnd());
    auto* back = new QShortcut(QKeySequence::Undo, this);
    connect(back, &QShortcut::activated, undo_, &QPushButton::click);
    words_->setFocus();
    resize(1120, 680);
}

QWidget* MyPaintsDialog::MakeSets() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins({});
    column->addWidget(LabelFor(*setList_, tr("&Sets")));
    column->addWidget(setList_, 1);
    setList_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(setList_, &QListWidget::currentRowChanged, this, [this] { Search(); });
    connect(setList_, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem* item) { SetTicked(*item); });
    return part;
}

QLayout* MyPaintsDialog::MakeSearch() {
    words_->setPlaceholderText(tr("Search set, name, code or pigment, label, note"));
    words_->setClearButtonEnabled(true);
    show_->addItems({tr("All paints"), tr("My paints alone")});
    order_->addItems({tr("By set"), tr("By name"), tr("By hue")});
    auto* row = new QHBoxLayout;
    row->addWidget(words_, 1);
    row->addWidget(LabelFor(*show_, tr("Sho&w")));
    row->addWidget(show_);
    row->addWidget(LabelFor(*order_, tr("O&rder")));
    row->addWidget(order_);
    row->addWidget(near_);
    connect(words_, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(show_, &QComboBox::activated, this, [this] { Search(); });
    connect(order_, &QComboBox::activated, this, [this] { Search(); });
    return row;
}

QWidget* MyPaintsDialog::MakeTable() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins({});
    column->addWidget(LabelFor(*table_, tr("&Paints")));
    column->addWidget(table_, 1);
    table_->setModel(model_);
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setAlternatingRowColors(true);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    table_->installEventFilter(this);
    for (const auto& [field, width] : kPaintColumnWidths) {
        table_->setColumnWidth(field, width);
    }
    connect(model_, &MyPaintsModel::Ticked, this, &MyPaintsDialog::Tick, Qt::QueuedConnection);
    connect(
        model_, &MyPaintsModel::Typed, this,
        [this](int row, ShelfField field, const QString& text) {
            Run([&] { form_.Field_Change(row, field, text.toStdString()); });
        },
        Qt::QueuedConnection);
    return part;
}

QLayout* MyPaintsDialog::MakeTools() {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeButton("TickShown", tr("&Tick Chosen"),
                              [this] { form_.Own_Click(ChosenRows(), true); }));
    row->addWidget(MakeButton("UntickShown", tr("Unti&ck Chosen"),
                              [this] { form_.Own_Click(ChosenRows(), false); }));
    row->addWidget(MakeButton("MeasuredColor", tr("Co&lor…"), [this] { PickMeasured(); }));
    row->addWidget(undo_);
    row->addStretch(1);
    row->addWidget(MakeButton("AddOwnPaint", tr("&Add Paint of My Own…"), [this] { AddOwn(); }));
    row->addWidget(MakeButton("ImportPaints", tr("&Import List…"), [this] { ImportList(); }));
    row->addWidget(
        MakeButton("PrintStickers", tr("Pot La&bels as PDF…"), [this] { PrintStickers(); }));
    return row;
}

QLayout* MyPaintsDialog::MakeEnd() {
    auto* row = new QHBoxLayout;
    row->addWidget(summary_, 1);
    QPushButton* done = MakeButton("MyPaintsDone", tr("Save"), [this] { form_.Done_Click(); });
    done->setDefault(true);
    row->addWidget(done);
    row->addWidget(MakeButton("MyPaintsCancel", tr("Cancel"), [this] { form_.Cancel_Click(); }));
    return row;
}

void MyPaintsDialog::Load() {
    form_.Form_Load();
}

void MyPaintsDialog::Mirror() {
    const QModelIndex stood = table_->currentIndex();
    model_->Mirror();
    if (!table_->currentIndex().isValid() && model_->rowCount() > 0) {
        const int row = std::clamp(stood.row(), 0, model_->rowCount() - 1);
        table_->selectionModel()->setCurrentIndex(model_->index(row, 0),
                                                  QItemSelectionModel::NoUpdate);
    }
    MirrorSets();
    undo_->setEnabled(form_.CanUndo());
    summary_->Show(Text(form_.Summary()));
    near_->setText(search_.Near ? tr("&Nearest to This Color (Click to End)")
                                : tr("&Nearest to a Color…"));
    near_->setIcon(search_.Near ? SwatchIcon(*search_.Near) : QIcon());
}

void MyPaintsDialog::MirrorSets() {
    const QSignalBlocker quiet(setList_);
    const int chosen = std::max(setList_->currentRow(), 0);
    const std::vector<MyPaintsSet>& sets = form_.Sets();
    while (setList_->count() > static_cast<int>(sets.size()) + 1) {
        delete setList_->takeItem(setList_->count() - 1);
    }
    if (setList_->count() == 0) {
        setList_->addItem(tr("All sets"));
    }
    for (std::size_t i = 0; i < sets.size(); ++i) {
        const int row = static_cast<int>(i) + 1;
        if (row == setList_->count()) {
            setList_->addItem(new QListWidgetItem);
        }
        QListWidgetItem& item = *setList_->item(row);
        const MyPaintsSet& set = sets[i];
        item.setText(tr("%1   %2 of %3")
                         .arg(set.Name.empty() ? tr("(no set)") : Text(set.Name))
                         .arg(set.Owned)
                         .arg(set.Paints));
        item.setData(Qt::UserRole, Text(set.Name));
        item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item.setCheckState(set.Owned == 0            ? Qt::Unchecked
                           : set.Owned >= set.Paints ? Qt::Checked
                                                     : Qt::PartiallyChecked);
    }
    setList_->setCurrentRow(std::min(chosen, setList_->count() - 1));
}

void MyPaintsDialog::SetTicked(const QListWidgetItem& item) {
    const std::string set = item.data(Qt::UserRole).toString().toStdString();
    const bool owned = item.checkState() == Qt::Checked;
    // Later: the list is filled anew, and this is one of its lines.
    QMetaObject::invokeMethod(
        this, [this, set, owned] { Run([&] { form_.OwnSet_Click(set, owned); }); },
        Qt::QueuedConnection);
}

void MyPaintsDialog::Search() {
    search_.Text = words_->text().toStdString();
    search_.Set = setList_->currentRow() > 0
                      ? setList_->currentItem()->data(Qt::UserRole).toString().toStdString()
                      : std::string();
    search_.OwnedOnly = show_->currentIndex() == 1;
    search_.Order = static_cast<PaintOrderBy>(order_->currentIndex());
    Run([this] { form_.Search_Change(search_); });
}

void MyPaintsDialog::PickNear() {
    search_.Near = search_.Near
                       ? std::nullopt
                       : AskColor(*this, Rgb(128, 128, 128), tr("Nearest to Which Color?"));
    form_.Search_Change(search_);
    table_->scrollToTop();
}

void MyPaintsDialog::PickMeasured() {
    const int row = table_->currentIndex().row();
    if (row >= 0 && row < static_cast<int>(form_.Rows().size())) {
        const auto color =
            AskColor(*this, ColorOf(form_.Rows()[static_cast<std::size_t>(row)].Paint),
                     tr("Which Color Does It Have on Your Canvas?"));
        if (color) {
            form_.Color_Change(row, *color);
        }
    }
}

std::vector<int> MyPaintsDialog::ChosenRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::ranges::sort(rows);
    return rows;
}

void MyPaintsDialog::Tick(int row, bool owned) {
    std::vector<int> rows = ChosenRows();
    if (std::ranges::find(rows, row) == rows.end()) {
        rows = {row};
    }
    Run([&] { form_.Own_Click(rows, owned); });
}

// One that is not owned makes it a tick for all.
void MyPaintsDialog::TickChosen() {
    std::vector<int> rows = ChosenRows();
    if (rows.empty() && table_->currentIndex().isValid()) {
        rows = {table_->currentIndex().row()};
    }
    const bool all = std::ranges::all_of(
        rows, [this](int row) { return form_.Rows()[static_cast<std::size_t>(row)].Owned; });
    Run([&] { form_.Own_Click(rows, !all); });
}

bool MyPaintsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space &&
        static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier) {
        TickChosen();
        return true;
    }
    return FormDialog::eventFilter(watched, event);
}

void MyPaintsDialog::AddOwn() {
    OwnPaintDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        form_.AddOwn_Click(dialog.Paint());
    }
}

void MyPaintsDialog::ImportList() {
    const QString file = QFileDialog::getOpenFileName(this, tr("Import a List of Paints"), {},
                                                      tr("Lists (*.csv *.txt *.tsv);;All (*)"));
    if (file.isEmpty()) {
        return;
    }
    form_.ReadList_Click(std::filesystem::path(file.toStdString()));
    ImportListDialog dialog(form_.Proposals(), Context().Place.State->MasterColors, this);
    if (dialog.exec() == QDialog::Accepted) {
        form_.TakeList_Click(dialog.Taken());
    }
}

void MyPaintsDialog::PrintStickers() {
    StickersDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Pot Labels as PDF"), QStringLiteral("pot labels.pdf"), tr("PDF (*.pdf)"));
    if (!file.isEmpty()) {
        Context().Form.Exports().WriteStickers(StickersOf(form_.Owned()), dialog.Sheet(),
                                               dialog.Used(),
                                               std::filesystem::path(file.toStdString()));
    }
}

}  // namespace vendrel
