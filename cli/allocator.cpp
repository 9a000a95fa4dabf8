// How jemalloc is set up in the tool. The library leaves this to its callers.

#include <sys/mman.h>

#include "base/hugePages.h"

namespace {

/// jemalloc takes memory in pieces that become larger as the heap does. All that a small page needs
/// lies in pieces of at most this size; huge pages, of which it would fill no more than a part,
/// would more than double its memory.
constexpr std::size_t s_smallPiece = std::size_t{4} << 20;

}  // namespace

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker's names
void* __real_mmap(void* address, std::size_t size, int protection, int flags, int file,
                  off_t offset) noexcept;

/// The linker puts it in the place of jemalloc's `mmap`.
void* __wrap_mmap(void* address, std::size_t size, int protection, int flags, int file,
                  off_t offset) noexcept;
void* __wrap_mmap(void* address, std::size_t size, int protection, int flags, int file,
                  off_t offset) noexcept {
    void* const piece = __real_mmap(address, size, protection, flags, file, offset);
    if (piece != MAP_FAILED && size > s_smallPiece) adviseHugePages(piece, size);
    return piece;
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
}
