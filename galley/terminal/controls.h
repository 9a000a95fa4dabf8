#pragma once

#include <cstddef>
#include <string_view>

#include "base/String.h"

namespace galley {

/// Bytes of the well-formed UTF-8 character at `i` that begins with a byte from 0x80 on; 0 where
/// there is none.
std::size_t characterLength(std::string_view text, std::size_t i);

/// Puts a "?" in the place of every byte that may drive a terminal: of the control characters but
/// white space, of those of two bytes in UTF-8 (U+0080 to U+009F), and of bytes 0x80 to 0x9F that
/// belong to no UTF-8 character, which a terminal may take for one byte each. Returns whether there
/// were any.
bool replaceControls(String& text);

/// The same for a page of texts without controls, whose escape bytes are the library's own:
/// painting cuts characters apart and puts bytes of two of them together.
void repairCharacters(String& page);

}  // namespace galley
