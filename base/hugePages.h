#pragma once

#include <cstddef>

#include "export.h"

/// Bytes of a huge page, and of its alignment.
inline constexpr std::size_t s_hugePageSize = std::size_t{2} << 20;

/// Asks the system for huge pages under the `size` bytes at `memory`, which nothing was written to
/// yet: for all that any of them is on, each of which takes one page fault in the place of 512.
/// What the heap has beside them on the first and the last one comes along, as it may: it is
/// advice. Where there are no huge pages nothing happens. `errno` stays as it is.
GALLEY_EXPORT void adviseHugePages(void* memory, std::size_t size) noexcept;

/// The same, at no cost for memory that is no larger than a huge page.
inline void preferHugePages(void* memory, std::size_t size) noexcept {
    if (size > s_hugePageSize) adviseHugePages(memory, size);
}
