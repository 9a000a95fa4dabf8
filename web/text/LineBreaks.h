#pragma once

#include <cstdint>
#include <string_view>

#include "web/text/properties.h"

namespace galley::web {

/// Where a line may break by the rules of UAX #14, revision 53, without those for Brahmic scripts,
/// and with an opportunity behind every space: code points are taken one after the other.
class LineBreaks {
public:
    /// Behind a code point, or behind white space: class SP.
    explicit LineBreaks(Properties before) : last(before) {}

    /// Whether a line may break between what was taken last and the first code point of the next
    /// cluster; `behind` is the text that follows that. The code point is no white space.
    bool mayBreakBefore(Properties next, std::string_view behind) const;

    void take(Properties next);

private:
    enum class Number : std::uint8_t { none, open, closed };

    bool parts(Properties next, std::string_view behind) const;

    Properties last;
    Properties beforeLast;
    /// Behind a digit and what separates digits, or a bracket behind these.
    Number number = Number::none;
    bool isBehindJoiner = false;
};

/// Whether a line that begins with that text, at whose end a line may break, still may before what
/// is behind it. A hyphen alone begins a word there, or a number.
bool mayBreakBehindFirst(std::string_view text, std::string_view behind);

}  // namespace galley::web
