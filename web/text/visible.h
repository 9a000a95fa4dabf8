#pragma once

#include <string>
#include <string_view>

namespace galley::web {

/// Whether a character is seen nowhere, and may change how others are: a control, a mark of
/// direction, a separator of lines, or another one of the class Control of UAX #29.
bool isHidden(char32_t c);

/// How such a character is shown in what people read about a source: "<U+202E>".
std::string notation(char32_t c);

/// The text with that in the place of each of them. What is ill-formed stays as it is.
std::string visible(std::string_view text);

}  // namespace galley::web
