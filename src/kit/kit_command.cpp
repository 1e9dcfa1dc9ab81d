#include "kit/kit_command.h"

#include <algorithm>
#include <exception>
#include <string>
#include <vector>

#include "forms/start_up.h"
#include "kit/kit_report.h"
#include "kit/kit_settings.h"
#include "kit/make_kit.h"
#include "kit/photo_lookup.h"
#include "kit/terminal_ui.h"
#include "shell/workplace.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

Chatter ChatterOf(const KitOptions& options, const Surroundings& around) {
    if (options.Quiet) {
        return Chatter::None;
    }
    return around.ErrIsTerminal ? Chatter::Progress : Chatter::Stages;
}

class KitRun {
  public:
    KitRun(const KitOptions& options, const Surroundings& around)
        : options_(options),
          around_(around),
          folder_(options.Folder, around.Shipped),
          ui_(around.Err, ChatterOf(options, around), options.Screen, around.StopAsked) {
        RefuseMissingFolder();
        Workplace place{state_, frames_, menu_, ui_, folder_};
        PrepareSettings(place);
        (void)PrepareFolders(place);
        PreparePaints(place);
        ApplySettings(place, options_);
    }

    [[nodiscard]] bool Photo(const std::string& word) {
        try {
            Report(Make(word));
            return true;
        } catch (const std::exception& error) {
            ReportFailure(word, error.what());
            return false;
        }
    }

  private:
    void RefuseMissingFolder() const {
        if (!std::filesystem::is_directory(options_.Folder)) {
            throw FileError(options_.Folder, "is no folder. Create it or name another.");
        }
    }

    KitReport Make(const std::string& word) {
        const std::filesystem::path photo = FindPhoto(folder_, word);
        RefuseSecond(photo);
        WorkState state = state_;
        Surfaces frames;
        Menu menu = menu_;
        Workplace place{state, frames, menu, ui_, folder_};
        KitReport report = MakeKit(place, options_, photo);
        for (std::string& message : ui_.TakeMessages()) {
            report.Notes.push_back(std::move(message));
        }
        return report;
    }

    // Its files would take the place of the first one's; letters of another case do not help, as
    // some disks do not tell them apart.
    void RefuseSecond(const std::filesystem::path& photo) {
        const std::string name = PictureNameOf(photo);
        if (std::any_of(names_.begin(), names_.end(), [&name](const std::string& other) {
                return SameIgnoringCase(name, other);
            })) {
            throw FileError(photo, "another photo of this run is named \"" + name +
                                       "\" too, and a kit is named up to the first dot. Rename one "
                                       "of them.");
        }
        names_.push_back(name);
    }

    void Report(const KitReport& report) {
        ui_.ClearLine();
        if (options_.Json) {
            around_.Out << JsonOf(report).Text() << std::endl;
        } else if (!options_.Quiet) {
            around_.Out << SummaryOf(report) << std::flush;
        }
    }

    void ReportFailure(const std::string& word, const char* sentence) {
        ui_.ClearLine();
        (void)ui_.TakeMessages();
        around_.Err << "vendrel: " << sentence << std::endl;
        if (options_.Json) {
            JsonObject object;
            object.Add("photo", word).Add("error", sentence);
            around_.Out << object.Text() << std::endl;
        }
    }

    const KitOptions& options_;
    const Surroundings& around_;
    ProgramFolder folder_;
    TerminalUi ui_;
    WorkState state_;
    Surfaces frames_;
    Menu menu_;
    std::vector<std::string> names_;
};

}  // namespace

bool RunKit(const KitOptions& options, const Surroundings& around) {
    KitRun run(options, around);
    bool allMade = true;
    for (const std::string& photo : options.Photos) {
        allMade = run.Photo(photo) && allMade;
    }
    return allMade;
}

}  // namespace vendrel
