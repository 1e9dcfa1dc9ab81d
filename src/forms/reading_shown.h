#pragma once

#include "convert/photo_decoder.h"
#include "shell/busy_pointer.h"
#include "shell/ui.h"

namespace vendrel {

/// Shows that a photo is being read as long as this lives: the busy pointer, and how far it is.
class ReadingShown {
  public:
    explicit ReadingShown(Ui& ui) : ui_(ui), pointer_(ui) {}
    ~ReadingShown() { ui_.ReportProgress(0, 0); }
    ReadingShown(const ReadingShown&) = delete;
    ReadingShown& operator=(const ReadingShown&) = delete;

    /// To be called while this lives. Throws Stop.
    [[nodiscard]] ReadProgress Progress() const {
        return [&ui = ui_](int percent) {
            ui.ReportProgress(percent, 100);
            ui.Yield();
        };
    }

  private:
    Ui& ui_;
    BusyPointer pointer_;
};

}  // namespace vendrel
