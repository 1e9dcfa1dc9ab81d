// Turns stipple files into others that are read further than random bytes: single fields change,
// lines come, go and change places, and the counts of the first line follow them now and then.

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

using Lines = std::vector<std::string>;

constexpr std::array<const char*, 12> kNumbers = {"0",  "1",   "2",   "4",  "5",     "6",
                                                  "50", "255", "256", "-1", "32767", "32768"};

Lines LinesOf(const std::uint8_t* data, std::size_t size) {
    Lines lines(1);
    for (std::size_t i = 0; i < size; ++i) {
        lines.back() += static_cast<char>(data[i]);
        if (data[i] == '\n') {
            lines.emplace_back();
        }
    }
    return lines;
}

void ChangeField(std::string& line, std::minstd_rand& random) {
    std::vector<std::size_t> starts = {0};
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == ',') {
            starts.push_back(i + 1);
        }
    }
    const std::size_t at = starts[random() % starts.size()];
    const std::size_t end = std::min(line.find_first_of(",\r\n", at), line.size());
    line.replace(at, end - at, kNumbers[random() % kNumbers.size()]);
}

void ChangeLines(Lines& lines, std::minstd_rand& random) {
    const std::size_t at = random() % lines.size();
    const std::size_t other = random() % lines.size();
    switch (random() % 4) {
        case 0:
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), lines[other]);
            break;
        case 1:
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
            break;
        case 2:
            std::swap(lines[at], lines[other]);
            break;
        default:
            ChangeField(lines[at], random);
            break;
    }
}

// As many paints as there are lines with a quote, and the rest of the lines as the stipples.
void MakeTrue(Lines& lines, std::minstd_rand& random) {
    const auto paints = static_cast<std::size_t>(std::ranges::count_if(
        lines, [](const std::string& line) { return line.find('"') != std::string::npos; }));
    const std::size_t cells = lines.size() - std::min(lines.size(), paints + 2);
    const std::size_t across = 1 + random() % 6;
    lines[0] = std::to_string(paints) + ',' + std::to_string(across) + ',' +
               std::to_string(cells / across) + ",16\r\n";
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
    std::minstd_rand random(seed);
    if (random() % 4 == 0) {
        return LLVMFuzzerMutate(data, size, most);
    }
    Lines lines = LinesOf(data, size);
    for (unsigned changes = 1 + random() % 3; changes > 0 && !lines.empty(); --changes) {
        ChangeLines(lines, random);
    }
    if (!lines.empty() && random() % 2 == 0) {
        MakeTrue(lines, random);
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    size = std::min(most, text.size());
    std::copy_n(text.begin(), size, data);
    return size;
}
