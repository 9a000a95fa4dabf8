#pragma once

#include <string>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// Puts a text in `out` as `text-transform` says, character by character, by Unicode's simple
/// mappings; what is no character stays. Words begin where UAX #29 says for letters, digits and
/// what joins these, of the text before no more than the last character being known.
void transformText(std::string& out, std::string_view text, TextTransform transform,
                   char32_t before);

}  // namespace galley::web
