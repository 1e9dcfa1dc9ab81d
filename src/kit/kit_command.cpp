#include "kit/kit_command.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kit/kit_jobs.h"
#include "kit/kit_keeping.h"
#include "kit/kit_photos.h"
#include "kit/kit_report.h"
#include "kit/kit_settings.h"
#include "kit/make_kit.h"
#include "kit/photo_lookup.h"
#include "kit/printable.h"
#include "kit/terminal_ui.h"
#include "kitfile/kit_photo.h"
#include "kitfile/kit_places.h"
#include "plan/leaflet.h"
#include "shelf/shelf_file.h"
#include "shell/workplace.h"
#include "startup/start_up.h"
#include "support/error.h"
#include "support/folders.h"

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
          decoder_(around.Decoder != nullptr ? *around.Decoder : noDecoder_),
          photos_(decoder_),
          ui_(around.Err, ChatterOf(options, around), options.Screen, around.StopAsked) {
        MakeFolder();
        MakeExporter();
        Workplace place{state_, frames_, menu_, ui_, folder_};
        PrepareSettings(place);
        PreparePaints(place);
        ApplySettings(place, options_);
        (void)ReadLeaflet(options_.Plan.Shop, {});
        (void)PrepareFolders(folder_);  // last: a wrong setting leaves nothing behind
        warnings_ = ui_.TakeMessages();
    }

    [[nodiscard]] bool Photo(const std::string& word) {
        try {
            Report(Make(word));
            return true;
        } catch (const std::exception& error) {
            ReportFailure(word, SentenceOf(error, word));
            return false;
        }
    }

  private:
    void MakeFolder() const {
        const std::filesystem::path oldest = NearestFolder(options_.Folder);
        std::error_code failure;
        if (std::filesystem::create_directories(options_.Folder, failure)) {
            failure = SyncFolders(options_.Folder, oldest);
        }
        std::error_code unreadable;
        if (!std::filesystem::is_directory(options_.Folder, unreadable)) {
            throw FileError(options_.Folder, "is no folder and cannot become one (" +
                                                 failure.message() + "). " +
                                                 AdviceOn(failure, "Name another."));
        }
    }

    // Fonts take a while to load, so only for what needs them.
    void MakeExporter() {
        if (around_.MakeExporter && options_.Outputs.Chosen.NeedsFonts()) {
            exporter_ = around_.MakeExporter();
        }
        RequireExporter(options_.Outputs, exporter_.get());
    }

    KitReport Make(const std::string& word) {
        WorkState state = state_;
        Surfaces frames;
        Menu menu = menu_;
        Workplace place{state, frames, menu, ui_, folder_};
        ui_.SetScreen(options_.Screen);
        KitReport report = IsKitName(word) ? MakeFromKit(place, FindKit(folder_, word))
                                           : MakeKit(place, WithLabels(options_), photos_,
                                                     FindPhoto(folder_, word), exporter_.get());
        report.Notes.insert(report.Notes.end(), warnings_.begin(), warnings_.end());
        for (std::string& message : ui_.TakeMessages()) {
            report.Notes.push_back(std::move(message));
        }
        return report;
    }

    // A kit made again keeps the labels that it has.
    [[nodiscard]] KitOptions WithLabels(KitOptions options) const {
        if (options.Plan.Symbols == SymbolStyle::Mine && options.Plan.Labels.empty()) {
            options.Plan.Labels = LabelsOnShelf(ReadShelf(folder_));
        }
        return options;
    }

    KitReport MakeFromKit(Workplace& place, const std::filesystem::path& file) {
        const KitOptions options =
            WithLabels(OptionsOver(options_, std::make_shared<const KitFile>(ReadKitFile(file))));
        RequireOwnTitle(options);
        ui_.SetScreen(options.Screen);
        const std::filesystem::path photo = PhotoOf(options, file);
        KitReport report;
        if (ChangesGrid(options)) {
            ApplySettings(place, options);
            report = MakeKit(place, options, photos_, photo, exporter_.get());
        } else {
            report = MakeKitAgain(place, options, photo, exporter_.get());
        }
        report.Photo = Shown(file);
        return report;
    }

    std::filesystem::path PhotoOf(const KitOptions& options, const std::filesystem::path& kit) {
        const KitPhoto& photo = options.From->Photo;
        if (!options.KitPhoto.empty()) {
            return TakeKitPhoto(folder_, decoder_, photo, FindPhoto(folder_, options.KitPhoto));
        }
        FoundPhoto found = FindKitPhoto(folder_, photo);
        if (!found.Problem.empty()) {
            throw FileError(kit, found.Problem + " Name it with --photo FILE.");
        }
        return found.File;
    }

    void Report(const KitReport& report) {
        ui_.ClearLine();
        if (options_.Json) {
            around_.Out << JsonLineOf(report) << std::endl;
        } else if (!options_.Quiet) {
            around_.Out << SummaryOf(report) << std::flush;
        }
    }

    void ReportFailure(const std::string& word, const std::string& sentence) {
        ui_.ClearLine();
        (void)ui_.TakeMessages();
        around_.Err << "vendrel: " << Printable(sentence) << std::endl;
        if (options_.Json) {
            around_.Out << JsonLineOf(word, sentence) << std::endl;
        }
    }

    const KitOptions& options_;
    const Surroundings& around_;
    ProgramFolder folder_;
    NoPhotoDecoder noDecoder_;
    const PhotoDecoder& decoder_;
    KitPhotos photos_;
    TerminalUi ui_;
    WorkState state_;
    Surfaces frames_;
    Menu menu_;
    std::unique_ptr<Exporter> exporter_;
    std::vector<std::string> warnings_;  // of the data that every kit is made with
};

KitOptions LikeItsKit(const KitOptions& options, const Surroundings& around) {
    const ProgramFolder folder(options.Folder, around.Shipped);
    return OptionsLike(options, ReadKitFile(FindKit(folder, options.Like.string())));
}

}  // namespace

void RequireSettings(const KitOptions& options, const Surroundings& around) {
    if (!options.Like.empty()) {
        return RequireSettings(LikeItsKit(options, around), around);
    }
    const ProgramFolder folder(options.Folder, around.Shipped);
    TerminalUi screen(around.Err, Chatter::None, options.Screen, around.StopAsked);
    WorkState state;
    Surfaces frames;
    Menu menu;
    Workplace place{state, frames, menu, screen, folder};
    PrepareSettings(place);
    PreparePaints(place);
    ApplySettings(place, options);
    (void)ReadLeaflet(options.Plan.Shop, {});
}

bool RunKit(const KitOptions& options, const Surroundings& around) {
    if (!options.Like.empty()) {
        return RunKit(LikeItsKit(options, around), around);
    }
    if (options.Jobs > 1 && options.Photos.size() > 1) {
        RequireSettings(options, around);
        return RunKitsSideBySide(options, around);
    }
    KitRun run(options, around);
    bool allMade = true;
    for (const std::string& photo : options.Photos) {
        allMade = run.Photo(photo) && allMade;
    }
    return allMade;
}

}  // namespace vendrel
