#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

#include "web/css/ValueReader.h"
#include "web/css/characters.h"

namespace galley::web {

template <class T>
struct Keyword {
    std::string_view name;
    T value;
    /// Whether a browser would show something else.
    bool isIgnored = false;
};

/// The row of a table whose `name` is the word, whatever the case of its letters; else null.
template <class Table>
constexpr auto findWord(Table const& table, std::string_view word) {
    auto const* const found =
        std::find_if(std::begin(table), std::end(table),
                     [word](auto const& row) { return isSameWord(row.name, word); });
    return found == std::end(table) ? nullptr : found;
}

/// Reads one of the words in a table of keywords.
template <auto const& table, class T>
bool readKeyword(ValueReader& reader, T& value) {
    if (!reader.isNext(Token::Kind::identifier)) return false;
    auto const* const row = findWord(table, reader.peek().text);
    if (row == nullptr) return false;
    if (row->isIgnored) reader.warnAbout(reader.peek());
    reader.take();
    value = row->value;
    return true;
}

}  // namespace galley::web
