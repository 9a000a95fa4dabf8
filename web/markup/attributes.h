#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "web/Element.h"
#include "web/Problem.h"

namespace galley::web {

/// What an attribute's number may be.
struct Limits {
    int least;
    int most;
};

/// The whole number that an attribute begins with, as HTML reads it; the greatest that it may be
/// instead of a greater one. None where the attribute is missing, is no number or is too small.
/// What is not taken as it stands is a warning.
std::optional<int> readInteger(Element const& element, std::string_view name, Limits limits,
                               std::vector<Problem>& problems);
inline std::optional<int> integerAttribute(Element const& element, std::string_view name,
                                           Limits limits, std::vector<Problem>& problems) {
    // Most elements have none.
    if (element.attributes.empty()) return std::nullopt;
    return readInteger(element, name, limits, problems);
}

}  // namespace galley::web
