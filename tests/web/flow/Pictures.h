#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "web/renderPage.h"
#include "web/write/PlainWriter.h"

namespace galley::web {

/// A page and how it looks; the picture's first line is empty.
struct Picture {
    char const* markup;
    unsigned width;
    char const* page;
};

inline std::string textOf(std::string const& markup, unsigned width) {
    std::string page;
    std::vector<Problem> problems;
    Media media;
    media.width = width;
    PlainWriter writer(page);
    EXPECT_TRUE(renderPage(markup, {}, media, writer, problems)) << markup;
    return page;
}

inline void expectPictures(std::vector<Picture> const& pictures) {
    for (Picture const& each : pictures) {
        EXPECT_EQ("\n" + textOf(each.markup, each.width), each.page)
            << each.markup << " at " << each.width;
    }
}

}  // namespace galley::web
