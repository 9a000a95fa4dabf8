#pragma once

#include <string_view>
#include <vector>

#include "galley/check/Finding.h"

namespace galley {

/// A property with its value: an attribute, or a part of a rule.
struct Declaration {
    std::string_view name;
    /// References decoded.
    std::string_view value;
    std::size_t namePosition;
    std::size_t valuePosition;
};

/// Adds what is to be said about the declarations of one element or of one rule, in any order.
///@{
void checkAttributes(std::vector<Declaration> const& attributes, Findings& findings);
void checkRule(std::vector<Declaration> const& declarations, Findings& findings);
///@}

}  // namespace galley
