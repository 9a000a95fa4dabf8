#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

#include "web/css/characters.h"
#include "web/css/parseSelectors.h"

namespace galley::web {

namespace {

/// More elements than any document has.
constexpr int s_most = 1'000'000'000;

void skipSpace(std::string_view& text) {
    while (!text.empty() && isWhitespace(text.front())) text.remove_prefix(1);
}

bool takeSign(std::string_view& text, int& sign) {
    if (!text.starts_with('-') && !text.starts_with('+')) return false;
    sign = text.front() == '-' ? -1 : 1;
    text.remove_prefix(1);
    return true;
}

/// Digits at the start; false without.
bool takeDigits(std::string_view& text, int& number) {
    if (text.empty() || !isDigit(text.front())) return false;
    auto const [end, fault] = std::from_chars(text.data(), text.data() + text.length(), number);
    if (fault != std::errc()) number = s_most;
    number = std::min(number, s_most);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

std::string sourceOf(std::span<Token const> tokens) {
    std::string text;
    for (Token const& token : tokens) text += token.source;
    std::transform(text.begin(), text.end(), text.begin(), toLower);
    return text.substr(0, text.find_last_not_of(" \t\n\r\f") + 1);
}

}  // namespace

bool parseNth(std::span<Token const> tokens, Nth& nth) {
    std::string const source = sourceOf(tokens);
    std::string_view text = source;
    skipSpace(text);
    if (text == "odd" || text == "even") {
        nth = {2, text == "odd" ? 1 : 0};
        return true;
    }
    int sign = 1;
    takeSign(text, sign);
    int number = 1;
    bool const hasDigits = takeDigits(text, number);
    if (!text.starts_with('n')) {
        nth = {0, sign * number};
        return hasDigits && text.empty();
    }
    text.remove_prefix(1);
    nth = {sign * number, 0};
    skipSpace(text);
    if (text.empty()) return true;
    if (!takeSign(text, sign)) return false;
    skipSpace(text);
    if (!takeDigits(text, number)) return false;
    nth.offset = sign * number;
    return text.empty();
}

}  // namespace galley::web
