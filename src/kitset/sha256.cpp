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

struct FileSum::Context {
    int File = -1;
    sha256_ctx Sums{};
    off_t At = 0;
    bool Readable = true;
    std::vector<std::uint8_t> Block = std::vector<std::uint8_t>(kBlockBytes);
};

FileSum::FileSum(int file) : context_(std::make_unique<Context>()) {
    context_->File = file;
    sha256_init(&context_->Sums);
}

FileSum::~FileSum() = default;

void FileSum::AddRest() {
    Context& c = *context_;
    ssize_t got = 0;
    while ((got = pread(c.File, c.Block.data(), c.Block.size(), c.At)) > 0) {
        sha256_update(&c.Sums, static_cast<std::size_t>(got), c.Block.data());
        c.At += got;
    }
    c.Readable = c.Readable && got == 0;
}

std::string FileSum::Hex() {
    Sha256 sum{};
    sha256_digest(&context_->Sums, sum.size(), sum.data());
    return context_->Readable ? HexOf(sum) : std::string();
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
    FileSum sum(file);
    sum.AddRest();
    close(file);
    return sum.Hex();
}

}  // namespace vendrel
