#include "desktop/list_box.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace vendrel {
namespace {

QStringList EntriesOf(const QListWidget& list) {
    QStringList entries;
    for (int row = 0; row < list.count(); ++row) {
        entries.append(list.item(row)->text());
    }
    return entries;
}

// The first arrow key in a list where nothing is chosen chooses the row the keyboard stands on.
class ArrowChooses : public QObject {
  public:
    explicit ArrowChooses(QListWidget& list) : QObject(&list), list_(list) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && list_.selectedItems().isEmpty() &&
            list_.count() > 0) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Down || key == Qt::Key_Up) {
                list_.setCurrentRow(std::max(list_.currentRow(), 0),
                                    QItemSelectionModel::ClearAndSelect);
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QListWidget& list_;
};

class EnterTakes : public QObject {
  public:
    EnterTakes(QListWidget& list, std::function<void()> taken)
        : QObject(&list), list_(list), taken_(std::move(taken)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && !list_.selectedItems().isEmpty()) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                taken_();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QListWidget& list_;
    std::function<void()> taken_;
};

}  // namespace

void MirrorList(QListWidget& list, const std::vector<std::string>& entries, int index) {
    const QSignalBlocker quiet(list);
    QStringList wanted;
    for (const std::string& entry : entries) {
        wanted.append(Text(entry));
    }
    // Refilling would lose the scroll position.
    if (EntriesOf(list) != wanted) {
        list.clear();
        list.addItems(wanted);
    }
    if (index < 0) {
        list.clearSelection();
    } else {
        list.setCurrentRow(index);
    }
}

void OnChosen(QListWidget& list, const std::function<void(int)>& chosen) {
    list.installEventFilter(new ArrowChooses(list));
    // Not currentRowChanged: that also fires when the keyboard merely reaches the list.
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [&list, chosen] {
        if (!list.selectedItems().isEmpty()) {
            chosen(list.row(list.selectedItems().front()));
        }
    });
}

void OnTaken(QListWidget& list, const std::function<void()>& taken) {
    list.installEventFilter(new EnterTakes(list, taken));
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &list, taken);
}

}  // namespace vendrel
