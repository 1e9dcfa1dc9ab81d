#pragma once

#include "shell/ui.h"

namespace vendrel {

/// Surroundings for work nobody watches: shows nothing, answers no.
class QuietUi : public Ui {
  public:
    explicit QuietUi(ScreenSize screen) : screen_(screen) {}

    void SetCaption(std::string_view /*caption*/) override {}
    void ReportProgress(int /*done*/, int /*total*/) override {}
    void SetPointer(Pointer /*pointer*/) override {}
    void ShowMessage(std::string_view /*title*/, std::string_view /*sentence*/) override {}
    bool Ask(std::string_view /*title*/, std::string_view /*question*/) override { return false; }
    void Yield() override {}
    void RefreshWorkFrame() override {}
    void ShowStep(int /*done*/, int /*total*/) override {}
    bool PutOnClipboard(const Surface& /*picture*/) override { return false; }
    void ShowFolder(const std::filesystem::path& /*folder*/) override {}
    void OpenForm(FormId /*form*/) override {}
    void CloseForm(FormId /*form*/) override {}
    ScreenSize Screen() const override { return screen_; }

  private:
    ScreenSize screen_;
};

}  // namespace vendrel
