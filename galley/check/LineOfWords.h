#pragma once

#include <optional>
#include <string_view>

namespace galley {

/// A line of words and inline elements, as far as it takes to see where two words run together: a
/// word keeps the space behind it, but one that stands in front of a word, behind a tag, is lost.
class LineOfWords {
public:
    struct LostSpace {
        std::size_t position;
        std::string_view before;
        std::string_view after;
    };

    /// Space that belongs to no word, at `position` of the source.
    void addSpace(std::size_t position) {
        if (!lastWord.empty() && !space) space = position;
    }

    /// A word that `shown` is to be seen of, with the space that it keeps. The word must outlive
    /// the line. Returns what is lost in front of it.
    std::optional<LostSpace> addWord(std::string_view word, std::string_view shown) {
        if (shown.empty()) return std::nullopt;
        std::optional<LostSpace> lost;
        if (space && shown.front() != ' ') lost = {*space, lastWord, word};
        end();
        if (shown.back() != ' ') lastWord = word;
        return lost;
    }

    /// Whatever follows stands apart from it.
    void end() {
        lastWord = {};
        space.reset();
    }

private:
    /// The last word, where it has no space of its own; otherwise empty.
    std::string_view lastWord;
    /// Behind that word.
    std::optional<std::size_t> space;
};

}  // namespace galley
