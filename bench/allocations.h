#pragma once

#include <cstddef>
#include <cstdint>

/// What a program that contains allocations.cpp has asked of malloc and of operator new, the
/// library's own requests included.
namespace Bench {

/// Requests so far, with every realloc counted as one.
std::uint64_t allocationCount();
/// Bytes in use, as the allocator rounds them.
std::size_t liveBytes();
/// The most bytes that were in use at once since the last `restartPeak`.
std::size_t peakBytes();
void restartPeak();

}  // namespace Bench
