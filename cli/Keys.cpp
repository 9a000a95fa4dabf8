#include "cli/Keys.h"

#include <cstddef>

namespace {

struct Entry {
    std::string_view bytes;
    Key key;
};

// What xterm, the console of Linux and those like them send; the letters are those of less.
constexpr Entry s_keys[] = {
    {"\x1b[A", Key::Up},      {"\x1bOA", Key::Up},    {"k", Key::Up},
    {"\x1b[B", Key::Down},    {"\x1bOB", Key::Down},  {"j", Key::Down},
    {"\x1b[5~", Key::PageUp}, {"b", Key::PageUp},     {"\x1b[6~", Key::PageDown},
    {" ", Key::PageDown},     {"\x1b[H", Key::Home},  {"\x1bOH", Key::Home},
    {"\x1b[1~", Key::Home},   {"\x1b[7~", Key::Home}, {"g", Key::Home},
    {"\x1b[F", Key::End},     {"\x1bOF", Key::End},   {"\x1b[4~", Key::End},
    {"\x1b[8~", Key::End},    {"G", Key::End},        {"q", Key::Quit},
};

/// No key has more bytes; a sequence that does is none.
constexpr std::size_t s_longest = 32;

bool isBetween(char c, char first, char last) { return c >= first && c <= last; }

/// Bytes of the key at the beginning of `bytes`, which are not empty; 0 where it has not ended. A
/// sequence is an introducer, parameters and a final byte (ECMA-48, 5.4).
std::size_t keyLength(std::string_view bytes) {
    if (bytes[0] != '\x1b') return 1;
    if (bytes.length() == 1) return 0;
    // The key Escape by itself.
    if (bytes[1] != '[' && bytes[1] != 'O') return 1;
    // The console has function keys with a second bracket.
    std::size_t end = bytes.substr(1, 2) == "[[" ? 3 : 2;
    while (end < bytes.length() && isBetween(bytes[end], ' ', '?')) ++end;
    if (end == bytes.length()) return end < s_longest ? 0 : end;
    // What cannot belong to it begins something else.
    return isBetween(bytes[end], '@', '~') ? end + 1 : end;
}

}  // namespace

std::vector<Key> KeyReader::read(std::string_view bytes) {
    std::vector<Key> keys;
    pending += bytes;
    std::string_view rest = pending;
    while (!rest.empty()) {
        std::size_t const length = keyLength(rest);
        if (length == 0) break;
        for (Entry const& entry : s_keys) {
            if (entry.bytes == rest.substr(0, length)) keys.push_back(entry.key);
        }
        rest.remove_prefix(length);
    }
    pending = std::string(rest);
    return keys;
}
