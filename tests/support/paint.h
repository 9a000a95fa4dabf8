#pragma once

#include "tests/support/boxes.h"
#include "xml/render/Canvas.h"

namespace CLI::XML {

/// Every row ends with a line feed, and in the default attributes.
inline void expectWholeRows(String const& page) {
    for (int start = 0, end; start < page.length(); start = end + 1) {
        end = page.indexOf('\n', start);
        ASSERT_GE(end, 0) << shown(page);
        std::string const row(page.c_str() + start, page.c_str() + end);
        std::size_t const escape = row.rfind("\x1b[");
        EXPECT_TRUE(escape == row.npos || row.compare(escape, 4, "\x1b[0m") == 0) << shown(page);
    }
}

/// The document as its root box paints it; twice, since painting changes no box.
inline std::string painted(String const& markup, int width = 80, char const* css = "") {
    Page page(markup, css);
    page.layOut(width);
    String texts[2];
    for (String& text : texts) {
        Canvas canvas;
        page.box->drawTo(canvas, Canvas::Attributes());
        text = canvas.dump("\n");
    }
    EXPECT_EQ(texts[0], texts[1]);
    expectWholeRows(texts[0]);
    return shown(texts[0]);
}

}  // namespace CLI::XML
