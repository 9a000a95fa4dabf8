#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace galley {

/// Lines and columns of positions in a source. Going from one position to a later one costs what
/// lies between them, so that any number of places in their order take linear time.
class Places {
public:
    /// Both from 1.
    struct Place {
        unsigned line = 1;
        /// In characters; each byte that belongs to none counts as one.
        unsigned column = 1;
    };

    /// `source` has to outlive it.
    explicit Places(std::string_view source);

    /// `position` is that of a byte, or the end of the source.
    Place at(std::size_t position);
    /// The line that `position` is on behind its number, and below it a caret under the character,
    /// each ended by "\n". A long line is cut around the position, between characters. Empty where
    /// the line is; for the end of the source the last line that is not.
    std::string excerpt(std::size_t position);

private:
    void goTo(std::size_t position);
    void beginLine(std::size_t first, unsigned number);

    std::string_view text;
    /// Of the line that was asked for last, without its line feed.
    std::size_t start = 0;
    std::size_t end = 0;
    /// On that line.
    std::size_t current = 0;
    Place place;
};

}  // namespace galley
