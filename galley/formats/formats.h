#pragma once

#include <string_view>

#include "base/String.h"
#include "galley/galley.h"

namespace galley {

// Each takes a page as the library makes it and puts another form in its place. Both throw
// std::bad_alloc where there is no memory for that.

struct HtmlOptions {
    Theme theme = Theme::automatic;
    /// A whole document.
    bool isDocument = false;
    /// Of the document; any bytes.
    std::string_view title = {};
};

/// A <pre> element with the colours of a terminal, which may stand in any HTML document, several of
/// them one after the other, or a document with one in it. Both are well-formed XML in ASCII.
///
/// Here and in pictures each character is one cell, as it is on a terminal, though the library laid
/// out its bytes. What is no character, or a control character, becomes U+FFFD.
void makeHtml(String& page, HtmlOptions const& options);

/// A picture of a terminal as a self-contained SVG document in ASCII, each word at its cell; a dark
/// one where the theme is automatic.
void makeSvg(String& page, Theme theme);

}  // namespace galley
