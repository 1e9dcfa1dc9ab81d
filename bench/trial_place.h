#pragma once

#include <filesystem>
#include <sstream>
#include <string>

#include "cleanup/paint_pass.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "kit/kit_settings.h"
#include "kit/terminal_ui.h"
#include "startup/start_up.h"

namespace vendrel::bench {

/// The program as it makes a kit in a folder, seen by nobody.
class TrialPlace {
  public:
    TrialPlace(const std::filesystem::path& folder, const KitOptions& options)
        : folder_(folder, VENDREL_SOURCE_DIR), Place{State, Frames, menu_, ui_, folder_} {
        PrepareSettings(Place);
        (void)PrepareFolders(folder_);
        PreparePaints(Place);
        ApplySettings(Place, options);
    }
    TrialPlace(const TrialPlace&) = delete;
    TrialPlace& operator=(const TrialPlace&) = delete;

    /// A photo of the folder's Pictures.
    void Paint(const std::string& photo) {
        (void)ChoosePhoto(State, folder_, photo);
        (void)LoadNewPicture(Place);
        (void)ChangeToStipples_Click(Place);
        PaintItNow_Click(Place);
    }

  private:
    std::ostringstream nowhere_;
    TerminalUi ui_{nowhere_, Chatter::None, ScreenSize::FromPixels(1920, 1080)};
    Menu menu_;
    ProgramFolder folder_;

  public:
    WorkState State;
    Surfaces Frames;
    Workplace Place;
};

}  // namespace vendrel::bench
