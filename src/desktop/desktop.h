#pragma once

#include <QIcon>
#include <filesystem>
#include <optional>

#include "convert/photo_decoder.h"
#include "desktop/main_window.h"
#include "export/qt_exporter.h"
#include "support/program_folder.h"

namespace vendrel {

/// The program with its window: the work state, its surroundings and the views.
class Desktop {
  public:
    /// The decoder must live as long; without one only bitmaps can be chosen.
    explicit Desktop(ProgramFolder folder, const PhotoDecoder* decoder = nullptr);

    /// Starts up and shows the window; the status to end with when the program is over already.
    [[nodiscard]] std::optional<int> Start();
    [[nodiscard]] MainWindow& Window() { return window_; }
    [[nodiscard]] Workplace& Place() { return place_; }
    [[nodiscard]] MainForm& Form() { return form_; }

  private:
    ProgramFolder folder_;
    WorkState state_;
    Surfaces frames_;
    Menu menu_;
    QtUi ui_{state_.Chosen};
    Workplace place_{state_, frames_, menu_, ui_, folder_};
    QtExporter exporter_;
    MainForm form_;
    MainWindow window_{place_, form_, ui_};
};

/// The program's own, as windows and task bars show it.
[[nodiscard]] QIcon ProgramIcon();

/// The folder Vendrel among the user's documents, there or not.
[[nodiscard]] std::filesystem::path DocumentsFolder();

/// What main has.
struct MainWords {
    int& Count;
    char** Words;
};

/// Runs the window until it is closed, with a kit or photo opened unless its path is empty; gives
/// the exit status.
[[nodiscard]] int RunDesktop(MainWords words, const ProgramFolder& folder,
                             const PhotoDecoder& decoder, const std::filesystem::path& file);

}  // namespace vendrel
