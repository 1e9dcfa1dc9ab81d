#pragma once

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "convert/bitmap_writer.h"
#include "kit/command_line.h"
#include "support/temp_folder.h"

namespace vendrel::test {

/// A small photo with soft and hard edges: a lit ball on a wall above a table.
inline Surface SmallPhoto(int width, int height, int shift = 0) {
    Surface photo(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int dx = x - width / 2 - shift;
            const int dy = y - height / 2;
            const bool ball = dx * dx + dy * dy < height * height / 9;
            const bool table = y > height * 2 / 3;
            const int light = 60 + 150 * x / width;
            photo.Set(x, y,
                      ball    ? Rgb(255 - 300 * (dy + height / 3) / height / 2, 80, 60)
                      : table ? Rgb(light / 2 + 40, light / 3 + 20, 20)
                              : Rgb(light / 2, light / 2 + 40, light));
        }
    }
    return photo;
}

/// A program folder of its own in which command lines are run.
class Studio {
  public:
    TempFolder Files;
    std::string Out;
    std::string Err;
    std::function<std::unique_ptr<Exporter>()> MakeExporter;
    const PhotoDecoder* Decoder = nullptr;

    explicit Studio(std::filesystem::path shipped = VENDREL_SOURCE_DIR)
        : shipped_(std::move(shipped)) {}

    void AddPhoto(const std::string& name, int shift = 0) const {
        WriteBitmap(Files / name, SmallPhoto(180, 120, shift));
    }
    /// `vendrel kit` in the folder, on a small screen so that tests stay quick.
    int Kit(std::vector<std::string> words) {
        words.insert(words.begin(), "kit");
        words.insert(words.end(), {"--folder", Files.Path().string(), "--screen", "480x400"});
        return Run(words);
    }
    int Run(const std::vector<std::string>& words) {
        std::ostringstream out;
        std::ostringstream err;
        const std::vector<std::string_view> views(words.begin(), words.end());
        const int status = RunCommandLine(views, {.Out = out,
                                                  .Err = err,
                                                  .Shipped = shipped_,
                                                  .Version = "1",
                                                  .Decoder = Decoder,
                                                  .MakeExporter = MakeExporter});
        Out = out.str();
        Err = err.str();
        return status;
    }
    [[nodiscard]] std::string Path(std::string_view name) const { return (Files / name).string(); }
    /// Every file below a folder, to see that nothing half-written is left.
    [[nodiscard]] std::vector<std::string> Names(std::string_view folder) const {
        std::vector<std::string> names;
        if (std::filesystem::exists(Files / folder)) {
            for (const auto& entry : std::filesystem::directory_iterator(Files / folder)) {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }

  private:
    std::filesystem::path shipped_;
};

/// A little-endian number of a bitmap's header.
inline std::int32_t HeaderNumber(const std::string& bitmap, std::size_t at) {
    std::int32_t number = 0;
    std::memcpy(&number, bitmap.data() + at, sizeof number);
    return number;
}

/// The whole number behind "name": in a JSON line, from the first place that `within` is found.
inline int Figure(const std::string& json, std::string_view within, std::string_view name) {
    const std::size_t from = json.find("\"" + std::string(within) + "\"");
    const std::string key = "\"" + std::string(name) + "\": ";
    const std::size_t at = json.find(key, from == json.npos ? 0 : from);
    return at == json.npos ? -1 : std::stoi(json.substr(at + key.size()));
}

}  // namespace vendrel::test
