#pragma once

#include <cstdio>
#include <initializer_list>
#include <string_view>

namespace CLI::XML {

/// Prints the page of a document, styled by any number of sheets, their rules in the order given:
/// at the width of the terminal that `out` goes to, and where it goes elsewhere of the
/// environment's COLUMNS, else at 80; with escape sequences on a terminal, unless the environment's
/// NO_COLOR is set. Control characters of the document and the sheets become question marks.
///
/// Returns whether the whole page was written. It is not where a sheet or the document is at fault,
/// memory runs out, or `out` takes no more; only then was a part of it written.
bool printPage(std::FILE* out, std::string_view document,
               std::initializer_list<std::string_view> sheets);

}  // namespace CLI::XML
