#pragma once

#include <string>
#include <string_view>

#include "base/String.h"
#include "galley/formats/formats.h"
#include "galley/terminal/AnsiReader.h"

namespace galley {

/// The class of an element that holds a page; rules for what is in it apply inside of it alone.
std::string_view pageClass(Theme theme);

/// The class of text that looks so: the numbers of the sequences that make it so, as in "g1-31".
/// Empty for text without attributes and colours.
std::string lookClass(Look const& look);

/// Appends the rules of both classes, for the looks that `page` has. Whatever page it is, the same
/// class has the same rules.
void appendRules(String& css, std::string_view page, HtmlOptions const& options);

}  // namespace galley
