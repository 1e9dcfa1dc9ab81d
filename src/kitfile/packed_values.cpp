#include "kitfile/packed_values.h"

#include <nettle/base64.h>
#include <zlib.h>

#include <cstdint>

namespace vendrel {
namespace {

constexpr std::size_t kBytesPerValue = 4;
constexpr std::size_t kLineLength = 100;

std::vector<std::uint8_t> BytesOf(std::span<const int> values) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(values.size() * kBytesPerValue);
    for (const int value : values) {
        const auto bits = static_cast<std::uint32_t>(value);
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<std::uint8_t>((bits >> shift) & 255U));
        }
    }
    return bytes;
}

std::vector<std::uint8_t> Compressed(const std::vector<std::uint8_t>& bytes) {
    uLongf size = compressBound(bytes.size());
    std::vector<std::uint8_t> packed(size);
    compress2(packed.data(), &size, bytes.data(), bytes.size(), Z_BEST_COMPRESSION);
    packed.resize(size);
    return packed;
}

std::optional<std::vector<std::uint8_t>> Decoded(const std::string& text) {
    base64_decode_ctx context;
    base64_decode_init(&context);
    std::vector<std::uint8_t> bytes(BASE64_DECODE_LENGTH(text.size()));
    std::size_t size = bytes.size();
    if (base64_decode_update(&context, &size, bytes.data(), text.size(), text.data()) == 0 ||
        base64_decode_final(&context) == 0) {
        return std::nullopt;
    }
    bytes.resize(size);
    return bytes;
}

}  // namespace

std::vector<std::string> PackValues(std::span<const int> values) {
    const std::vector<std::uint8_t> packed = Compressed(BytesOf(values));
    std::string text(BASE64_ENCODE_RAW_LENGTH(packed.size()), '\0');
    base64_encode_raw(text.data(), packed.size(), packed.data());
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size(); at += kLineLength) {
        lines.push_back(text.substr(at, kLineLength));
    }
    return lines;
}

std::optional<std::vector<int>> UnpackValues(const std::string& text, std::size_t count) {
    const auto packed = Decoded(text);
    std::vector<std::uint8_t> bytes(count * kBytesPerValue);
    uLongf size = bytes.size();
    if (!packed || uncompress(bytes.data(), &size, packed->data(), packed->size()) != Z_OK ||
        size != bytes.size()) {
        return std::nullopt;
    }
    std::vector<int> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::uint32_t bits = 0;
        for (std::size_t k = kBytesPerValue; k > 0; --k) {
            bits = bits << 8U | bytes[i * kBytesPerValue + k - 1];
        }
        values[i] = static_cast<int>(bits);
    }
    return values;
}

}  // namespace vendrel
