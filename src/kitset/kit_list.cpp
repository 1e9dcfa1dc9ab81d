#include "kitset/kit_list.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "kitset/outputs.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::uintmax_t kLargestList = std::uintmax_t{1024} * 1024;  // ours have some kilobytes

std::string TextOf(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string TextIn(const Json& object, const char* name) {
    const auto found = object.is_object() ? object.find(name) : object.end();
    return object.is_object() && found != object.end() && found->is_string()
               ? found->get<std::string>()
               : std::string();
}

}  // namespace

const ListedFile* KitList::Find(OutputId output) const {
    const auto found = std::ranges::find(Files, output, &ListedFile::Output);
    return found == Files.end() ? nullptr : &*found;
}

// Sum and file stand side by side on a line of their own, so that sed can hand them to sha256sum.
std::string FormatKitList(const KitList& list, const KitPaths& paths) {
    const std::filesystem::path folder = paths.List().parent_path();
    std::string text = "{\n  \"kit\": " + TextOf(ToUtf8(paths.Kit().Text())) +
                       ",\n  \"mark\": " + TextOf(list.Mark) + ",\n  \"files\": [";
    const char* lead = "\n    ";
    for (const Output& output : AllOutputs()) {
        const ListedFile* const file = list.Find(output.Id);
        if (file == nullptr) {
            continue;
        }
        const Json line = {{"sha256", file->Sum},
                           {"file", ToUtf8(paths.File(output).lexically_relative(folder).string())},
                           {"output", output.Word},
                           {"mark", file->Mark}};
        text += lead + TextOf(line);
        lead = ",\n    ";
    }
    return text + "\n  ]\n}\n";
}

std::optional<KitList> ReadKitList(const std::filesystem::path& file) {
    std::error_code unreadable;
    const bool plausible = std::filesystem::is_regular_file(file, unreadable) &&
                           std::filesystem::file_size(file, unreadable) <= kLargestList;
    std::ifstream stream(file, std::ios::binary);
    const Json json = plausible && stream ? Json::parse(stream, nullptr, false) : Json();
    const std::string mark = TextIn(json, "mark");
    if (mark.empty() || !json.contains("files") || !json["files"].is_array()) {
        return std::nullopt;
    }
    KitList list{mark, {}};
    for (const Json& line : json["files"]) {
        const Output* const output = OutputNamed(TextIn(line, "output"));
        if (output != nullptr && list.Find(output->Id) == nullptr) {
            list.Files.push_back({output->Id, TextIn(line, "sha256"), TextIn(line, "mark")});
        }
    }
    return list;
}

}  // namespace vendrel
