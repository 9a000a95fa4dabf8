#include <gtest/gtest.h>

#include "tests/web/css/Tree.h"

namespace galley::web {
namespace {

using Scheme = Media::Scheme;

bool holds(std::string const& query, Media const& media) {
    return !parsed("@media " + query + "{p{color:red}}").rulesFor(media).empty();
}

TEST(CssMedia, HoldsFromOneWidthToAnother) {
    struct Case {
        std::string query;
        /// Of 0 to 99 cells.
        unsigned first;
        unsigned last;
    };
    for (Case const& c : std::initializer_list<Case>{
             {"", 0, 99},
             {"all", 0, 99},
             {"Only Screen", 0, 99},
             {"(min-width:40)", 40, 99},
             {"(min-width: 40ch)", 40, 99},
             {"(max-width:319px)", 0, 39},
             {"(max-width:320px)", 0, 40},
             {"(min-width:20.1em)", 41, 99},
             {"screen and (min-width:10) and (max-width:20)", 10, 20},
             {"(width:30)", 30, 30},
             {"not all and (min-width:30)", 0, 29},
             {"not (max-width:30)", 31, 99},
             {"print, (max-width:3)", 0, 3},
             {"(width)", 1, 99},
         }) {
        for (unsigned width = 0; width < 100; ++width) {
            bool const isBetween = width >= c.first && width <= c.last;
            EXPECT_EQ(holds(c.query, {width, true, Scheme::none}), isBetween)
                << c.query << " at " << width;
        }
    }
}

TEST(CssMedia, AsksForColours) {
    EXPECT_TRUE(holds("(color)", {80, true, Scheme::none}));
    EXPECT_FALSE(holds("(color)", {80, false, Scheme::none}));
    for (Scheme const scheme : {Scheme::none, Scheme::dark, Scheme::light}) {
        Media const media{80, true, scheme};
        EXPECT_EQ(holds("(prefers-color-scheme:dark)", media), scheme == Scheme::dark);
        EXPECT_EQ(holds("(prefers-color-scheme: LIGHT)", media), scheme == Scheme::light);
        EXPECT_EQ(holds("(prefers-color-scheme)", media), scheme != Scheme::none);
    }
}

TEST(CssMedia, NothingIsOfATypeThatIsUnknown) {
    std::vector<Problem> problems;
    Sheet::parse("@media not scren{}", problems);
    EXPECT_EQ(textOf(problems), "7 unknown media query 'not scren'\n");
    EXPECT_TRUE(holds("not scren", {}));
    EXPECT_TRUE(holds("not print", {}));
}

TEST(CssMedia, WhatIsUnknownHoldsForNothing) {
    for (std::string const query :
         {"scren", "(hover)", "(min-width)", "(min-width:1vw)", "screen (color)", "(color:dark)",
          "not", "only (color)", "(color) or (width)", "not and", "not (hover)",
          "(prefers-color-scheme:red)", "screen and"}) {
        std::vector<Problem> problems;
        Sheet::parse("@media " + query + "{p{color:red}}", problems);
        EXPECT_EQ(textOf(problems), "7 unknown media query '" + query + "'\n");
        EXPECT_FALSE(holds(query, {})) << query;
        EXPECT_TRUE(holds(query + ",all", {})) << query;
    }
}

}  // namespace
}  // namespace galley::web
