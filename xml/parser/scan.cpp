#include "xml/parser/scan.h"

#include <cstring>

namespace CLI::XML {

namespace {

/// Membership of every byte value in a character set: one look-up a byte of text.
class ByteSet {
public:
    explicit ByteSet(char const* set) {
        members[0] = true;
        for (; *set != '\0'; ++set) members[static_cast<unsigned char>(*set)] = true;
    }
    bool contains(char c) const { return members[static_cast<unsigned char>(c)]; }

private:
    bool members[256] = {};
};

/// Index of the first byte of [start, end) that belongs to `set`, or `end`.
int findMember(char const* bytes, int start, int end, char const* set) {
    auto const find = [&](char c, int limit) {
        void const* const found =
            std::memchr(bytes + start, c, static_cast<std::size_t>(limit - start));
        return found == nullptr ? limit : static_cast<int>(static_cast<char const*>(found) - bytes);
    };
    // Long runs of text are read up to one character, and the NUL.
    if (set[0] != '\0' && set[1] == '\0') return find('\0', find(set[0], end));
    ByteSet const members(set);
    int i = start;
    while (i < end && !members.contains(bytes[i])) ++i;
    return i;
}

}  // namespace

void skipCharacters(String const& text, int& position, int& line, char const* set) {
    ByteSet const members(set);
    char const* const bytes = text.c_str();
    int end = position;
    while (end < text.length() && members.contains(bytes[end])) ++end;
    advanceTo(end, text, position, line);
}

bool peekCharacter(String const& text, int position, String const& set) {
    return position < text.length() && std::strchr(set.c_str(), text[position]) != nullptr;
}

bool peekString(String const& text, int position, char const* s) {
    std::size_t const length = std::strlen(s);
    return position <= text.length() &&
           length <= static_cast<std::size_t>(text.length() - position) &&
           std::memcmp(text.c_str() + position, s, length) == 0;
}

bool parseCharacter(String const& text, int& position, char c) {
    if (position >= text.length() || text[position] != c) return false;
    ++position;
    return true;
}

bool parseString(String const& text, int& position, char const* s) {
    if (!peekString(text, position, s)) return false;
    position += static_cast<int>(std::strlen(s));
    return true;
}

int parseUntilCharacter(String const& text, int& position, int& line, String& out,
                        char const* set) {
    char const* const bytes = text.c_str();
    int const start = position;
    int const end = findMember(bytes, start, text.length(), set);
    advanceTo(end, text, position, line);
    out.concat(bytes + start, end - start);
    return end - start;
}

void advanceTo(int end, String const& text, int& position, int& line) {
    char const* const bytes = text.c_str();
    char const* const last = bytes + end;
    for (char const* next = bytes + position; next < last; ++next, ++line) {
        next = static_cast<char const*>(
            std::memchr(next, '\n', static_cast<std::size_t>(last - next)));
        if (next == nullptr) break;
    }
    position = end;
}

}  // namespace CLI::XML
