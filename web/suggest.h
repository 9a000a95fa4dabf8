#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "web/wording.h"

namespace galley::web {

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

/// Suggestions for one source. There are so many and no more: they take time that nobody would have
/// who reads the rest.
class Suggester {
public:
    /// The same in words, to be appended to a warning about `word`.
    template <class Table, class NameOf>
    std::string operator()(std::string_view word, Table const& table, NameOf const& nameOf) {
        return left == 0 ? std::string() : worded(suggest(word, table, nameOf));
    }

    /// Of a suggestion that has been found, if it is one; whoever looks for it asks before whether
    /// that is worth while.
    ///@{
    bool isAsked() const { return left > 0; }
    std::string worded(std::string_view suggestion) {
        --left;
        return didYouMean(suggestion, "");
    }
    ///@}

private:
    unsigned left = 100;
};

}  // namespace galley::web
