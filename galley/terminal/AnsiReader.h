#pragma once

#include <cstddef>
#include <string_view>

namespace galley {

/// How a cell looks.
struct Look {
    static constexpr unsigned s_noColor = 8;

    /// Bit n stands for the attribute that "\x1b[nm" sets: 1 bold, 2 faint, 3 italic, 4 underline,
    /// 5 blink, 7 inverse, 8 hidden.
    unsigned attributes = 0;
    /// 0 to 7 in the order of the sequences, or `s_noColor`.
    unsigned foreground = s_noColor;
    unsigned background = s_noColor;

    enum Attribute { Bold = 1, Faint, Italic, Underline, Blink, Inverse = 7, Hidden };
    bool has(Attribute attribute) const { return (attributes >> attribute & 1U) != 0; }
    bool operator==(Look const&) const = default;
};

/// The bytes of the sequence "\x1b[NUMBERm" at the beginning of `text`; 0 where there is none.
std::size_t sequenceLength(std::string_view text);

/// Reads a page as the library makes it, run by run.
class AnsiReader {
public:
    /// Bytes that look alike and stand in one row.
    struct Run {
        std::string_view text;
        Look look;
        /// Nothing follows in this row; then the run may be empty. Every row of a page has an end.
        bool endsRow = false;
    };

    explicit AnsiReader(std::string_view text) : page(text) {}

    /// Reads the next run; false at the end of the page.
    bool next(Run& run);

private:
    /// Applies the sequences that the rest begins with and drops them.
    void readSequences();

    /// What is not read yet.
    std::string_view page;
    Look look;
};

}  // namespace galley
