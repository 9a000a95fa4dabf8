#pragma once

#include "base/String.h"

// Each takes a page as the library makes it and puts another form in its place. Both throw
// std::bad_alloc where there is no memory for that.

/// A <pre> element with the colours of a terminal, which may stand in any HTML document, several of
/// them one after the other. It is well-formed XML in ASCII.
///
/// Here and in pictures each character is one cell, as it is on a terminal, though the library laid
/// out its bytes. What is no character, or a control character, becomes U+FFFD.
void makeHtml(String& page);

/// A picture of a terminal as a self-contained SVG document in ASCII, each word at its cell.
void makeSvg(String& page);
