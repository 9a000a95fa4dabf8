#pragma once

#include <cstddef>
#include <string>

namespace galley::web {

/// What is wrong in a source, or ignored.
struct Problem {
    /// A warning leaves a page, an error none. A note is another place of the problem before it.
    enum class Kind { error, warning, note };

    Kind kind = Kind::warning;
    /// The offset of what is about no place in the source.
    static constexpr std::size_t s_nowhere = static_cast<std::size_t>(-1);

    /// Bytes from the start of the source.
    std::size_t offset = 0;
    /// Names what it is about in quotes, as the source has it.
    std::string message;

    bool operator==(Problem const&) const = default;
};

}  // namespace galley::web
