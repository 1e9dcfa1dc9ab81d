// Memory for the program's large rasters. A kit touches some 40 megabytes once each; fetched in
// pages of 4 kilobytes that costs as much time as making the kit, so blocks of megabytes ask for
// huge pages. Everything else comes from malloc, as without this file.

#include <sys/mman.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;
constexpr std::size_t kLarge = kHugePage / 2;

void* Allocate(std::size_t size) {
    if (size < kLarge) {
        return std::malloc(std::max<std::size_t>(size, 1));
    }
    const std::size_t whole = (size + kHugePage - 1) / kHugePage * kHugePage;
    void* const block = whole < size ? nullptr : std::aligned_alloc(kHugePage, whole);
    if (block != nullptr) {
        madvise(block, whole, MADV_HUGEPAGE);  // refused on systems without; nothing is lost
    }
    return block;
}

}  // namespace

void* operator new(std::size_t size) {
    for (;;) {
        if (void* const block = Allocate(size)) {
            return block;
        }
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) {
            throw std::bad_alloc();
        }
        handler();
    }
}

void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}
