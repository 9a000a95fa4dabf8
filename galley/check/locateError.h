#pragma once

#include <string>

#include "galley/check/Finding.h"

namespace galley {

/// Finds what the library refused with `message` by reading the source once more, in linear time
/// and on a stack of any size. Nothing where the message is of another kind, is not one that this
/// source leads to, or there is no memory for a copy of the document.
std::optional<Finding> locateInDocument(std::string_view document, std::string const& message);

}  // namespace galley
