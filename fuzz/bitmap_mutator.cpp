// Turns bitmaps into other bitmaps: fields of the header change to values that mean something, and
// the file grows or shrinks to what they promise, or nearly.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

struct Field {
    std::size_t At;
    std::size_t Bytes;
};

constexpr std::array<Field, 10> kFields = {{{10, 4},  // where the pixels start
                                            {14, 4},  // size of the header
                                            {18, 4},  // width
                                            {22, 4},  // height
                                            {28, 2},  // bits
                                            {30, 4},  // compression
                                            {46, 4},  // colors
                                            {54, 4},  // masks
                                            {58, 4},
                                            {70, 4}}};
constexpr std::array<std::uint32_t, 28> kValues = {
    0,    1,     2,      3,       4,          5,          6,          7,         8,   12,
    16,   24,    32,     40,      54,         56,         64,         108,       124, 255,
    1078, 32767, 0x7C00, 1 << 20, 0x7FFFFFFF, 0x80000000, 0xFFFF0000, 0xFFFFFFFF};
constexpr std::size_t kHeader = 14 + 40;

std::uint32_t NumberAt(const std::uint8_t* data, std::size_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, data + at, sizeof value);
    return value;
}

void SetField(std::uint8_t* data, std::minstd_rand& random) {
    const Field field = kFields[random() % kFields.size()];
    const std::uint32_t old = NumberAt(data, field.At);
    const std::uint32_t value =
        random() % 3 == 0 ? old + random() % 9 - 4 : kValues[random() % kValues.size()];
    std::memcpy(data + field.At, &value, field.Bytes);
}

// The bytes that the header promises, give or take a few at times.
std::size_t PromisedSize(const std::uint8_t* data, std::minstd_rand& random) {
    const std::uint64_t rowBytes =
        (std::uint64_t{NumberAt(data, 18)} * (NumberAt(data, 28) & 0xFFFFU) + 31) / 32 * 4;
    const std::uint64_t rows = NumberAt(data, 22);
    const std::uint64_t size = NumberAt(data, 10) + rowBytes * std::min<std::uint64_t>(rows, 4096);
    return std::min<std::uint64_t>(size + random() % 4 / 3 * (random() % 7) - random() % 2,
                                   1 << 20);
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
    std::minstd_rand random(seed);
    constexpr std::size_t kLongest = 14 + 124;
    if (size < kLongest || random() % 2 == 0) {
        size = LLVMFuzzerMutate(data, size, most);
    }
    if (size < kLongest || random() % 4 == 0) {
        return size;
    }
    data[0] = 'B';
    data[1] = 'M';
    SetField(data, random);
    const std::size_t promised = PromisedSize(data, random);
    if (random() % 2 == 0 && promised >= kHeader && promised <= most) {
        for (; size < promised; ++size) {
            data[size] = static_cast<std::uint8_t>(random());
        }
        size = promised;
    }
    return size;
}
