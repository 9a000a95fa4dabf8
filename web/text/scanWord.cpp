#include "web/text/scanWord.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "web/text/asciiBreaks.h"

namespace galley::web {

namespace {

constexpr std::uint64_t repeated(std::uint8_t byte) { return byte * 0x0101010101010101U; }

/// Bytes that nothing happens at.
constexpr auto s_isPlain = [] {
    std::array<bool, 256> isPlain = {};
    for (char c = '!'; c <= '~'; ++c) isPlain[static_cast<std::size_t>(c)] = !mayBreakAround(c);
    return isPlain;
}();

/// ASCII letters that eight bytes begin with, 0 to 8.
unsigned countLetters(char const* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof(word));
    constexpr std::uint64_t high = repeated(0x80);
    // With the upper bits away, no sum carries into the next byte.
    std::uint64_t const lower = (word | repeated(0x20)) & ~high;
    std::uint64_t const fromA = lower + repeated(0x80 - 'a');
    std::uint64_t const behindZ = lower + repeated(0x80 - 'z' - 1);
    std::uint64_t const others = (word | ~fromA | behindZ) & high;
    int const zeros = std::endian::native == std::endian::little ? std::countr_zero(others)
                                                                 : std::countl_zero(others);
    return static_cast<unsigned>(zeros) / 8;
}

}  // namespace

std::size_t scanPlain(std::string_view text, std::size_t from) {
    for (;;) {
        while (text.size() - from >= 8) {
            unsigned const count = countLetters(text.data() + from);
            from += count;
            if (count < 8) break;
        }
        if (from == text.size() || !s_isPlain[static_cast<unsigned char>(text[from])]) return from;
        ++from;
    }
}

}  // namespace galley::web
