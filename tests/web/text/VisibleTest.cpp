// What people read about a source hides nothing of it.

#include "web/text/visible.h"

#include <gtest/gtest.h>

#include "web/wording.h"

namespace galley::web {
namespace {

TEST(Visible, ShowsWhatIsSeenNowhere) {
    struct {
        char const* text;
        char const* shown;
    } constexpr cases[] = {
        {"", ""},
        {"caf\u00E9 \u6F22", "caf\u00E9 \u6F22"},
        {"a\tb\nc\rd\x1B[\x7F", "a<U+0009>b<U+000A>c<U+000D>d<U+001B>[<U+007F>"},
        {"\u0085\u009B", "<U+0085><U+009B>"},
        {"\u202A\u202B\u202C\u202D\u202E", "<U+202A><U+202B><U+202C><U+202D><U+202E>"},
        {"\u2066\u2067\u2068\u2069", "<U+2066><U+2067><U+2068><U+2069>"},
        {"\u200E\u200F\u061C", "<U+200E><U+200F><U+061C>"},
        {"\u00AD\u200B\u2060\uFEFF\u2028\u2029",
         "<U+00AD><U+200B><U+2060><U+FEFF><U+2028><U+2029>"},
        {"\U000E0001", "<U+E0001>"},
        // What joins letters, is seen before some, or is a mark on one.
        {"\u200D\u200C\u06DD\u0301\uFE0F", "\u200D\u200C\u06DD\u0301\uFE0F"},
        {"\xFF\xC2", "\xFF\xC2"},
    };
    for (auto const& [text, shown] : cases) EXPECT_EQ(visible(text), shown) << text;
}

TEST(Visible, IsWhatMessagesQuote) { EXPECT_EQ(quoted("a\u202E\x1B"), "'a<U+202E><U+001B>'"); }

}  // namespace
}  // namespace galley::web
