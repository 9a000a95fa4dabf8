#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace galley {

/// An element of which a finding says that it is not closed, or not by the end tag that comes.
struct UnclosedElement {
    /// Of its start tag, in bytes.
    std::size_t position = 0;
    /// In the source.
    std::string_view name;
};

/// Something that is said about a source.
struct Finding {
    enum class Kind {
        /// The library refuses the source.
        Error,
        /// The library takes it, but not for what was meant.
        Warning,
    };

    Kind kind = Kind::Error;
    /// One line. Of an error the library's own words, without the line that they may begin with.
    std::string message;
    /// In bytes; the length of the source is its end.
    std::size_t position = 0;
    std::optional<UnclosedElement> unclosed;
};

using Findings = std::vector<Finding>;

}  // namespace galley
