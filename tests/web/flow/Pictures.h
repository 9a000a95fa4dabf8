#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "web/renderPage.h"

namespace galley::web {

/// A page and how it looks; the picture's first line is empty.
struct Picture {
    char const* markup;
    unsigned width;
    char const* page;
};

/// Rows as bare text, without blanks at their ends, each with a mark before it and behind it.
class TextOfRows final : public RowSink {
public:
    TextOfRows(char const* before, char const* behind) : opening(before), closing(behind) {}

    std::string text;

    void take(Row const& row) override {
        text += opening;
        text += row.text().substr(0, row.text().find_last_not_of(' ') + 1);
        text += closing;
    }

private:
    char const* opening;
    char const* closing;
};

inline std::string textOf(std::string const& markup, unsigned width, char const* before = "",
                          char const* behind = "\n") {
    TextOfRows rows(before, behind);
    std::vector<Problem> problems;
    Media media;
    media.width = width;
    EXPECT_TRUE(renderPage(markup, {}, media, rows, problems)) << markup;
    return rows.text;
}

inline void expectPictures(std::vector<Picture> const& pictures) {
    for (Picture const& each : pictures) {
        EXPECT_EQ("\n" + textOf(each.markup, each.width), each.page)
            << each.markup << " at " << each.width;
    }
}

}  // namespace galley::web
