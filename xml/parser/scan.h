#pragma once

#include <string_view>

#include "base/String.h"

/// Scanning primitives of the markup and the style-sheet reader. Positions are byte indexes into
/// the text and never pass its end; `line` grows by one for every line feed passed over. A
/// character set is a NUL-terminated list of bytes whose NUL is a member too: a NUL byte in the
/// text belongs to every set.
namespace CLI::XML {

/// A character set that is looked up byte by byte.
class ByteSet {
public:
    constexpr explicit ByteSet(char const* set) {
        members[0] = true;
        if (set[0] != '\0' && set[1] == '\0') single = set[0];
        for (; *set != '\0'; ++set) members[static_cast<unsigned char>(*set)] = true;
    }
    constexpr bool contains(char c) const { return members[static_cast<unsigned char>(c)]; }
    /// The one member besides NUL; NUL where there is another number of them.
    constexpr char onlyMember() const { return single; }

private:
    bool members[256] = {};
    char single = '\0';
};

/// The bytes of markup that end an element type or an attribute name.
inline constexpr ByteSet s_endOfName("<>/=\" \t\n\r");
/// The one that ends running text.
inline constexpr ByteSet s_endOfText("<");

/// White space and the ends of tokens in style sheets, where a vertical tab is white space, too.
namespace SheetBytes {
inline constexpr ByteSet s_whitespace(" \t\v\r\n");
inline constexpr ByteSet s_endOfSelector(" \t\v\r\n{");
inline constexpr ByteSet s_endOfProperty(" \t\v\r\n:}");
inline constexpr ByteSet s_endOfValue(" \t\v\r\n;");
}  // namespace SheetBytes

/// Advances `position` over the bytes that belong to `set`.
void skipCharacters(String const& text, int& position, int& line, ByteSet const& set);
inline void skipCharacters(String const& text, int& position, int& line, char const* set) {
    skipCharacters(text, position, line, ByteSet(set));
}

/// True when the byte at `position` belongs to `set`; false at the end.
bool peekCharacter(String const& text, int position, String const& set);

/// True when the text continues with `s` at `position`.
bool peekString(String const& text, int position, char const* s);

/// Consumes `c` if it is the next byte; false, with nothing moved, otherwise.
inline bool parseCharacter(String const& text, int& position, char c) {
    if (position >= text.length() || text.c_str()[position] != c) return false;
    ++position;
    return true;
}

/// Consumes `s`, which holds no line feed, if the text continues with it; false, with nothing
/// moved, otherwise.
bool parseString(String const& text, int& position, char const* s);

/// Advances `position` up to the first byte that belongs to `set`, appends the bytes passed over
/// to `out` and returns how many they were.
int parseUntilCharacter(String const& text, int& position, int& line, String& out,
                        ByteSet const& set);
inline int parseUntilCharacter(String const& text, int& position, int& line, String& out,
                               char const* set) {
    return parseUntilCharacter(text, position, line, out, ByteSet(set));
}

/// The bytes from `position` up to the first one that belongs to `set`, over which `position`
/// advances.
std::string_view takeUntil(String const& text, int& position, int& line, ByteSet const& set);

/// Advances `position` to `end`, which is not before it, counting line feeds.
void advanceTo(int end, String const& text, int& position, int& line);

}  // namespace CLI::XML
