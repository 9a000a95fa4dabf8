#pragma once

#include <cstdint>
#include <limits>

/// `sum`, formed in 64 bits, brought into the limits of signed 32 bits: geometry saturates, it
/// never overflows.
constexpr std::int32_t saturate(std::int64_t sum) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (sum < Limits::min()) return Limits::min();
    if (sum > Limits::max()) return Limits::max();
    return static_cast<std::int32_t>(sum);
}
