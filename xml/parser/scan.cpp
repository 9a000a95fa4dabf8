#include "xml/parser/scan.h"

#include <cstring>

namespace CLI::XML {

namespace {

/// Index of the first byte from `start` on that belongs to `set`: at the latest the NUL at `end`.
int findMember(char const* bytes, int start, int end, ByteSet const& set) {
    auto const find = [&](char c, int limit) {
        void const* const found =
            std::memchr(bytes + start, c, static_cast<std::size_t>(limit - start));
        return found == nullptr ? limit : static_cast<int>(static_cast<char const*>(found) - bytes);
    };
    // Long runs of text are read up to one character, and the NUL.
    if (set.onlyMember() != '\0') return find('\0', find(set.onlyMember(), end));
    int i = start;
    while (!set.contains(bytes[i])) ++i;
    return i;
}

}  // namespace

void skipCharacters(String const& text, int& position, int& line, ByteSet const& set) {
    char const* const bytes = text.c_str();
    int const length = text.length();
    for (; position < length && set.contains(bytes[position]); ++position) {
        if (bytes[position] == '\n') ++line;
    }
}

bool peekCharacter(String const& text, int position, String const& set) {
    return position < text.length() && std::strchr(set.c_str(), text[position]) != nullptr;
}

bool peekString(String const& text, int position, char const* s) {
    // The first byte mostly tells.
    if (*s != '\0' && position < text.length() && text.c_str()[position] != *s) return false;
    std::size_t const length = std::strlen(s);
    return position <= text.length() &&
           length <= static_cast<std::size_t>(text.length() - position) &&
           std::memcmp(text.c_str() + position, s, length) == 0;
}

bool parseString(String const& text, int& position, char const* s) {
    if (!peekString(text, position, s)) return false;
    position += static_cast<int>(std::strlen(s));
    return true;
}

std::string_view takeUntil(String const& text, int& position, int& line, ByteSet const& set) {
    char const* const bytes = text.c_str();
    int const start = position;
    int const end = findMember(bytes, start, text.length(), set);
    if (set.contains('\n')) {
        position = end;
    } else {
        advanceTo(end, text, position, line);
    }
    return {bytes + start, static_cast<std::size_t>(end - start)};
}

int parseUntilCharacter(String const& text, int& position, int& line, String& out,
                        ByteSet const& set) {
    std::string_view const taken = takeUntil(text, position, line, set);
    int const length = static_cast<int>(taken.length());
    out.concat(taken.data(), length);
    return length;
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
