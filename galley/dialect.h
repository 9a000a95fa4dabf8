#pragma once

#include <string_view>

#include "galley/galley.h"

namespace galley {

/// What a document is in that says nothing else, and a sheet.
constexpr Dialect s_defaultDialect = Dialect::web;

/// The dialect of a document: what the options say, else what its own processing instruction does,
/// else the default. A failure where that instruction names no dialect.
Result<Dialect> dialectOf(std::string_view markup, Options const& options);

}  // namespace galley
