#include "batch/order_folder.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "batch/order_columns.h"
#include "kitset/sha256.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"
#include "support/same_bytes.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Settings that are what their file holds.
constexpr auto kFileOptions = std::to_array<std::string_view>({"--like=", "--leaflet=", "--logo="});

// Of a painter's folder what a kit depends on.
std::vector<fs::path> DataFiles(const fs::path& root) {
    std::vector<fs::path> files;
    for (const char* folder : {"Data", "Data/catalogues", "templates"}) {
        for (const auto& entry : EntriesOf(root / folder)) {
            const std::string ending = ToLower(entry.path().extension().string());
            if ((ending == ".csv" || ending == ".txt") && IsFile(entry.path())) {
                files.push_back(fs::path(folder) / entry.path().filename());
            }
        }
    }
    std::ranges::sort(files);
    return files;
}

void AddText(RunningSha256& sum, std::string_view text) {
    sum.Add(std::as_bytes(std::span(text)));
    sum.Add(std::as_bytes(std::span(std::string_view("\0", 1))));
}

}  // namespace

BatchPlaces::BatchPlaces(fs::path root, const std::optional<Shard>& part)
    : root_(std::move(root)), name_("batch") {
    if (part) {
        name_ += "-" + std::to_string(part->Number) + "-of-" + std::to_string(part->Of);
    }
}

fs::path BatchPlaces::Of(const std::string& order) const {
    return Orders() / order;
}

fs::path BatchPlaces::Report() const {
    return Orders() / (name_ == "batch" ? "report.html" : name_ + " report.html");
}

fs::path BatchPlaces::Paints() const {
    return Orders() / (name_ == "batch" ? "paints.csv" : name_ + " paints.csv");
}

void CopyData(const fs::path& root, const fs::path& orderFolder) {
    for (const fs::path& file : DataFiles(root)) {
        if (!SameBytes(root / file, orderFolder / file)) {
            WriteWholeFile(orderFolder / file, ReadTextFile(root / file));
        }
    }
}

std::string SharedInputs(const fs::path& root, std::string_view version) {
    RunningSha256 sum;
    AddText(sum, version);
    for (const fs::path& file : DataFiles(root)) {
        AddText(sum, file.string());
        AddText(sum, SumOfFile(root / file));
    }
    return sum.Hex();
}

std::string InputsOf(const Order& order, const std::vector<std::string>& words,
                     std::string_view shared) {
    RunningSha256 sum;
    AddText(sum, shared);
    const std::string photo = SumOfFile(order.Photo);
    if (photo.empty()) {
        (void)OpenRegular(order.Photo);  // says why
        throw FileError(order.Photo, "cannot be read. Check the disk and copy it again.");
    }
    AddText(sum, photo);
    AddText(sum, order.Photo.filename().string());
    for (const std::string& word : words) {
        AddText(sum, word);
        const bool file = std::ranges::any_of(
            kFileOptions, [&](std::string_view option) { return word.starts_with(option); });
        AddText(sum, file ? SumOfFile(word.substr(word.find('=') + 1)) : "");
    }
    return sum.Hex();
}

}  // namespace vendrel
