#include "paints/template_library.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "paints/template_file.h"
#include "support/error.h"
#include "support/folders.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kForbidden = "/\\:*?\"<>|";
constexpr std::size_t kLongestName = 100;

bool IsForbidden(char c) {
    return kForbidden.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ';
}

bool IsTaken(const ProgramFolder& folder, std::string_view name) {
    return std::ranges::any_of(ListTemplates(folder), [&](const std::string& other) {
        return SameIgnoringCase(other, name);
    });
}

void CheckSpelling(std::string_view name) {
    if (name.find_first_not_of(' ') == std::string_view::npos) {
        throw Error("A template needs a name. Type one.");
    }
    if (std::ranges::any_of(name, IsForbidden)) {
        throw Error(
            "A template's name cannot hold any of / \\ : * ? \" < > |. Choose another name.");
    }
    if (name.front() == '.' || name.front() == ' ' || name.back() == ' ' || name.back() == '.') {
        throw Error(
            "A template's name cannot begin or end with a dot or a blank. Choose another name.");
    }
    if (name.size() > kLongestName) {
        throw Error("A template's name can have 100 letters at most. Choose a shorter name.");
    }
}

}  // namespace

void CheckNewTemplateName(const ProgramFolder& folder, std::string_view name) {
    CheckSpelling(name);
    if (IsTaken(folder, name)) {
        throw Error("A template named \"" + std::string(name) +
                    "\" is there already. Choose another name.");
    }
}

std::string FreeTemplateName(const ProgramFolder& folder, std::string_view name) {
    std::string free(name);
    for (int number = 2; IsTaken(folder, free); ++number) {
        free = std::string(name) + " " + std::to_string(number);
    }
    return free;
}

std::string CleanTemplateName(std::string_view name) {
    std::string clean(name.substr(0, kLongestName));
    std::ranges::replace_if(clean, IsForbidden, ' ');
    const std::size_t first = clean.find_first_not_of(" .");
    if (first == std::string::npos) {
        return "Palette";
    }
    return clean.substr(first, clean.find_last_not_of(" .") - first + 1);
}

void RenameTemplate(PaintChoice& choice, const ProgramFolder& folder, std::string_view from,
                    std::string_view to) {
    CheckSpelling(to);
    if (from == to) {
        return;
    }
    // Only the case may change, unless another template has just that spelling.
    const std::vector<std::string> names = ListTemplates(folder);
    if (!SameIgnoringCase(from, to) || std::ranges::find(names, to) != names.end()) {
        CheckNewTemplateName(folder, to);
    }
    const fs::path file = TemplatePath(folder, from);
    std::error_code failure;
    fs::rename(file, file.parent_path() / (std::string(to) + ".csv"), failure);
    if (!failure) {
        failure = SyncFolder(file.parent_path());
    }
    if (failure) {
        throw FileError(file, "cannot be renamed (" + failure.message() + "). " +
                                  AdviceOn(failure, "Check that you may write in its folder."));
    }
    for (std::string* used : {&choice.SelectedTemplate, &choice.LastTemplate}) {
        if (*used == from) {
            *used = to;
        }
    }
}

void DeleteTemplate(PaintChoice& choice, WorkSettings& settings, const ProgramFolder& folder,
                    std::string_view name) {
    const fs::path file = TemplatePath(folder, name);
    std::error_code failure;
    if (!fs::remove(file, failure)) {
        throw FileError(file, "cannot be deleted (" +
                                  (failure ? failure.message() : std::string("it is not there")) +
                                  "). Look into the templates folder.");
    }
    if (choice.LastTemplate == name) {
        choice.LastTemplate.clear();
    }
    if (choice.SelectedTemplate == name) {
        choice.SelectedTemplate.clear();
        choice.TemplateMode = false;
        choice.TemplateLoaded = false;
        choice.MfgSelected = true;
        settings.FinalColors = settings.Chosen.FinalPaints;
    }
}

}  // namespace vendrel
