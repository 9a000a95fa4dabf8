#pragma once

/// Galley turns a document in a small XML/XHTML subset, styled by a small CSS subset, into text
/// for a character terminal.
///
/// The library prints nothing, keeps no state between calls and throws nothing but the
/// allocator's out-of-memory exception. Every failure is a result code with a message
/// (`XCode::getString`).
///
/// Conversions may run on any number of threads at once, and may share a rule list as long as
/// nobody changes it. Everything else belongs to one thread at a time.

#include "../base/String.h"
#include "../base/XCode.h"
#include "../base/ZRLWPtr.h"
#include "../base/ZRList.h"
#include "../base/export.h"
#include "css/StyleNode.h"
#include "css/parseCss.h"

namespace CLI::XML {

/// Renders a document at a width in columns and appends the page to `out`: lines of text, each
/// ended by "\n", with ANSI SGR escape sequences where colours or text attributes change. A width
/// above 2147483647 counts as that. On failure `out` is as it was, and also where there is no
/// memory for the page, or it is 2 GiB long, which throws.
///
/// `styles` are the rules of one or more sheets in order, as `parseCss` makes them; they are only
/// read. Of the rules whose selector is an element's name the last one applies.
GALLEY_EXPORT XCode xmlToText(String& out, String const& xml,
                              ZRList<ZRLWPtr<StyleNode>> const& styles, unsigned int width);

}  // namespace CLI::XML
