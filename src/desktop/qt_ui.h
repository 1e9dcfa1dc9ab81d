#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QWidget>
#include <functional>

#include "desktop/show_pace.h"
#include "shell/settings.h"
#include "shell/ui.h"

namespace vendrel {

/// What a running piece of work wants shown beside its pictures.
struct WorkDisplay {
    QString Caption = QStringLiteral("Vendrel");
    int Done = 0;
    int Total = 0;  // 0: no progress to show
    bool ShowRuns = false;
};

/// The window as procedures know it. The main window lends it what it cannot do itself.
class QtUi : public Ui {
  public:
    /// What the main window does when asked.
    struct Host {
        std::function<void()> Mirror;
        std::function<void(FormId)> OpenForm;
        std::function<void(FormId)> CloseForm;
        QWidget* Window = nullptr;
    };

    explicit QtUi(const Settings& settings) : settings_(settings) {}
    void Attach(Host host) { host_ = std::move(host); }

    void SetCaption(std::string_view caption) override;
    void ReportProgress(int done, int total) override;
    void SetPointer(Pointer pointer) override;
    void ShowMessage(std::string_view title, std::string_view sentence) override;
    [[nodiscard]] bool Ask(std::string_view title, std::string_view question) override;
    [[nodiscard]] SaveAnswer AskToSave(std::string_view title, std::string_view question) override;
    void Yield() override;
    void RefreshWorkFrame() override {}  // every pump shows the picture as it is
    [[nodiscard]] bool Watched() const override;
    void ShowStep(int done, int total) override;
    [[nodiscard]] bool PutOnClipboard(const Surface& picture) override;
    void ShowFolder(const std::filesystem::path& folder) override;
    void OpenForm(FormId form) override { host_.OpenForm(form); }
    void CloseForm(FormId form) override { host_.CloseForm(form); }
    [[nodiscard]] ScreenSize Screen() const override { return kDrawingBoard; }

    /// Work starts: an earlier show's end does not count for it.
    void StartWork();
    /// Work is over, well or not.
    void FinishWork();
    /// The current show goes on without waiting and unseen.
    void EndShow() { pace_.EndShow(); }
    /// The next yield throws Stop.
    void RequestStop() { stopRequested_ = true; }
    [[nodiscard]] const WorkDisplay& Display() const { return display_; }

  private:
    void Pump();
    /// Messages stand over the tool window that is open, if any.
    [[nodiscard]] QWidget* MessageParent() const;

    const Settings& settings_;
    Host host_;
    WorkDisplay display_;
    ShowPace pace_;
    QElapsedTimer sincePump_;
    bool pumping_ = false;
    bool busyPointer_ = false;
    bool stopRequested_ = false;
};

}  // namespace vendrel
