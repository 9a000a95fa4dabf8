#pragma once

#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace CLI::XML {

/// What a byte is to running text. A NUL byte ends it.
class TextBytes {
public:
    /// `isspace` is asked once for every byte.
    TextBytes() {
        for (unsigned byte = 1; byte < kinds.size(); ++byte) {
            kinds[byte] = std::isspace(static_cast<int>(byte)) != 0 ? Space : Plain;
            hasHighSpace = hasHighSpace || (byte > ' ' && kinds[byte] == Space);
        }
        kinds[static_cast<unsigned char>('&')] = Ampersand;
    }
    bool isSpace(char c) const { return kindOf(c) == Space; }
    bool isPlain(char c) const { return kindOf(c) == Plain; }
    bool isOfWord(char c) const { return kindOf(c) >= Plain; }

    /// Passes over words without references between which there is one space, many bytes at a time.
    /// May end anywhere in a word.
    char const* skipPlainWords(char const* next, char const* end) const {
        if (hasHighSpace) return next;
        while (end - next > s_blockSize && isPlainBlock(next)) next += s_blockSize;
        return next;
    }

private:
    enum Kind : std::uint8_t { Nul, Space, Plain, Ampersand };

    Kind kindOf(char c) const { return kinds[static_cast<unsigned char>(c)]; }

    static constexpr std::ptrdiff_t s_blockSize = 16;
    /// Numbers that one instruction compares.
    using Block [[gnu::vector_size(s_blockSize)]] = unsigned char;

    /// Whether nothing in a block, and the byte behind it, has to be looked at.
    static bool isPlainBlock(char const* bytes) {
        Block shown;
        Block behind;
        std::memcpy(&shown, bytes, sizeof shown);
        std::memcpy(&behind, bytes + 1, sizeof behind);
        auto const found = (shown < ' ') | (shown == '&') | ((shown == ' ') & (behind <= ' '));
        std::array<std::uint64_t, 2> halves{};
        std::memcpy(halves.data(), &found, sizeof found);
        return (halves[0] | halves[1]) == 0;
    }

    std::array<Kind, 256> kinds{};
    /// White space is not only among the bytes up to ' '.
    bool hasHighSpace = false;
};

}  // namespace CLI::XML
