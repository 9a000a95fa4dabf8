#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace galley {

/// Whether one word becomes the other, letters of both cases being the same, by at most `edits`
/// insertions, removals or replacements of a byte, or exchanges of two neighbours.
bool isWithinEdits(std::string_view word, std::string_view other, std::size_t edits);

/// The name in `table` that was probably meant by `word`: one that is at most 2 edits away, and
/// fewer than half of the length of `word`; of several the nearest, and the first of these. Empty
/// where there is none. `nameOf` is what `std::invoke` takes a name from an entry by.
template <class Table, class NameOf>
std::string_view suggest(std::string_view word, Table const& table, NameOf const& nameOf) {
    for (std::size_t edits = 0; edits <= 2 && 2 * edits < word.length(); ++edits) {
        for (auto const& entry : table) {
            std::string_view const name = std::invoke(nameOf, entry);
            if (isWithinEdits(word, name, edits)) return name;
        }
    }
    return {};
}

}  // namespace galley
