#pragma once

#include "shell/ui.h"

namespace vendrel {

/// Counts the visible steps of a paint pass: every cell once when it is claimed by its area and
/// once when it is painted. Paces the show for somebody watching, else reports now and then.
class PassProgress {
  public:
    /// `total` visible steps of the whole pass.
    PassProgress(Ui& ui, int total) : ui_(ui), total_(total) {}
    ~PassProgress() { ui_.ReportProgress(0, 0); }
    PassProgress(const PassProgress&) = delete;
    PassProgress& operator=(const PassProgress&) = delete;

    [[nodiscard]] bool Watched() const { return ui_.Watched(); }
    void Step() {
        ++done_;
        if (ui_.Watched()) {
            ui_.ShowStep(done_, total_);
        } else if (done_ % kReportEvery == 0) {
            ui_.ReportProgress(done_, total_);
            ui_.Yield();
        }
    }

  private:
    static constexpr int kReportEvery = 512;
    Ui& ui_;
    int total_;
    int done_ = 0;
};

}  // namespace vendrel
