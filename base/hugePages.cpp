#include "base/hugePages.h"

#include <sys/mman.h>

#include <cerrno>
#include <memory>

void adviseHugePages(void* memory, std::size_t size) noexcept {
    void* first = memory;
    if (std::align(s_hugePageSize, s_hugePageSize, first, size) == nullptr) return;
    int const formerError = errno;
    madvise(first, size / s_hugePageSize * s_hugePageSize, MADV_HUGEPAGE);
    errno = formerError;
}
