#include "desktop/shopping_dialog.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

constexpr double kLargestPotMl = 10'000;

QString KitText(const ShoppedKit& kit) {
    const QString text =
        QObject::tr("%1   %2 ml").arg(Text(kit.Needs.Title)).arg(kit.NeededMl(), 0, 'f', 1);
    return kit.Painted        ? QObject::tr("%1, painted").arg(text)
           : kit.File.empty() ? QObject::tr("%1, not saved").arg(text)
                              : text;
}

}  // namespace

ShoppingDialog::ShoppingDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports(), context.Form.Kits(),
            context.Form.Everything().Plan().Settings()),
      kits_(Named<QListWidget>("ShoppedKits", tr("Kits; a tick puts one on the list"))),
      remove_(MakeButton("RemoveKits", tr("&Remove"),
                         [this] { form_.RemoveKits_Click(ChosenKits()); })),
      painted_(MakeButton("IPaintedIt", tr("&I Painted It"), [this] { Painted(true); })),
      undo_(MakeButton("UndoPainted", tr("&Undo Painting"), [this] { Painted(false); })),
      all_(Named<QCheckBox>("ShowEnough", tr("Show what I have enough of, too"))),
      pot_(Named<QDoubleSpinBox>("PotOf", tr("Milliliters in a pot"))),
      table_(Named<ShoppingTable>("ShoppingTable", tr("Paints to buy, by set"))),
      summary_(new ValueLabel("ShoppingSummary", tr("To buy"))),
      told_(new ValueLabel("ShoppingTold", tr("What became of it"))) {
    setWindowTitle(tr("Shopping List"));
    auto* halves = new QSplitter;
    halves->addWidget(MakeKits());
    halves->addWidget(MakeList());
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setSizes({270, 830});
    auto* all = new QVBoxLayout(this);
    all->addWidget(halves, 1);
    all->addLayout(MakeEnd());
    resize(1120, 640);
}

QWidget* ShoppingDialog::MakeKits() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins({});
    column->addWidget(LabelFor(*kits_, tr("&Kits")));
    column->addWidget(kits_, 1);
    kits_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    kits_->setTextElideMode(Qt::ElideMiddle);
    kits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    kits_->installEventFilter(this);
    connect(kits_, &QListWidget::itemSelectionChanged, this, [this] { MirrorKits(); });
    connect(kits_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        const int kit = kits_->row(item);
        const bool counts = item->checkState() == Qt::Checked;
        // Later: the list is filled anew, and this is one of its lines.
        QMetaObject::invokeMethod(
            this, [this, kit, counts] { Run([&] { form_.Count_Click(kit, counts); }); },
            Qt::QueuedConnection);
    });
    auto* buttons = new QGridLayout;
    buttons->addWidget(MakeButton("AddKits", tr("&Add Kits…"), [this] { AddKits(); }), 0, 0);
    buttons->addWidget(remove_, 0, 1);
    buttons->addWidget(painted_, 1, 0);
    buttons->addWidget(undo_, 1, 1);
    column->addLayout(buttons);
    told_->WrapWhole();
    column->addWidget(told_);
    return part;
}

QWidget* ShoppingDialog::MakeList() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins({});
    column->addWidget(LabelFor(*table_, tr("&To buy")));
    column->addWidget(table_, 1);
    all_->setText(tr("Show what I have &enough of, too"));
    pot_->setRange(0, kLargestPotMl);
    pot_->setDecimals(1);
    pot_->setSpecialValueText(tr("not counted"));
    pot_->setSuffix(tr(" ml"));
    auto* row = new QHBoxLayout;
    row->addWidget(all_);
    row->addStretch(1);
    row->addWidget(LabelFor(*pot_, tr("&Pots of")));
    row->addWidget(pot_);
    column->addLayout(row);
    connect(all_, &QCheckBox::clicked, this,
            [this](bool all) { Run([&] { form_.ShowAll_Click(all); }); });
    connect(pot_, &QDoubleSpinBox::valueChanged, this,
            [this](double ml) { Run([&] { form_.Pot_Change(ml); }); });
    return part;
}

