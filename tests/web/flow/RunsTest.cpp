// Runs of ideographs, and of blanks and words that are preserved, are laid out as their characters
// are one by one.

#include <map>
#include <set>

#include "tests/web/flow/Pictures.h"
#include "web/text/LineBreaks.h"
#include "web/text/ideographs.h"

namespace galley::web {
namespace {

TEST(Runs, OfIdeographsBreakAnywhere) {
    expectPictures({
        {"漢字かな交じり文", 7, "\n漢字か\nな交じ\nり文\n"},
        {"漢字かな、交じり", 8, "\n漢字か\nな、交じ\nり\n"},
        {"a漢字（かな）", 6, "\na漢字\n（か\nな）\n"},
        {"漢字漢字", 1, "\n漢\n字\n漢\n字\n"},
        {"漢、、字「「漢」」字", 4, "\n漢、\n、字\n「「\n漢」\n」字\n"},
        {"<p style='overflow-wrap: normal'>漢、、字「「漢」」字</p>", 4,
         "\n漢、、\n字\n「「漢」」\n字\n"},
        {"漢字。abc「かな", 8, "\n漢字。\nabc「か\nな\n"},
        {"<p style='white-space: pre-wrap'>漢「字  な、</p>", 6, "\n漢「字\nな、\n"},
        {"<p style='word-break: break-all'>漢字a、b「c</p>", 5, "\n漢字\na、b\n「c\n"},
        {"한글한글 한글", 7, "\n한글한\n글 한글\n"},
        {"カードを", 5, "\nカー\nドを\n"},
        {"<b>漢字</b>漢<i>字漢字</i>", 4, "\n漢字\n漢字\n漢字\n"},
        {"<b>漢字漢<i style='padding-right: 1ch'>字</i></b>", 8, "\n漢字漢\n字\n"},
        {"(<b>漢字漢</b>", 2, "\n(\n漢\n字\n漢\n"},
        {"<p style='overflow-wrap: normal'>(<b>漢字漢</b></p>", 2, "\n(漢\n字\n漢\n"},
        {"<p style='word-break: keep-all'>漢字 漢字漢</p>", 6, "\n漢字\n漢字漢\n"},
        {"<p style='white-space: nowrap'>漢字 漢字漢</p>", 6, "\n漢字 漢字漢\n"},
        {"<p style='white-space: pre-wrap'>漢字漢字</p>", 5, "\n漢字\n漢字\n"},
        {"<p style='text-align: justify'>漢字漢 字</p>", 7, "\n漢 字漢\n字\n"},
        {"<table><tr><td>漢字漢</td><td>字漢字</td></tr></table>", 12,
         "\n 漢字  字漢\n 漢    字\n"},
    });
}

TEST(Runs, OfIdeographsEndBeforeWhatJoinsTheirLast) {
    expectPictures({
        {"漢字か\u3099な", 4, "\n漢字\nか\u3099な\n"},
        {"漢字한\u11A8", 6, "\n漢字한\u11A8\n"},
        {"漢字\u2060漢", 5, "\n漢\n字漢\n"},
    });
}

TEST(Runs, ThatAnElementPartsBreakAsTheFirstOneSays) {
    expectPictures({
        {"<b style='word-break: break-all'>iiq</b>elozwrp", 9, "\niiq\nelozwrp\n"},
        {"<p style='word-break: break-all'>elozwrp<b style='word-break: normal'>iiq</b>rp</p>", 9,
         "\nelozwrp\niiqrp\n"},
        {"日本語<b style='word-break: keep-all'>中文字</b>土水火", 9, "\n日本語\n中文字土\n水火\n"},
        {"<p style='word-break: keep-all'>日本語<b style='word-break: normal'>中文字</b>土水火</p>",
         9, "\n日本語中\n文字\n土水火\n"},
    });
}

// What an element parts is one text for all that.
TEST(Runs, BreakBeforeAQuotationMarkAsWhatIsBehindItSays) {
    expectPictures({
        {"文<q>火</q>", 5, "\n文\n“火”\n"},
        {"山文“<b>火</b>”", 5, "\n山文\n“火”\n"},
        {"山文“<b>a</b>”", 5, "\n山\n文“a”\n"},
        {"<p>a川<b>“</b><i>火</i>”</p>", 5, "\na川\n“火”\n"},
    });
}

// As in Chromium: there one begins a word, whatever was before it.
TEST(Runs, KeepAHyphenAtTheStartOfALineWithItsWord) {
    expectPictures({
        {"<p style='overflow-wrap: anywhere'>abc–yyyyy</p>", 3, "\nabc\n–yy\nyyy\n"},
        {"<p style='overflow-wrap: anywhere'>abc–<b>yyyyy</b></p>", 3, "\nabc\n–yy\nyyy\n"},
        {"<p style='overflow-wrap: anywhere'>abc–文yy</p>", 3, "\nabc\n–文\nyy\n"},
        {"<p style='overflow-wrap: anywhere'>abc-1yyy</p>", 3, "\nabc\n-1y\nyy\n"},
        {"<p style='overflow-wrap: anywhere'>abc-yyy</p>", 3, "\nabc\n-\nyyy\n"},
    });
}

// As the tables of Unicode say.
TEST(Runs, OfIdeographsAreOfTheseOnly) {
    using enum LineClass;
    std::map<Ideograph, std::set<LineClass>> const expected = {{Ideograph::letter, {ID, H2, H3}},
                                                               {Ideograph::opening, {OP}},
                                                               {Ideograph::closing, {CL, EX, NS}}};
    std::map<Ideograph, std::set<LineClass>> found;
    for (char32_t c = 0x800; c < 0x10000; ++c) {
        Ideograph const kind = ideographOf(c);
        if (kind == Ideograph::none) continue;
        Properties const properties = propertiesOf(c);
        EXPECT_EQ(properties.width, EastAsianWidth::wide) << std::hex << unsigned(c);
        EXPECT_FALSE(properties.takesEmojiStyle) << std::hex << unsigned(c);
        found[kind].insert(properties.lineClass);
    }
    EXPECT_EQ(found, expected);
}

TEST(Runs, ThatArePreservedAreOneWord) {
    expectPictures({
        {"<pre>  a b\n\tc  d \n e</pre>", 3, "\n  a b\n        c  d\n e\n"},
        {"<pre>a b\u0301c \u00E9</pre>", 9, "\na b\u0301c \u00E9\n"},
        {"<pre>a\rb\u0007</pre>", 9, "\na\nb\uFFFD\n"},
        {"ab <code style='white-space: pre'>c d</code>", 5, "\nab\nc d\n"},
        {"<pre>a <b>b </b>c</pre>", 9, "\na b c\n"},
    });
}

}  // namespace
}  // namespace galley::web
