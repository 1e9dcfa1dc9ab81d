#include "batch/kit_worker.h"

#include <nlohmann/json.hpp>
#include <system_error>

#include "kitset/kit_list.h"
#include "kitset/outputs.h"
#include "kitset/sha256.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

std::string LastLine(const std::string& text) {
    const std::vector<std::string> lines = SplitLines(text);
    return lines.empty() ? std::string() : lines.back();
}

std::string SentenceIn(const WorkerResult& result, const Json& said) {
    if (said.is_object() && said.contains("error")) {
        return said["error"].get<std::string>();
    }
    std::string sentence = LastLine(result.Err);
    constexpr std::string_view kName = "vendrel: ";
    if (sentence.starts_with(kName)) {
        sentence.erase(0, kName.size());
    }
    return sentence.empty() || result.Status > 128
               ? "The program that made this kit was ended (status " +
                     std::to_string(result.Status) + "). Check the memory and try again."
               : sentence;
}

// The list of the kit has the sums of its files; only the kit file is not in it.
std::string SumIn(const KitList& list, const std::string& output, const fs::path& file) {
    const Output* const known = OutputNamed(output);
    const ListedFile* const listed = known == nullptr ? nullptr : list.Find(known->Id);
    return listed == nullptr ? SumOfFile(file) : listed->Sum;
}

void TakeFiles(const Json& said, const fs::path& root, ManifestEntry& entry) {
    const KitList list = said.contains("kitList")
                             ? ReadKitList(said["kitList"].get<std::string>()).value_or(KitList{})
                             : KitList{};
    for (const auto& [output, place] : said.at("files").items()) {
        const fs::path file = place.get<std::string>();
        std::error_code unreadable;
        entry.Files.push_back({output,
                               file.lexically_normal().lexically_relative(root.lexically_normal()),
                               fs::file_size(file, unreadable), SumIn(list, output, file)});
        if (unreadable || entry.Files.back().Sum.empty()) {
            entry.Done = false;
            entry.Sentence =
                file.string() + ": was written but cannot be read again. Check the disk.";
        }
    }
}

}  // namespace

std::vector<std::string> KitWords(const Order& order, const std::vector<std::string>& settings,
                                  const fs::path& folder) {
    std::vector<std::string> words = {"kit"};
    words.insert(words.end(), settings.begin(), settings.end());
    words.insert(words.end(),
                 {"--folder=" + folder.string(), "--save-kit", "--replace-grid", "--json",
                  "--no-compare", "--needs", "--quiet", "--", order.Photo.string()});
    return words;
}

ManifestEntry EntryOf(const Order& order, const WorkerResult& result, const fs::path& root) {
    constexpr double kKilobytesPerMegabyte = 1024;
    const std::string line = LastLine(result.Out);
    const Json said = Json::parse(line, nullptr, false);
    ManifestEntry entry{.Order = order.Id,
                        .Done = result.Status == 0 && said.is_object() && said.contains("files"),
                        .Inputs = {},
                        .Photo = order.Photo.string()};
    entry.Seconds = result.Seconds;
    entry.PeakMegabytes = static_cast<double>(result.PeakKilobytes) / kKilobytesPerMegabyte;
    if (entry.Done) {
        entry.Figures = line;
        entry.Mark = said.value("mark", "");
        TakeFiles(said, root, entry);
    } else {
        entry.Sentence = SentenceIn(result, said);
    }
    return entry;
}

}  // namespace vendrel