QLayout* ShoppingDialog::MakeEnd() {
    auto* row = new QHBoxLayout;
    row->addWidget(summary_, 1);
    saves_ = {MakeButton("SaveShoppingTable", tr("Save as &CSV…"),
                         [this] {
                             Save(tr("Shopping List as CSV"), QStringLiteral("shopping list.csv"),
                                  tr("Tables (*.csv)"),
                                  [this](const auto& file) { form_.SaveTable_Click(file); });
                         }),
              MakeButton("SaveShoppingPage", tr("Save as PD&F…"), [this] {
                  Save(tr("Shopping List as PDF"), QStringLiteral("shopping list.pdf"),
                       tr("PDF (*.pdf)"), [this](const auto& file) { form_.SavePage_Click(file); });
              })};
    for (QPushButton* save : saves_) {
        row->addWidget(save);
    }
    QPushButton* done = MakeButton("ShoppingDone", tr("Done"), [this] { form_.Done_Click(); });
    done->setDefault(true);
    row->addWidget(done);
    return row;
}

void ShoppingDialog::Mirror() {
    MirrorKits();
    table_->Follow(form_);
    table_->setColumnHidden(ShoppingTable::kPots, form_.PotMl() <= 0);
    summary_->Show(Text(form_.Summary()));
    told_->Show(Text(form_.Told()));
    all_->setChecked(form_.ShowsAll());
    const QSignalBlocker quiet(pot_);
    pot_->setValue(form_.PotMl());
}

void ShoppingDialog::MirrorKits() {
    const QSignalBlocker quiet(kits_);
    const std::vector<ShoppedKit>& kits = form_.Kits();
    while (kits_->count() > static_cast<int>(kits.size())) {
        delete kits_->takeItem(kits_->count() - 1);
    }
    for (int row = 0; row < static_cast<int>(kits.size()); ++row) {
        if (row == kits_->count()) {
            kits_->addItem(new QListWidgetItem);
            kits_->item(row)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                                       Qt::ItemIsUserCheckable);
        }
        const ShoppedKit& kit = kits[static_cast<std::size_t>(row)];
        kits_->item(row)->setText(KitText(kit));
        kits_->item(row)->setToolTip(Text(kit.File.string()));
        kits_->item(row)->setCheckState(kit.Counts ? Qt::Checked : Qt::Unchecked);
    }
    if (kits_->selectedItems().isEmpty() && kits_->count() > 0) {
        kits_->setCurrentRow(std::clamp(kits_->currentRow(), 0, kits_->count() - 1),
                             QItemSelectionModel::ClearAndSelect);
    }
    const std::vector<int> chosen = ChosenKits();
    const auto isPainted = [&kits](int kit) { return kits[static_cast<std::size_t>(kit)].Painted; };
    remove_->setEnabled(!chosen.empty());
    // Who ticks a painted kit again paints it once more.
    painted_->setEnabled(!chosen.empty() && std::ranges::none_of(chosen, [&](int kit) {
        return isPainted(kit) && !kits[static_cast<std::size_t>(kit)].Counts;
    }));
    undo_->setEnabled(!chosen.empty() && std::ranges::all_of(chosen, isPainted));
}

std::vector<int> ShoppingDialog::ChosenKits() const {
    std::vector<int> rows;
    for (const QListWidgetItem* item : kits_->selectedItems()) {
        rows.push_back(kits_->row(item));
    }
    std::ranges::sort(rows);
    return rows;
}

void ShoppingDialog::Painted(bool painted) {
    for (const int kit : ChosenKits()) {
        if (painted) {
            form_.Painted_Click(kit);
        } else {
            form_.UndoPainted_Click(kit);
        }
    }
}

void ShoppingDialog::AddKits() {
    const QStringList names = QFileDialog::getOpenFileNames(
        this, tr("Add Kits"), Text(Context().Place.Folder.Path("Kits").string()),
        tr("Kits (*.kit)"));
    std::vector<std::filesystem::path> files;
    for (const QString& name : names) {
        files.emplace_back(name.toStdString());
    }
    if (!files.empty()) {
        form_.AddKits_Click(files);
    }
}

void ShoppingDialog::Save(const QString& title, const QString& file, const QString& filter,
                          const std::function<void(const std::filesystem::path&)>& save) {
    const QString name = QFileDialog::getSaveFileName(this, title, file, filter);
    if (!name.isEmpty()) {
        save(std::filesystem::path(name.toStdString()));
    }
}

bool ShoppingDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == kits_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        remove_->click();
        return true;
    }
    return FormDialog::eventFilter(watched, event);
}

}  // namespace vendrel
