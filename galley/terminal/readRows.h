#pragma once

#include <string_view>

#include "base/String.h"
#include "web/flow/Row.h"

namespace galley {

/// Hands the rows of a page of the core, each of which has an end, to `rows`. Their texts may hold
/// any bytes but line feeds. Each character is one cell, and so is a byte that belongs to none.
void readRows(std::string_view page, web::RowSink& rows);

/// Removes the looks of such a page, and the blanks at the ends of its rows, in its own place: it
/// may be large.
void makePlain(String& page);

}  // namespace galley
