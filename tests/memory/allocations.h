#pragma once

#include <cstddef>

/// What a program that contains allocations.cpp, and in which the linker wraps the functions there,
/// asks of its allocator; and which requests are refused.
namespace Allocations {

/// Requests that succeed before one fails; negative: none fails.
inline long s_left = -1;
/// Whether all fail that follow the first.
inline bool s_staysOut = false;
/// Requests so far.
inline long s_requests = 0;
/// Blocks in use.
inline long s_blocks = 0;

/// Bytes in use, as the allocator rounds them.
struct Usage {
    long bytes = 0;
    /// The most that they have been since this was set.
    long peak = 0;
};
inline Usage s_usage;
/// Bytes from which on a block is large, as are those of long texts.
inline constexpr std::size_t s_large = std::size_t{64} << 10;
/// Of blocks that are not large.
inline Usage s_smallUsage;

}  // namespace Allocations
