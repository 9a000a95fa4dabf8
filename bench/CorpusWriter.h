#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "bench/corpus.h"

namespace Bench {

inline constexpr std::size_t s_unlimited = std::numeric_limits<std::size_t>::max();

/// SplitMix64, with numbers in a range by multiplication: the same everywhere.
class Random {
public:
    /// From `first` to `last`, both included.
    std::size_t between(std::size_t first, std::size_t last) {
        state += 0x9E3779B97F4A7C15;
        std::uint64_t bits = state;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
        bits ^= bits >> 31;
        return first + static_cast<std::size_t>((bits >> 32) * (last - first + 1) >> 32);
    }

private:
    std::uint64_t state = 1;
};

/// Makes a corpus, part by part.
class Writer {
public:
    Corpus corpus;

    explicit Writer(Size wanted) : size(wanted) {}

    /// Whether one more part is wanted, which is counted then.
    bool next(std::string const& text) {
        if (text.size() + owed >= size.bytes || parts >= size.parts) return false;
        ++parts;
        return true;
    }
    bool next() { return next(corpus.markup); }
    /// Whether there is room left in the first half of the corpus.
    bool nextOfFirstHalf() {
        return (corpus.markup.size() < size.bytes / 2 && parts < size.parts / 2) && next();
    }

    Writer& add(std::string_view markup) {
        corpus.markup += markup;
        return *this;
    }
    Writer& addWord() {
        addLetters(random.between(2, 10));
        ++corpus.words;
        return *this;
    }
    void addLetters(std::size_t count) {
        for (; count > 0; --count) add(letter());
    }
    void addWords(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            if (i > 0) add(" ");
            addWord();
        }
    }
    void addParagraphOfWords() { addWords(random.between(50, 150)); }

    /// One row of cells with a word in each.
    void addRow(std::size_t cells) {
        add("<tr>");
        for (; cells > 0; --cells) add("<td>").addWord().add("</td>");
        add("</tr>\n");
    }

    /// Elements in one another, a part each: `open`, and what `fill` adds, at every level.
    template <class Fill>
    void nest(std::string_view open, std::string_view close, Fill const& fill) {
        std::size_t levels = 0;
        for (; next(); ++levels) {
            add(open);
            owed += close.size();
            fill();
        }
        for (; levels > 0; --levels) add(close);
        owed = 0;
    }

    std::size_t between(std::size_t first, std::size_t last) { return random.between(first, last); }
    /// Bytes that a text without parts is to have.
    std::size_t length() const { return size.bytes == s_unlimited ? size.parts : size.bytes; }
    std::size_t partCount() const { return parts; }

private:
    std::string_view letter() {
        static constexpr std::string_view s_letters = "abcdefghijklmnopqrstuvwxyz";
        return s_letters.substr(random.between(0, s_letters.size() - 1), 1);
    }

    Size size;
    std::size_t parts = 0;
    /// Bytes of the end tags that are still to come.
    std::size_t owed = 0;
    Random random;
};

/// What makes the corpora of a name.
struct Shape {
    std::string_view name;
    void (*write)(Writer& to);
};

}  // namespace Bench
