#include "xml/parser/scan.h"

#include <algorithm>
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
    ByteSet const members(set);
    char const* const bytes = text.c_str();
    int const start = position;
    int end = start;
    while (end < text.length() && !members.contains(bytes[end])) ++end;
    advanceTo(end, text, position, line);
    out.concat(bytes + start, end - start);
    return end - start;
}

void advanceTo(int end, String const& text, int& position, int& line) {
    char const* const bytes = text.c_str();
    line += static_cast<int>(std::count(bytes + position, bytes + end, '\n'));
    position = end;
}

}  // namespace CLI::XML
