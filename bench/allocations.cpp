// The program's definitions come before those of the allocator wherever the loader looks for one,
// so they see the library's requests, too. Each counts and passes the request on.

#include "bench/allocations.h"

#include <dlfcn.h>
#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> s_count;
std::atomic<std::size_t> s_live;
std::atomic<std::size_t> s_peak;

void raisePeak(std::size_t bytes) {
    std::size_t peak = s_peak;
    while (bytes > peak && !s_peak.compare_exchange_weak(peak, bytes)) continue;
}

/// Memory that a request has been answered with.
void* counted(void* memory) {
    ++s_count;
    raisePeak(s_live += malloc_usable_size(memory));
    return memory;
}

/// The definition of a function that would be used without this file.
template <class Function>
Function* next(char const* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void* orThrow(void* memory) {
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

std::size_t number(std::align_val_t alignment) { return static_cast<std::size_t>(alignment); }

}  // namespace

namespace Bench {

std::uint64_t allocationCount() { return s_count; }
std::size_t liveBytes() { return s_live; }
std::size_t peakBytes() { return s_peak; }
void restartPeak() { s_peak = s_live.load(); }

}  // namespace Bench

extern "C" {

void* malloc(std::size_t size) noexcept {
    static auto* const s_malloc = next<void*(std::size_t)>("malloc");
    return counted(s_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    static auto* const s_calloc = next<void*(std::size_t, std::size_t)>("calloc");
    return counted(s_calloc(count, size));
}

void* realloc(void* old, std::size_t size) noexcept {
    static auto* const s_realloc = next<void*(void*, std::size_t)>("realloc");
    std::size_t const before = malloc_usable_size(old);
    void* const memory = s_realloc(old, size);
    if (memory == nullptr && size > 0) return nullptr;
    // A block that grows where it is never exists twice.
    bool const moved = memory != old;
    if (!moved) s_live -= before;
    counted(memory);
    if (moved) s_live -= before;
    return memory;
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    static auto* const s_alignedAlloc = next<void*(std::size_t, std::size_t)>("aligned_alloc");
    return counted(s_alignedAlloc(alignment, size));
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
    return aligned_alloc(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
    void* const allocated = aligned_alloc(alignment, size);
    if (allocated == nullptr) return ENOMEM;
    *memory = allocated;
    return 0;
}

void free(void* memory) noexcept {
    static auto* const s_free = next<void(void*)>("free");
    s_live -= malloc_usable_size(memory);
    s_free(memory);
}
}

// The allocator may bring operators of its own, which do not call malloc by name.

void* operator new(std::size_t size) { return orThrow(std::malloc(size)); }
void* operator new[](std::size_t size) { return orThrow(std::malloc(size)); }
void* operator new(std::size_t size, std::nothrow_t const&) noexcept { return std::malloc(size); }
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept { return std::malloc(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return orThrow(aligned_alloc(number(alignment), size));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return orThrow(aligned_alloc(number(alignment), size));
}
void* operator new(std::size_t size, std::align_val_t alignment, std::nothrow_t const&) noexcept {
    return aligned_alloc(number(alignment), size);
}
void* operator new[](std::size_t size, std::align_val_t alignment, std::nothrow_t const&) noexcept {
    return aligned_alloc(number(alignment), size);
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
