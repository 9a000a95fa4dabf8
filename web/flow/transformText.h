#pragma once

#include <string>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// Puts a text in `out` as `text-transform` says, character by character, by Unicode's simple
/// mappings; what is no character stays. Words begin behind white space and punctuation, but for
/// one that the text before ends with: `isInWord` says of both ends whether one is there.
void transformText(std::string& out, std::string_view text, TextTransform transform,
                   bool& isInWord);

}  // namespace galley::web
