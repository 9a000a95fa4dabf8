// The linker puts the functions below in the place of the allocator's, in the library and in this
// program.

#include "tests/memory/allocations.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

using namespace Allocations;

bool isRefused() {
    ++s_requests;
    if (s_left < 0) return false;
    if (s_left > 0) {
        --s_left;
        return false;
    }
    if (!s_staysOut) s_left = -1;
    return true;
}

void add(Usage& usage, long bytes) {
    usage.bytes += bytes;
    usage.peak = std::max(usage.peak, usage.bytes);
}

/// Counts a block that is there now, or with -1 one that goes.
void count(void* memory, long times) {
    std::size_t const size = malloc_usable_size(memory);
    long const bytes = times * static_cast<long>(size);
    add(s_usage, bytes);
    if (size < s_large) add(s_smallUsage, bytes);
}

}  // namespace

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker's names
void* __real_malloc(std::size_t size);
void* __real_realloc(void* old, std::size_t size);
void __real_free(void* memory);

void* __wrap_malloc(std::size_t size);
void* __wrap_malloc(std::size_t size) {
    void* const memory = isRefused() ? nullptr : __real_malloc(size);
    if (memory != nullptr) ++s_blocks;
    count(memory, 1);
    return memory;
}
void* __wrap_realloc(void* old, std::size_t size);
void* __wrap_realloc(void* old, std::size_t size) {
    if (isRefused()) return nullptr;
    count(old, -1);
    void* const memory = __real_realloc(old, size);
    count(memory != nullptr ? memory : old, 1);
    return memory;
}
void __wrap_free(void* memory);
void __wrap_free(void* memory) {
    if (memory != nullptr) --s_blocks;
    count(memory, -1);
    __real_free(memory);
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
}

void* operator new(std::size_t size) {
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return ::operator new(size); }
void* operator new(std::size_t size, std::nothrow_t const&) noexcept { return std::malloc(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
// Nothing asks for more alignment than any block has.
void* operator new(std::size_t size, std::align_val_t) { return ::operator new(size); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
