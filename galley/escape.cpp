#include <string>

#include "galley/galley.h"

namespace galley {

namespace {

struct Reference {
    char character;
    std::string_view text;
};

constexpr Reference s_references[] = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}};

/// Puts references in the place of all of `special`.
std::string withReferences(std::string_view text, std::string_view special) {
    std::string escaped;
    escaped.reserve(text.length());
    for (std::size_t i = 0; i < text.length();) {
        std::size_t const end = std::min(text.find_first_of(special, i), text.length());
        escaped.append(text, i, end - i);
        for (auto const& [character, reference] : s_references) {
            if (end < text.length() && text[end] == character) escaped += reference;
        }
        i = end + 1;
    }
    return escaped;
}

}  // namespace

std::string escape(std::string_view text) { return withReferences(text, "&<>"); }

std::string escapeAttribute(std::string_view text) { return withReferences(text, "&<>\""); }

}  // namespace galley
