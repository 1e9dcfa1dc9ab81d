#include "kitset/sha256.h"

#include <fcntl.h>
#include <nettle/sha2.h>
#include <unistd.h>

#include <vector>

namespace vendrel {
namespace {

static_assert(std::tuple_size_v<Sha256> == SHA256_DIGEST_SIZE);

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;  // stays in the second cache

std::string HexOf(const Sha256& sum) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string hex;
    for (const std::uint8_t byte : sum) {
        hex += kDigits[byte >> 4U];
        hex += kDigits[byte & 15U];
    }
    return hex;
}

}  // namespace

struct RunningSha256::Context {
    sha256_ctx Sums{};
};

RunningSha256::RunningSha256() : context_(std::make_unique<Context>()) {
    sha256_init(&context_->Sums);
}

RunningSha256::~RunningSha256() = default;

void RunningSha256::Add(std::span<const std::byte> bytes) {
    sha256_update(&context_->Sums, bytes.size(),
                  reinterpret_cast<const std::uint8_t*>(bytes.data()));
}

std::string RunningSha256::Hex() {
    Sha256 sum{};
    sha256_digest(&context_->Sums, sum.size(), sum.data());
    return HexOf(sum);
}

Sha256 Sha256Of(std::string_view bytes) {
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
    Sha256 sum{};
    sha256_digest(&context, sum.size(), sum.data());
    return sum;
}

std::string SumOfFile(const std::filesystem::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) {
        return {};
    }
    RunningSha256 sum;
    std::vector<std::byte> block(kBlockBytes);
    ssize_t got = 0;
    while ((got = read(file, block.data(), block.size())) > 0) {
        sum.Add(std::span(block).first(static_cast<std::size_t>(got)));
    }
    close(file);
    return got == 0 ? sum.Hex() : std::string();
}

}  // namespace vendrel
