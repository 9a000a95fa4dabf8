#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "xml/render/Canvas.h"

namespace CLI::XML {

/// Cells are set and read this many at a time where they look alike: loops of a fixed length over
/// plain numbers become vector instructions.
constexpr std::size_t s_cellsInBlock = 16;

/// A cell as a number.
inline std::uint32_t bitsOf(Canvas::Byte cell) { return std::bit_cast<std::uint32_t>(cell); }

static_assert(std::endian::native == std::endian::little,
              "the byte shown is the lowest of a cell's four");

/// Sets a cell for each byte of `shown`, from `cells` on.
inline void setCells(Canvas::Byte* cells, std::string_view shown, unsigned attributeIndex) {
    std::uint32_t const look = bitsOf(Canvas::Byte::make(0, attributeIndex));
    while (shown.length() >= s_cellsInBlock) {
        std::uint32_t block[s_cellsInBlock];
        for (std::size_t i = 0; i < s_cellsInBlock; ++i) {
            block[i] = look | static_cast<unsigned char>(shown[i]);
        }
        std::memcpy(cells, block, sizeof block);
        cells += s_cellsInBlock;
        shown.remove_prefix(s_cellsInBlock);
    }
    for (char const c : shown) {
        *cells++ = Canvas::Byte::make(static_cast<unsigned char>(c), attributeIndex);
    }
}

/// Writes the bytes of one block of cells to `shown`. False, with `shown` undefined, where a cell
/// has other attributes than `attributeIndex` or shows nothing.
inline bool readBlock(Canvas::Byte const* cells, unsigned attributeIndex, char* shown) {
    std::uint32_t block[s_cellsInBlock];
    std::memcpy(block, cells, sizeof block);
    std::uint32_t const look = bitsOf(Canvas::Byte::make(0, attributeIndex));
    std::uint32_t difference = 0;
    std::uint32_t borrowed = 0;
    for (std::uint32_t const cell : block) {
        difference |= cell ^ look;
        borrowed |= (cell & 0xFF) - 1;
    }
    for (std::size_t i = 0; i < s_cellsInBlock; ++i) shown[i] = static_cast<char>(block[i]);
    // Only from 0 has the highest bit been borrowed.
    return difference <= 0xFF && borrowed <= 0xFF;
}

}  // namespace CLI::XML
