#pragma once

#include <string>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// Puts a text in `out` as `text-transform` says, as Chromium does: by Unicode's full mappings, or,
/// where words are capitalized, by its simple ones to title case. What is no character stays. Words
/// begin where UAX #29 says for letters, digits and what joins these, of the text before no more
/// than the last character being known.
void transformText(std::string& out, std::string_view text, TextTransform transform,
                   char32_t before);

}  // namespace galley::web
