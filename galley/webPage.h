#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/String.h"
#include "galley/diagnose.h"
#include "galley/galley.h"
#include "web/Problem.h"

namespace galley {

// The dialect `web` in the words of the library: its pages, and what is said about its sources.

/// A source without the mark U+FEFF that some editors begin a file with.
std::string_view withoutMark(std::string_view source);

/// Puts the page of a document in `page`. The options are settled.
Result<void> makeWebPage(String& page, std::string_view markup, Sheet const& sheet,
                         Options const& options);

/// Puts the elements of a document with their styles in `tree`. The options are settled.
Result<void> makeWebTree(String& tree, std::string_view markup, Sheet const& sheet,
                         Options const& options);

/// All errors and warnings of a document, without those of its sheet. The options are settled.
std::vector<Diagnostic> checkWebMarkup(std::string_view markup, Sheet const& sheet,
                                       Options const& options);

/// All warnings of a sheet.
std::vector<Diagnostic> checkWebSheet(std::string_view css, std::string_view name);

}  // namespace galley
