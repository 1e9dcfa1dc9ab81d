#include "desktop/kept_work_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

KeptWorkDialog::KeptWorkDialog(QWidget* parent)
    : QDialog(parent),
      list_(Named<QTreeWidget>("KeptList", tr("Kept work"))),
      hint_(new ValueLabel("KeptHint", tr("What can be done with it"))),
      throwAway_(MakeButton("ThrowAway", tr("&Throw Away…"))),
      restore_(MakeButton("Restore", tr("&Restore"))),
      close_(MakeButton("CloseKept", tr("Close"))) {
    setWindowTitle(tr("Kept Work"));
    setModal(true);
    list_->setColumnCount(3);
    list_->setHeaderLabels({tr("Last change"), tr("Photo"), tr("Difficulty")});
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    hint_->setWordWrap(true);
    auto* told =
        new QLabel(tr("This work ended without being saved. It is kept here until what "
                      "comes of it is saved, or you throw it away."));
    told->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(throwAway_);
    buttons->addStretch(1);
    buttons->addWidget(restore_);
    buttons->addWidget(close_);
    auto* all = new QVBoxLayout(this);
    all->addWidget(told);
    all->addWidget(list_, 1);
    all->addWidget(hint_);
    all->addLayout(buttons);
    restore_->setDefault(true);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
        if (row != nullptr) {
            emit Chosen(list_->indexOfTopLevelItem(row));
        }
    });
    connect(restore_, &QPushButton::clicked, this, &KeptWorkDialog::Restored);
    connect(throwAway_, &QPushButton::clicked, this, &KeptWorkDialog::ThrownAway);
    connect(close_, &QPushButton::clicked, this, &KeptWorkDialog::Closed);
    connect(new QShortcut(QKeySequence::Delete, this), &QShortcut::activated, throwAway_,
            &QPushButton::click);
    resize(560, 320);
}

QPushButton* KeptWorkDialog::MakeButton(const char* name, const QString& text) {
    auto* button = Named<QPushButton>(name, QString(text).remove(QLatin1Char('&')));
    button->setText(text);
    button->setAutoDefault(false);
    return button;
}

void KeptWorkDialog::Mirror(const KeptControls& shown) {
    if (rows_ != shown.Rows) {
        Fill(shown.Rows);
    }
    if (list_->indexOfTopLevelItem(list_->currentItem()) != shown.Row) {
        const QSignalBlocker quiet(list_);
        list_->setCurrentItem(list_->topLevelItem(shown.Row));
    }
    hint_->Show(Text(shown.Hint));
    restore_->setEnabled(shown.RestoreEnabled);
    throwAway_->setEnabled(shown.ThrowAwayEnabled);
    if (shown.Shown && !isVisible()) {
        open();
        list_->setFocus();
    } else if (!shown.Shown && isVisible()) {
        hide();
    }
}

void KeptWorkDialog::Fill(const std::vector<KeptRow>& rows) {
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const KeptRow& row : rows) {
        auto* item =
            new QTreeWidgetItem(list_, {Text(row.When), Text(row.Photo), Text(row.Difficulty)});
        item->setData(0, Qt::AccessibleTextRole,
                      tr("%1, %2, %3").arg(item->text(1), item->text(2), item->text(0)));
    }
    for (int column = 0; column + 1 < list_->columnCount(); ++column) {  // the last fills the list
        list_->resizeColumnToContents(column);
        list_->setColumnWidth(column, list_->columnWidth(column) + 24);
    }
    rows_ = rows;
}

}  // namespace vendrel
