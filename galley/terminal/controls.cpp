#include "galley/terminal/controls.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace galley {

namespace {

constexpr std::size_t s_blockSize = 64;

unsigned char byteAt(std::string_view text, std::size_t i) {
    return i < text.length() ? static_cast<unsigned char>(text[i]) : '\0';
}

constexpr bool isControl(unsigned char byte) {
    return byte < '\t' || (byte > '\r' && byte < ' ') || byte == 0x7F;
}

/// What may stand in a text.
enum class Controls { Any, None };

/// Whether all bytes of a block are ASCII, and none a control but white space.
template <Controls controls>
bool isPlain(unsigned char const (&block)[s_blockSize]) {
    // Loops of a fixed length over plain numbers become vector instructions.
    unsigned char suspects = 0;
    for (unsigned char const byte : block) {
        if (controls == Controls::None) {
            suspects = static_cast<unsigned char>(suspects | (byte & 0x80U));
        } else {
            auto const fromSpace = static_cast<unsigned char>(byte - ' ');
            auto const fromTab = static_cast<unsigned char>(byte - '\t');
            bool const isSuspect = fromSpace > '~' - ' ' && fromTab > '\r' - '\t';
            suspects = static_cast<unsigned char>(suspects | (isSuspect ? 1 : 0));
        }
    }
    return suspects == 0;
}

/// Bytes, from the beginning, of plain blocks.
template <Controls controls>
std::size_t plainLength(std::string_view text) {
    std::size_t length = 0;
    for (; length + s_blockSize <= text.length(); length += s_blockSize) {
        unsigned char block[s_blockSize];
        std::memcpy(block, text.data() + length, s_blockSize);
        if (!isPlain<controls>(block)) break;
    }
    return length;
}

template <Controls controls>
bool replace(String& text) {
    std::string_view const given = text.view();
    std::string replaced;
    /// Bytes that are in `replaced`.
    std::size_t done = 0;
    auto const replaceAt = [&](std::size_t i, std::size_t length) {
        if (replaced.empty()) replaced.reserve(given.length());
        replaced.append(given, done, i - done).append(length, '?');
        done = i + length;
    };
    for (std::size_t i = plainLength<controls>(given); i < given.length();) {
        unsigned char const byte = byteAt(given, i);
        std::size_t length = 1;
        if (byte < 0x80) {
            if (controls == Controls::Any && isControl(byte)) replaceAt(i, 1);
        } else if (std::size_t const whole = characterLength(given, i)) {
            length = whole;
            if (byte == 0xC2 && byteAt(given, i + 1) < 0xA0) replaceAt(i, whole);
        } else if (byte < 0xA0) {
            replaceAt(i, 1);
        }
        i += length;
        i += plainLength<controls>(given.substr(i));
    }
    if (done == 0) return false;
    replaced.append(given, done);
    text.assign(replaced);
    return true;
}

}  // namespace

// The Unicode Standard, table 3-7.
std::size_t characterLength(std::string_view text, std::size_t i) {
    unsigned char const lead = byteAt(text, i);
    std::size_t const length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    unsigned char const lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned char const highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    unsigned char const second = byteAt(text, i + 1);
    if (second < lowest || second > highest) return 0;
    for (std::size_t next = 2; next < length; ++next) {
        if ((byteAt(text, i + next) & 0xC0U) != 0x80) return 0;
    }
    return length;
}

bool replaceControls(String& text) { return replace<Controls::Any>(text); }

void repairCharacters(String& page) { replace<Controls::None>(page); }

}  // namespace galley
