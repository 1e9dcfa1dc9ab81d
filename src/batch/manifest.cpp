#include "batch/manifest.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "support/disk.h"
#include "support/error.h"
#include "support/folders.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

using Json = nlohmann::ordered_json;

Json JsonOf(const ManifestEntry& entry) {
    Json json = {{"order", entry.Order},     {"state", entry.Done ? "done" : "failed"},
                 {"inputs", entry.Inputs},   {"photo", entry.Photo},
                 {"seconds", entry.Seconds}, {"peakMegabytes", entry.PeakMegabytes}};
    if (!entry.Sentence.empty()) {
        json["sentence"] = entry.Sentence;
    }
    if (entry.Done) {
        json["mark"] = entry.Mark;
        json["files"] = Json::array();
        for (const ManifestEntry::File& file : entry.Files) {
            json["files"].push_back({{"output", file.Output},
                                     {"file", ToUtf8(file.Place.string())},
                                     {"bytes", file.Bytes},
                                     {"sha256", file.Sum}});
        }
        json["kit"] = Json::parse(entry.Figures, nullptr, false);
    }
    return json;
}

std::vector<ManifestEntry::File> FilesIn(const Json& json) {
    std::vector<ManifestEntry::File> files;
    for (const Json& file : json) {
        files.push_back({file.at("output").get<std::string>(), file.at("file").get<std::string>(),
                         file.at("bytes").get<std::uint64_t>(),
                         file.at("sha256").get<std::string>()});
    }
    return files;
}

ManifestEntry EntryOf(const Json& json) {
    ManifestEntry entry{.Order = json.at("order").get<std::string>(),
                        .Done = json.at("state").get<std::string>() == "done",
                        .Inputs = json.at("inputs").get<std::string>(),
                        .Photo = json.at("photo").get<std::string>()};
    entry.Sentence = json.value("sentence", "");
    entry.Mark = json.value("mark", "");
    entry.Seconds = json.value("seconds", 0.0);
    entry.PeakMegabytes = json.value("peakMegabytes", 0.0);
    if (entry.Done) {
        entry.Files = FilesIn(json.at("files"));
        entry.Figures = json.at("kit").dump();
    }
    return entry;
}

[[noreturn]] void FailToAdd(const std::filesystem::path& file) {
    const std::error_code failure(errno, std::generic_category());
    throw FileError(file, "cannot be written (" + failure.message() + "). " +
                              AdviceOn(failure, "Check that you may write there."));
}

}  // namespace

std::string FormatEntry(const ManifestEntry& entry) {
    return JsonOf(entry).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<ManifestEntry> ParseEntry(std::string_view line) {
    const Json json = Json::parse(line, nullptr, false);
    try {
        return json.is_object() ? std::optional(EntryOf(json)) : std::nullopt;
    } catch (const Json::exception&) {
        return std::nullopt;  // of another version or torn; the order is made again
    }
}

Manifest ReadManifest(const std::filesystem::path& file) {
    Manifest manifest;
    if (Stands(file)) {
        for (const std::string& line : SplitLines(ReadTextFile(file))) {
            if (auto entry = ParseEntry(line)) {
                const std::string order = entry->Order;
                manifest.insert_or_assign(order, std::move(*entry));
            }
        }
    }
    return manifest;
}

ManifestWriter::ManifestWriter(std::filesystem::path file)
    : file_(std::move(file)),
      descriptor_(open(file_.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, 0666)) {
    if (descriptor_ < 0) {
        FailToAdd(file_);
    }
    EndTornLine();
    (void)SyncFolder(file_.parent_path());
}

ManifestWriter::~ManifestWriter() {
    close(descriptor_);
}

// What a power cut left of a line must not swallow the next one.
void ManifestWriter::EndTornLine() {
    char last = '\n';
    const off_t size = lseek(descriptor_, 0, SEEK_END);
    if (size > 0 && pread(descriptor_, &last, 1, size - 1) == 1 && last != '\n' &&
        write(descriptor_, "\n", 1) != 1) {
        FailToAdd(file_);
    }
}

void ManifestWriter::Add(const ManifestEntry& entry) {
    const std::string line = FormatEntry(entry) + "\n";
    if (write(descriptor_, line.data(), line.size()) != static_cast<ssize_t>(line.size()) ||
        fsync(descriptor_) != 0) {
        FailToAdd(file_);
    }
}

std::string FormatManifest(const Manifest& manifest, std::string_view program) {
    const auto done =
        std::ranges::count_if(manifest, [](const auto& order) { return order.second.Done; });
    Json json = {{"program", program},
                 {"orders", manifest.size()},
                 {"done", done},
                 {"failed", static_cast<std::ptrdiff_t>(manifest.size()) - done},
                 {"kits", Json::array()}};
    for (const auto& [order, entry] : manifest) {
        json["kits"].push_back(JsonOf(entry));
    }
    return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace vendrel
