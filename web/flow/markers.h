#pragma once

#include <string>

#include "web/Style.h"

namespace galley::web {

inline bool isNumbered(Marker const& marker) {
    return marker.kind >= MarkerKind::decimal && marker.kind <= MarkerKind::lowerGreek;
}

/// The marker of a list item with a number, and the blank behind it; empty for none. A string is
/// all that it is. A number that a kind has no form for is decimal.
std::string markerText(Marker const& marker, int number);

}  // namespace galley::web
