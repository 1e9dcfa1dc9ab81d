#pragma once

#include <cstdint>

#include "shell/ui.h"

namespace vendrel {

/// The surroundings of work in several parts: their progress is shown as one.
class WholeProgress : public Ui {
  public:
    explicit WholeProgress(Ui& ui) : ui_(ui) {}
    ~WholeProgress() override { ui_.ReportProgress(0, 0); }
    WholeProgress(const WholeProgress&) = delete;
    WholeProgress& operator=(const WholeProgress&) = delete;

    /// Part `part` of `parts` begins; parts count from 0.
    void Begin(int part, int parts) {
        part_ = part;
        parts_ = parts;
        ReportProgress(0, 1);
        Yield();
    }

    void ReportProgress(int done, int total) override {
        // A part that hides its own progress is over; the whole is not.
        const int inPart = total > 0 ? static_cast<int>(std::int64_t{kPart} * done / total) : kPart;
        ui_.ReportProgress(part_ * kPart + inPart, parts_ * kPart);
    }

    void SetCaption(std::string_view caption) override { ui_.SetCaption(caption); }
    void SetPointer(Pointer pointer) override { ui_.SetPointer(pointer); }
    void ShowMessage(std::string_view title, std::string_view sentence) override {
        ui_.ShowMessage(title, sentence);
    }
    [[nodiscard]] bool Ask(std::string_view title, std::string_view question) override {
        return ui_.Ask(title, question);
    }
    [[nodiscard]] SaveAnswer AskToSave(std::string_view title, std::string_view question) override {
        return ui_.AskToSave(title, question);
    }
    void Yield() override { ui_.Yield(); }
    void RefreshWorkFrame() override { ui_.RefreshWorkFrame(); }
    [[nodiscard]] bool Watched() const override { return ui_.Watched(); }
    void ShowStep(int done, int total) override { ui_.ShowStep(done, total); }
    [[nodiscard]] bool PutOnClipboard(const Surface& picture) override {
        return ui_.PutOnClipboard(picture);
    }
    void ShowFolder(const std::filesystem::path& folder) override { ui_.ShowFolder(folder); }
    void OpenForm(FormId form) override { ui_.OpenForm(form); }
    void CloseForm(FormId form) override { ui_.CloseForm(form); }
    [[nodiscard]] ScreenSize Screen() const override { return ui_.Screen(); }

  private:
    static constexpr int kPart = 1000;

    Ui& ui_;
    int part_ = 0;
    int parts_ = 1;
};

}  // namespace vendrel
