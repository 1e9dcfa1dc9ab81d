#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/menu.h"
#include "shell/surfaces.h"
#include "shell/ui.h"
#include "shell/work_state.h"
#include "shell/workplace.h"
#include "support/program_folder.h"
#include "support/temp_folder.h"

namespace vendrel::test {

/// A Ui that writes down what it is asked and answers questions from `Answers` (yes when empty)
/// and `SaveAnswers` (discard when empty).
class Recorder : public Ui {
  public:
    void SetCaption(std::string_view caption) override { Captions.emplace_back(caption); }
    void ReportProgress(int done, int total) override { Progress.emplace_back(done, total); }
    void SetPointer(Pointer pointer) override { LastPointer = pointer; }
    void ShowMessage(std::string_view title, std::string_view sentence) override {
        Messages.emplace_back(title, sentence);
    }
    bool Ask(std::string_view title, std::string_view question) override {
        Questions.emplace_back(title, question);
        if (Answers.empty()) {
            return true;
        }
        const bool answer = Answers.front();
        Answers.erase(Answers.begin());
        return answer;
    }
    SaveAnswer AskToSave(std::string_view title, std::string_view question) override {
        Questions.emplace_back(title, question);
        if (SaveAnswers.empty()) {
            return SaveAnswer::Discard;
        }
        const SaveAnswer answer = SaveAnswers.front();
        SaveAnswers.erase(SaveAnswers.begin());
        return answer;
    }
    void Yield() override {
        if (StopAfterYields > 0 && --StopAfterYields == 0) {
            throw Stop{};
        }
    }
    void RefreshWorkFrame() override {}
    bool Watched() const override { return IsWatched; }
    void ShowStep(int /*done*/, int /*total*/) override {
        ++ShowSteps;
        Yield();
    }
    bool PutOnClipboard(const Surface& picture) override {
        Clipboard = picture;
        return true;
    }
    void ShowFolder(const std::filesystem::path& folder) override { ShownFolder = folder; }
    void OpenForm(FormId form) override { OpenForms.push_back(form); }
    void CloseForm(FormId form) override { std::erase(OpenForms, form); }
    ScreenSize Screen() const override { return Size; }

    [[nodiscard]] bool HasCaption(std::string_view caption) const {
        return std::find(Captions.begin(), Captions.end(), caption) != Captions.end();
    }

    std::vector<std::string> Captions;
    std::vector<std::pair<int, int>> Progress;
    std::vector<std::pair<std::string, std::string>> Messages;
    std::vector<std::pair<std::string, std::string>> Questions;
    std::vector<bool> Answers;
    std::vector<SaveAnswer> SaveAnswers;
    std::vector<FormId> OpenForms;
    Pointer LastPointer = Pointer::Normal;
    Surface Clipboard;
    std::filesystem::path ShownFolder;
    ScreenSize Size = ScreenSize::FromPixels(1920, 1080);
    bool IsWatched = false;
    int ShowSteps = 0;
    int StopAfterYields = 0;  // 0 never
};

/// A whole workplace in a temporary folder.
class Bench {
  public:
    explicit Bench(const std::filesystem::path& shipped = {}) : Program(Files.Path(), shipped) {}

    TempFolder Files;
    WorkState State;
    Surfaces Frames;
    Menu MainMenu;
    Recorder Screen;
    ProgramFolder Program;
    Workplace Place{State, Frames, MainMenu, Screen, Program};
};

}  // namespace vendrel::test
