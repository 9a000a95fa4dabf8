#include "web/suggest.h"

#include <algorithm>

namespace galley::web {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isSame(char one, char other) { return lower(one) == lower(other); }

}  // namespace

bool isWithinEdits(std::string_view word, std::string_view other, std::size_t edits) {
    auto const same = std::mismatch(word.begin(), word.end(), other.begin(), other.end(), isSame);
    word.remove_prefix(static_cast<std::size_t>(same.first - word.begin()));
    other.remove_prefix(static_cast<std::size_t>(same.second - other.begin()));
    if (word.empty() || other.empty()) return word.length() + other.length() <= edits;
    if (edits == 0) return false;
    auto const isWithinRest = [&](std::size_t ofWord, std::size_t ofOther) {
        return isWithinEdits(word.substr(ofWord), other.substr(ofOther), edits - 1);
    };
    bool const areExchanged = word.length() > 1 && other.length() > 1 &&
                              isSame(word[0], other[1]) && isSame(word[1], other[0]);
    return isWithinRest(1, 1) || isWithinRest(1, 0) || isWithinRest(0, 1) ||
           (areExchanged && isWithinRest(2, 2));
}

}  // namespace galley::web
