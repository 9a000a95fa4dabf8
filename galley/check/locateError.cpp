#include "galley/check/locateError.h"

#include <algorithm>
#include <new>

#include "galley/check/DocumentReader.h"

namespace galley {

namespace {

constexpr std::string_view s_refusal = "Cannot layout ";

/// Whether `message` is the library's for `error`: its words, some of them behind their line.
bool isSaidOf(Finding const& error, std::string_view message, std::string_view source) {
    if (!message.ends_with(error.message)) return false;
    message.remove_suffix(error.message.length());
    if (message.empty()) return true;
    auto const before = source.substr(0, error.position);
    std::string const line = std::to_string(1 + std::count(before.begin(), before.end(), '\n'));
    return message == line + ": " || message == "Line " + line + ": ";
}

}  // namespace

std::optional<Finding> locateInDocument(std::string_view document, std::string const& message) {
    try {
        bool const isRefusal = message.starts_with(s_refusal);
        DocumentReader reader(document);
        while (reader.next() != DocumentReader::Event::EndOfDocument || reader.error) {
            if (!reader.error) continue;
            // The library names a child that is refused where nothing else is wrong.
            if (!isRefusal && reader.error->message.starts_with(s_refusal)) continue;
            return isSaidOf(*reader.error, message, document) ? reader.error : std::nullopt;
        }
    } catch (std::bad_alloc const&) {
    }
    return std::nullopt;
}

}  // namespace galley
