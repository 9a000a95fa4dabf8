#include "web/markup/References.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

#include "web/css/characters.h"
#include "web/text/utf8.h"
#include "web/wording.h"

namespace galley::web {

namespace {

struct Entity {
    std::string_view name;
    std::uint16_t codePoint;
};

constexpr Entity s_entities[] = {
#include "web/markup/entities.inc"
};
static_assert(std::ranges::is_sorted(s_entities, {}, &Entity::name));

constexpr std::uint32_t s_lastCodePoint = 0x10FFFF;

constexpr bool continuesReference(char c) { return isLetter(c) || isDigit(c) || c == '#'; }

constexpr bool isValueSpace(char32_t c) { return c == '\t' || c == '\n' || c == '\r'; }

bool isCharacter(std::uint32_t number) {
    bool const isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    return number > 0 && number <= s_lastCodePoint && !isSurrogate;
}

std::optional<std::uint32_t> findEntity(std::string_view name) {
    auto const* const found = std::ranges::lower_bound(s_entities, name, {}, &Entity::name);
    if (found == std::end(s_entities) || found->name != name) return std::nullopt;
    return found->codePoint;
}

/// Of what is behind "&#": decimal, or hexadecimal behind an "x". What is too large is no
/// character, but a number.
std::optional<std::uint32_t> parseNumber(std::string_view digits) {
    bool const isHexadecimal = digits.starts_with('x') || digits.starts_with('X');
    if (isHexadecimal) digits.remove_prefix(1);
    if (digits.empty()) return std::nullopt;
    int const base = isHexadecimal ? 16 : 10;
    std::uint32_t number = 0;
    for (char const c : digits) {
        int const digit = hexDigit(c);
        if (digit < 0 || digit >= base) return std::nullopt;
        number = number * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit);
        number = std::min(number, s_lastCodePoint + 1);
    }
    return number;
}

}  // namespace

bool References::next(Part& part) {
    if (at == source.size()) return false;
    part.offset = sourceOffset + at;
    part.isReference = source[at] == '&' && readReference();
    if (part.isReference) {
        part.text = decoded;
        return true;
    }
    // An ampersand that begins no reference stands for itself.
    std::size_t const end = std::min(source.find('&', at + 1), source.size());
    part.text = source.substr(at, end - at);
    at = end;
    return true;
}

bool References::readReference() {
    auto const first = source.begin() + static_cast<std::ptrdiff_t>(at) + 1;
    auto const last = std::find_if_not(first, source.end(), continuesReference);
    std::string_view const name(first, last);
    bool const isNumber = name.starts_with('#');
    auto const codePoint = isNumber ? parseNumber(name.substr(1)) : findEntity(name);
    bool const isName = !isNumber && !name.empty() && name.find('#') == std::string_view::npos;
    bool const isEnded = last != source.end() && *last == ';';
    if (!isEnded && codePoint) {
        std::string_view const begun = source.substr(at, name.size() + 1);
        warn(problems, sourceOffset + at, "missing ';' behind " + quoted(begun));
        return false;
    }
    if (!isEnded || !(codePoint || isName)) {
        warn(problems, sourceOffset + at, "'&' begins no reference; write '&amp;'");
        return false;
    }
    std::string_view const reference = source.substr(at, name.size() + 2);
    if (!codePoint) {
        warn(problems, sourceOffset + at, "unknown reference " + quoted(reference));
        return false;
    }
    if (!isCharacter(*codePoint)) {
        warn(problems, sourceOffset + at, quoted(reference) + " is no character");
    } else if (isControl(*codePoint) && !isValueSpace(*codePoint)) {
        warn(problems, sourceOffset + at,
             quoted(reference) + " is a control character, shown as U+FFFD");
    }
    decoded.clear();
    appendUtf8(decoded, *codePoint);
    at += reference.size();
    return true;
}

void decodeReferences(std::string_view text, std::size_t offset, std::string& decoded,
                      std::vector<Problem>& problems) {
    References references(text, offset, problems);
    for (References::Part part; references.next(part);) decoded += part.text;
}

bool isEncodedValue(std::string_view value) {
    return std::ranges::any_of(value, [](unsigned char c) { return c == '&' || isValueSpace(c); });
}

void decodeValue(std::string_view value, std::size_t offset, std::string& decoded,
                 std::vector<Problem>& problems) {
    References references(value, offset, problems);
    for (References::Part part; references.next(part);) {
        std::size_t const start = decoded.size();
        decoded += part.text;
        if (part.isReference) continue;
        std::replace_if(decoded.begin() + static_cast<std::ptrdiff_t>(start), decoded.end(),
                        isValueSpace, ' ');
    }
}

}  // namespace galley::web
