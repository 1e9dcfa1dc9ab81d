#pragma once

#include <atomic>
#include <chrono>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "shell/ui.h"

namespace vendrel {

/// How much of the work the terminal shows.
enum class Chatter {
    None,     // nothing
    Stages,   // one line per stage, for logs
    Progress  // one line that is written over and over, for people
};

/// The stage a caption names, without the numbers and paints in it.
[[nodiscard]] std::string_view StageOf(std::string_view caption);

/// The surroundings of a run without a window. Messages are collected for the summary; questions
/// are answered with no, as nobody is there to say yes.
class TerminalUi : public Ui {
  public:
    /// `stopAsked` may be null; the work stops once it is set.
    TerminalUi(std::ostream& out, Chatter chatter, ScreenSize screen,
               const std::atomic<bool>* stopAsked = nullptr)
        : out_(out), chatter_(chatter), screen_(screen), stopAsked_(stopAsked) {}

    void SetCaption(std::string_view caption) override;
    void ReportProgress(int done, int total) override;
    void SetPointer(Pointer /*pointer*/) override {}
    void ShowMessage(std::string_view title, std::string_view sentence) override;
    [[nodiscard]] bool Ask(std::string_view /*title*/, std::string_view /*question*/) override {
        return false;
    }
    void Yield() override {
        if (stopAsked_ != nullptr && stopAsked_->load(std::memory_order_relaxed)) {
            throw Stop{};
        }
    }
    void RefreshWorkFrame() override {}
    void ShowStep(int /*done*/, int /*total*/) override {}
    [[nodiscard]] bool PutOnClipboard(const Surface& /*picture*/) override { return false; }
    void ShowFolder(const std::filesystem::path& /*folder*/) override {}
    void OpenForm(FormId /*form*/) override {}
    void CloseForm(FormId /*form*/) override {}
    /// The next kit is sized for this screen.
    void SetScreen(ScreenSize screen) { screen_ = screen; }
    [[nodiscard]] ScreenSize Screen() const override { return screen_; }

    /// Wipes the progress line, so that something else can be printed.
    void ClearLine();
    /// What ShowMessage was given since the last call.
    [[nodiscard]] std::vector<std::string> TakeMessages() { return std::exchange(messages_, {}); }

  private:
    void DrawLine(bool atOnce);
    void PrintStage();

    std::ostream& out_;
    Chatter chatter_;
    ScreenSize screen_;
    const std::atomic<bool>* stopAsked_;
    std::string caption_;
    std::string printed_;  // the caption a log shows last
    int percent_ = -1;
    bool lineShown_ = false;
    std::chrono::steady_clock::time_point lastDrawn_{};
    std::vector<std::string> messages_;
};

}  // namespace vendrel
