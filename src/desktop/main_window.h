#pragma once

#include <QMainWindow>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSessionManager>
#include <QStackedWidget>
#include <map>
#include <memory>
#include <set>

#include "desktop/form_dialog.h"
#include "desktop/menu_actions.h"
#include "desktop/qt_ui.h"
#include "desktop/value_label.h"
#include "desktop/zoom_controls.h"

namespace vendrel {

/// The main window: mirrors menu, pictures and captions, and forwards what is chosen.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow(Workplace& place, MainForm& form, QtUi& ui);

    enum class Questions { Allowed, Forbidden };

    [[nodiscard]] Edge& Works() { return edge_; }
    /// Makes ready for the end of the session: what an open editor holds is kept first. False when
    /// the program had better stay.
    [[nodiscard]] bool MayEndSession(Questions questions);
    /// Ends the program without a question, with what an open editor holds kept.
    void EndAtOnce();
    /// Opens a kit or a photo.
    void Open(const std::filesystem::path& file);
    /// Takes over the state of menu, pictures, captions and open dialogs.
    void Mirror();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    [[nodiscard]] ZoomControls* MakeZoom();
    void MakeRecentKits();
    void ListRecentKits(QMenu& menu);
    void Arrange();
    [[nodiscard]] QWidget* MakeMiddle();
    void Choose(MenuId entry);
    void TakeIn(const QMimeData& arriving);
    void OpenForm(FormId form);
    void CloseForm(FormId form);
    void MirrorTitle();
    void MirrorPictures();
    void MirrorStatus();
    [[nodiscard]] bool MayEnd();
    void KeepOpenWork();
    void EndSession(QSessionManager& session);
    void End();

    Workplace& place_;
    MainForm& form_;
    QtUi& ui_;
    Edge edge_;
    MenuActions* actions_;
    QStackedWidget* pages_;
    ZoomView* workFrame_;
    ZoomView* captureFrame_;
    QWidget* emptyPage_;
    ZoomControls* zoom_;
    QPushButton* source_;
    ValueLabel* hint_;
    QProgressBar* progress_;
    bool ending_ = false;
    std::map<FormId, std::unique_ptr<FormDialog>> dialogs_;
    std::set<FormId> maximized_;  // when they were closed
};

}  // namespace vendrel
