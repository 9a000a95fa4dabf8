#include "base/hugePages.h"

#include <sys/mman.h>

#include <cerrno>
#include <cstdint>

void adviseHugePages(void* memory, std::size_t size) noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): boundaries are those of
    // addresses
    std::size_t const before = reinterpret_cast<std::uintptr_t>(memory) % s_hugePageSize;
    std::size_t const touched = (before + size + s_hugePageSize - 1) / s_hugePageSize;
    int const formerError = errno;
    madvise(static_cast<char*>(memory) - before, touched * s_hugePageSize, MADV_HUGEPAGE);
    errno = formerError;
}
