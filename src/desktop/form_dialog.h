#pragma once

#include <QDialog>
#include <QPushButton>
#include <functional>

#include "desktop/view_context.h"

namespace vendrel {

/// A tool window over the main one. Escape and the title bar's button ask the form first.
class FormDialog : public QDialog {
    Q_OBJECT

  public:
    FormDialog(const ViewContext& context, QWidget* parent);

    /// Fills what the window's size follows from; called before it is on screen, where a window
    /// that grows may be put into a corner. Throws Error; then it stays closed.
    virtual void Prepare() {}
    /// Fills the form; called once the dialog is on screen.
    virtual void Load() {}
    /// Takes over what the form shows.
    virtual void Mirror() = 0;
    /// The session ends: what is not saved has to outlive it. Throws Error.
    virtual void KeepWork() {}
    void reject() override;

  protected:
    /// Measures everything anew, tabs that are not seen too, so that the window has its size before
    /// it is placed. For the end of Prepare.
    void SettleSize();
    void resizeEvent(QResizeEvent* event) override;
    /// What closing without a button means.
    virtual void Dismiss() = 0;
    /// Starts work through the edge.
    void Run(const std::function<void()>& work) { context_.Works.Run(work); }
    /// A button that starts `clicked` through the edge; Enter stays with the default button.
    [[nodiscard]] QPushButton* MakeButton(const char* name, const QString& text,
                                          const std::function<void()>& clicked);
    [[nodiscard]] const ViewContext& Context() const { return context_; }

  private:
    ViewContext context_;
};

}  // namespace vendrel
