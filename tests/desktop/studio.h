#pragma once

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <string>

#include "desktop/desktop.h"
#include "support/temp_folder.h"

namespace vendrel::test {

/// Waits for a message box, keeps its text and closes it.
class NextMessage {
  public:
    NextMessage() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                Text += box->text();
                box->accept();
            }
        });
        timer_.start(5);
    }
    QString Text;

  private:
    QTimer timer_;
};

/// The size at which a window comes on screen: one that grows there may be put into a corner.
class AsShown : public QObject {
  public:
    AsShown() { qApp->installEventFilter(this); }
    QSize Size;

  private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched) != nullptr) {
            Size = static_cast<QWidget*>(watched)->size();
        }
        return false;
    }
};

/// A program folder with one photo, Pictures/PBNLady.bmp, and what ships.
class Studio {
  public:
    Studio() {
        std::filesystem::create_directories(Files / "Pictures");
        std::filesystem::copy(Source() / "Pictures/PBNLady.bmp", Files / "Pictures");
    }

    [[nodiscard]] static std::filesystem::path Source() { return VENDREL_SOURCE_DIR; }
    [[nodiscard]] ProgramFolder Folder() const { return ProgramFolder(Files.Path(), Source()); }

    TempFolder Files;
};

/// Chooses a menu entry as a painter can: only when it is there and on.
inline bool Choose(MainWindow& window, const char* name) {
    auto* action = window.findChild<QAction*>(QString::fromLatin1(name));
    if (action == nullptr || !action->isVisible() || !action->isEnabled()) {
        return false;
    }
    action->trigger();
    return true;
}

template <class Widget>
Widget& Find(QWidget& parent, const char* name) {
    auto* widget = parent.findChild<Widget*>(QString::fromLatin1(name));
    Q_ASSERT(widget != nullptr);
    return *widget;
}

/// Load Photo, the first photo, OK.
inline bool LoadFirstPhoto(MainWindow& window) {
    if (!Choose(window, "LoadBMP")) {
        return false;
    }
    QWidget& chooser = *QApplication::activeModalWidget();
    Find<QListWidget>(chooser, "ImportFile").setCurrentRow(0);
    QTest::mouseClick(&Find<QPushButton>(chooser, "OKButton"), Qt::LeftButton);
    return !chooser.isVisible();
}

}  // namespace vendrel::test
