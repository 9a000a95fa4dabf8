#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace galley::web {

/// Sixteen bytes that are looked at together.
using Bytes = unsigned char __attribute__((vector_size(16)));
/// Of each of them whether something holds: all bits, or none.
using Mask = signed char __attribute__((vector_size(16)));

inline Bytes bytesAt(char const* text) {
    Bytes bytes;
    std::memcpy(&bytes, text, sizeof(bytes));
    return bytes;
}

/// The first byte for which something holds, 16 without one.
inline unsigned firstOf(Mask mask) {
    std::uint64_t halves[2];
    std::memcpy(halves, &mask, sizeof(halves));
    std::uint64_t const half = halves[0] != 0 ? halves[0] : halves[1];
    bool const isLittle = std::endian::native == std::endian::little;
    int const zeros = isLittle ? std::countr_zero(half) : std::countl_zero(half);
    return (halves[0] != 0 ? 0U : 8U) + static_cast<unsigned>(zeros) / 8;
}

/// For how many it holds.
inline unsigned countOf(Mask mask) {
    constexpr std::uint64_t s_ones = 0x0101010101010101;
    std::uint64_t halves[2];
    std::memcpy(halves, &mask, sizeof(halves));
    std::uint64_t const sums = (halves[0] & s_ones) + (halves[1] & s_ones);
    return static_cast<unsigned>(sums * s_ones >> 56U);
}

/// Whether it holds for any.
inline bool isAny(Mask mask) {
    std::uint64_t halves[2];
    std::memcpy(halves, &mask, sizeof(halves));
    return (halves[0] | halves[1]) != 0;
}

}  // namespace galley::web
