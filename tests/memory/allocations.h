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

/// Bytes from which on a block is large, as are those of long texts.
inline constexpr std::size_t s_large = std::size_t{64} << 10;
/// Bytes in use in blocks that are not large, as the allocator rounds them.
inline long s_smallBytes = 0;
/// The most that they have been since this was set.
inline long s_smallPeak = 0;

}  // namespace Allocations
