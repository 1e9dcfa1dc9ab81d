#include <sanitizer/allocator_interface.h>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

#include "fuzz/reader.h"
#include "support/error.h"

namespace vendrel::fuzz {
namespace {

constexpr std::size_t kEveryReading = std::size_t{2} * 1024 * 1024;  // blocks, tables

// What the reading holds now, and may hold: claims of a file are no reason to set memory aside.
std::size_t held = 0;
std::size_t allowed = 0;  // 0: nothing is read

[[noreturn]] void Find(const std::string& what) {
    allowed = 0;
    std::fprintf(stderr, "FIND: %s\n", what.c_str());
    __sanitizer_print_stack_trace();
    std::abort();
}

void Allocated(const volatile void* /*block*/, std::size_t size) {
    held += size;
    if (const std::size_t most = allowed; most != 0 && held > most) {
        allowed = 0;  // the sentence needs memory too
        Find("holds " + std::to_string(held) + " bytes where " + std::to_string(most) +
             " are justified");
    }
}

void Freed(const volatile void* block) {
    if (block != nullptr) {
        const std::size_t size = __sanitizer_get_allocated_size(const_cast<const void*>(block));
        held -= std::min(held, size);
    }
}

const std::filesystem::path& Place() {
    static const std::filesystem::path place = [] {
        const std::filesystem::path memory = "/dev/shm";
        const auto root =
            access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
        auto folder = root / ("vendrel-fuzz-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder / "Data");
        std::atexit([] { std::filesystem::remove_all(Place()); });
        return folder;
    }();
    return place;
}

}  // namespace

std::filesystem::path FileWith(std::string_view name, std::string_view bytes) {
    const auto file = Place() / name;
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
}

const ProgramFolder& Folder() {
    static const ProgramFolder folder(Place());
    return folder;
}

void Require(bool holds, const char* what) {
    if (!holds) {
        Find(what);
    }
}

}  // namespace vendrel::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
    (void)vendrel::fuzz::Folder();
    __sanitizer_install_malloc_and_free_hooks(vendrel::fuzz::Allocated, vendrel::fuzz::Freed);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vendrel::fuzz;
    held = 0;
    allowed = kEveryReading + size * kMemoryPerByte;
    try {
        Read({data, size});
    } catch (const vendrel::Error&) {
        // Refused with a sentence.
    } catch (const std::exception& other) {
        Find(std::string("no sentence: ") + other.what());
    }
    allowed = 0;
    return 0;
}
