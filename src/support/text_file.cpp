#include "support/text_file.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include "support/disk.h"
#include "support/error.h"
#include "support/utf8.h"

namespace vendrel {
namespace {

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

// Windows-1252 differs from Latin-1 in 0x80..0x9F only.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

std::string ToUtf8(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    if (IsUtf8(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80U] : byte);
    }
    return text;
}

std::string ReadTextFile(const std::filesystem::path& file) {
    const RegularFile in = OpenRegular(file);
    std::string bytes(static_cast<std::size_t>(in.Size), '\0');
    if (std::fread(bytes.data(), 1, bytes.size(), in.Stream.get()) != bytes.size()) {
        throw FileError(file, "cannot be read to its end. Check the disk and try again.");
    }
    return ToUtf8(bytes);
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
    }
    return lines;
}

}  // namespace vendrel
