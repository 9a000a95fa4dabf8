#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

/// The first byte at `from` or behind it around which a word may end: white space, what is not
/// printable ASCII, and punctuation beside which a line may break. The text's size without one.
std::size_t scanPlain(std::string_view text, std::size_t from);

}  // namespace galley::web
