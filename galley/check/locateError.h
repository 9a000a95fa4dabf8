#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// An element of which a message says that it is not closed, or not by the end tag that comes.
struct UnclosedElement {
    /// Of its start tag, in bytes.
    std::size_t position = 0;
    std::string_view name;
};

/// What in its source a message is about.
struct ErrorPlace {
    /// In bytes; the length of the source is its end.
    std::size_t position = 0;
    std::optional<UnclosedElement> unclosed;
};

/// Finds what the library refused with `message` by reading the source once more, in linear time
/// and on a stack of any size. Nothing where the message is of another kind, is not the one that
/// this source leads to, or memory ends.
std::optional<ErrorPlace> locateInDocument(std::string_view document, std::string const& message);
std::optional<ErrorPlace> locateInSheet(std::string_view sheet, std::string const& message);
