// Pages of the dialect as pictures: each row behind a bar, blanks at its end left out.

#include <random>
#include <string>

#include "tests/web/flow/Pictures.h"
#include "web/text/utf8.h"

namespace galley::web {
namespace {

struct PageCase {
    std::string markup;
    unsigned width;
    char const* page;
};

void expectPages(std::vector<PageCase> const& cases) {
    for (PageCase const& each : cases) {
        EXPECT_EQ(textOf(each.markup, each.width, "|", ""), each.page)
            << each.markup << " at " << each.width;
    }
}

TEST(Pages, CollapseMarginsWhereNothingIsBetween) {
    expectPages({
        {"<p>a</p><p>b</p>", 9, "|a||b"},
        {"<div style='margin: 2lh 0'>a</div><p>b</p>c", 9, "|a|||b||c"},
        {"a<div style='margin: 2lh 0'><p/></div>b", 9, "|a|||b"},
        {"a<div style='margin: 3lh 0'><div><p/></div></div><p>b</p>", 9, "|a||||b"},
        {"a<div><p>b</p></div>c", 9, "|a||b||c"},
        {"a<div style='padding: 1lh 0'><p>b</p></div>c", 9, "|a|||b|||c"},
        {"a<div style='border: solid'><p>b</p></div>c", 5, "|a|┌───┐|│   │|│b  │|│   │|└───┘|c"},
        {"<p/>", 9, ""},
    });
}

TEST(Pages, PutMarginsOutsideOfBackgroundsThatHaveNotBegun) {
    // A background would show as a border does: the left one is the block's own.
    expectPages({{"a<div style='border-left: solid'><p>b</p></div>c", 5, "|a||│b||c"},
                 {"a<div style='border-left: solid'>x<p>b</p>y</div>c", 5, "|a|│x|│|│b|│|│y|c"}});
}

TEST(Pages, GoOnBehindTheEndOfTheirRoot) {
    expectPages(
        {{"<html></html><p>x</p>", 9, "|x"},
         {"<body>a</body><p>b</p>", 9, "|a||b"},
         {"<html><body>a</body></html>b", 9, "|a|b"},
         {"<style>body { border-left: solid }</style><html><body>a</body></html>\n", 9, "|│a"}});
}

TEST(Pages, CollapseWhiteSpaceAcrossElements) {
    expectPages({
        {"  a \n <b> b </b> c<i>\t</i>d ", 20, "|a b c d"},
        {"a<b> </b>b", 20, "|a b"},
        {"<b> a</b>", 20, "|a"},
        {"<span style='padding-left: 2ch'> a </span> b", 20, "|  a b"},
        {"a <br/> b", 20, "|a|b"},
        {"<pre> a \n\n\tb</pre>", 20, "| a||        b"},
        {"<p style='white-space: pre-line'>a  b\n c</p>", 20, "|a b|c"},
    });
}

TEST(Pages, BreakLinesAtTheLastOpportunityThatFits) {
    expectPages({
        {"The quick brown fox", 10, "|The quick|brown fox"},
        {"The quick brown fox", 9, "|The quick|brown fox"},
        {"The quick brown fox", 8, "|The|quick|brown|fox"},
        {"<p style='white-space: nowrap'>The quick</p>", 4, "|The quick"},
        {"abcdefgh ij", 4, "|abcd|efgh|ij"},
        {"ab<b>cdef</b>gh", 4, "|abcd|efgh"},
        {"<p style='overflow-wrap: normal'>abcdefgh ij</p>", 4, "|abcdefgh|ij"},
        {"ab&#173;cd", 3, "|ab-|cd"},
        {"ab&#173;cd", 4, "|abcd"},
        {"abc&#173;def", 3, "|ab|c-|def"},
        // What stands before a text says what its first characters are.
        {"<b>abc</b>&#173;def", 4, "|abc-|def"},
        {"<b>well</b>-known", 6, "|well-|known"},
        {"2020<b></b>-2021", 8, "|2020-|2021"},
        {"of <b></b>--output-dir", 9, "|of|--output-|dir"},
        {"a-b ab-cd", 5, "|a-b|ab-cd"},
        {"漢字漢字", 5, "|漢字|漢字"},
        {"<b>漢</b><i>字</i>", 3, "|漢|字"},
        {"abcd <b style='padding-right: 1ch'>efgh</b>ij", 4, "|abcd|efg|h ij"},
        {"ab cd<b style='padding-left: 1ch'/>", 2, "|ab|cd"},
        {"ab<wbr/>cd", 3, "|ab|cd"},
        {"aaa <b style='padding-right: 2ch'>bbb</b>", 8, "|aaa|bbb"},
        {"aaa <b style='padding-right: 1ch'>bbb</b>c", 8, "|aaa|bbb c"},
        // What is left of a parted word may begin with a soft hyphen.
        {"a&#173;bc", 1, "|a|-|b|c"},
        {"ab&#173;<b style='padding-right: 1ch'>c</b>", 3, "|ab-|c"},
        // Empty elements trail, and edges go on with the letter before them.
        {"ab <b style='padding-left: 1ch'></b>cd", 3, "|ab|cd"},
        {"<i><b style='padding-right: 1ch'>abc</b></i>", 3, "|ab|c"},
        {"<b style='padding-right: 1ch'>ab<br/></b>c", 9, "|ab|c"},
        {"<span style='white-space: nowrap'>ab-</span>cd", 3, "|ab-|cd"},
        {"ab<b/> <br/>", 2, "|ab"},
        {"<i>ab cd</i><b style='padding-left: 1ch'></b> e", 5, "|ab|cd  e"},
        {"<b style='padding-right: 1ch'>a<br/></b><i></i>", 5, "|a"},
        // What stands on both sides of a closing quote is wide.
        {"川字<b>”</b>水", 6, "|川字”|水"},
        {"川字a<b>”</b>水", 6, "|川字|a”水"},
        {"<b style='white-space: nowrap'>ab </b> cd", 4, "|ab|cd"},
        {"<q>a&#173;</q>", 2, "|“a|”"},
        {"<q>&#173;o</q>", 1, "|“|-|o|”"},
        // A text that begins with a soft hyphen, and one that ends with it before a sign.
        {"<b>Donau</b>&#173;dampf", 5, "|Donau|dampf"},
        {"ab<q>&#173;c</q>", 3, "|ab“|c”"},
        {"<div style='width: 0'><b>&#173;</b>a</div>", 3, "|-|a"},
        {"<q>ab&#173;</q>cd", 4, "|“ab”|cd"},
        {"ab&#173;<b>c</b>d", 3, "|ab-|cd"},
        {"<b style='white-space: pre'>a </b><b style='white-space: pre'>bc</b>", 3, "|a bc"},
        {"<b style='white-space: nowrap; padding-left: 2ch'>a</b>bc", 1, "|  a|b|c"},
        {"<div style='width: 0'><b style='white-space: nowrap'></b>a</div>", 4, "|a"},
        {"<b style='white-space: nowrap'>ab</b><q style='white-space: pre'/>", 3, "|ab|“”"},
        // A blank that counts begins the next line.
        {"<pre>x<i style='white-space: normal'>abc d</i> e</pre>", 6, "|xabc d| e"},
    });
}

TEST(Pages, LetWhiteSpaceThatCountsHang) {
    constexpr char const* preWrap = "<pre style='white-space: pre-wrap; text-align: right'>";
    std::string const markup(preWrap);
    for (auto const& [text, page] : std::vector<std::pair<char const*, char const*>>{
             {"abc   de</pre>", "|  abc|   de"},
             {"ab \nc</pre>", "|  ab|    c"},
             {"abc   \nd</pre>", "|abc|    d"},
             {"abcde <!-- --> f</pre>", "|abcde|    f"},
             {"ab\t</pre>", "|ab"},
             {"ab \t</pre>", "|ab"},
             {"<b style='border-right: solid'>b </b></pre>", "|  b │"},
             {"\tx</pre>", "||    x"}}) {
        EXPECT_EQ(textOf(markup + text, 5, "|", ""), page) << text;
    }
}

TEST(Pages, AlignAndIndentText) {
    expectPages({
        {"<p style='text-align: right'>ab c</p>", 6, "|  ab c"},
        {"<p style='text-align: center'>ab c</p>", 7, "| ab c"},
        {"<p style='text-align: justify'>a b c dddd</p>", 8, "|a   b  c|dddd"},
        {"<p style='text-align: justify'>日本 dddddd</p>", 8, "|日    本|dddddd"},
        {"<p style='text-align: justify'>a&#160;b c dddd</p>", 8, "|a   b  c|dddd"},
        {"<p style='text-align: justify'>✅b c dddddd</p>", 9, "|✅  b   c|dddddd"},
        {"<p style='text-align: justify; white-space: pre-wrap'>a\tb dddd</p>", 12,
         "|a          b|dddd"},
        {"<p style='text-indent: 2ch'>aa bb</p>", 5, "|  aa|bb"},
        {"<div style='text-indent: 2ch'><p>a</p>b</div>", 5, "|  a||b"},
        {"<p style='text-indent: 50%; text-align: right'>abc</p>", 3, "|  a| bc"},
    });
}

TEST(Pages, PlaceBlocksByTheirWidths) {
    expectPages({
        {"<div style='width: 4ch; margin: 0 auto'>ab cd</div>", 10, "|   ab|   cd"},
        {"<div style='width: 4ch; margin-left: auto'>ab</div>", 10, "|      ab"},
        {"<div style='width: 50%; border: solid'>a</div>", 9, "|┌────┐|│a   │|└────┘"},
        {"<div style='max-width: 2ch'>ab cd</div>", 10, "|ab|cd"},
        {"<div style='padding-right: 50%'>abcdef</div>", 5, "|ab|cd|ef"},
    });
}

TEST(Pages, NumberListsAndPutMarkersBeside) {
    expectPages({
        {"<ol><li>a</li><li/><li>c</li></ol>", 9, "| 1. a| 2.| 3. c"},
        {"<ol start='9'><li>a</li><li>b</li></ol>", 9, "| 9. a|10. b"},
        {"<ol><li value='7'>a</li><li>b</li></ol>", 9, "| 7. a| 8. b"},
        {"<ul><li><p>a</p></li><li><ul><li>b</li></ul></li></ul>", 40, "|  • a||  •   ◦ b"},
        {"<ol style='list-style: inside upper-roman'><li>a</li></ol>", 40, "|    I. a"},
        {"<div style='padding-left: 3ch; list-style-type: decimal'><li>a</li>"
         "<section><li>b</li><li>c</li></section><li>d</li></div>",
         40, "|1. a|1. b|2. c|2. d"},
        // A string is all of the marker, but for what is never printed.
        {"<ul style='list-style-type: \"–\\202e\"'><li>a</li></ul>", 40, "|   –a"},
        {"<ol style='list-style-type: decimal-leading-zero'><li value='-5'>a</li><li "
         "value='5'>b</li></ol>",
         40, "|-5. a|05. b"},
        // What it has no room before shows through it.
        {"<ol style='border: solid; padding: 0; width: 2ch'><li>a</li></ol>", 9,
         "|┌──┐|│1.│a|└──┘"},
        // Without a line, it stands beside the first row.
        {"<ol><li><p/></li><li>a</li></ol>", 9, "| 1.|| 2. a"},
        {"<ol><li><hr/></li><li><hr/>a</li></ol>", 9, "| 1. ─────|    ─────| 2. a"},
        {"<ol style='padding: 0'><li style='border: solid'><hr/><p/></li></ol>", 9,
         "|1. ┌───────┐|│───────│|│       │|└───────┘"},
        {"<ol><li><ol><li><hr/></li><li/></ol></li></ol>", 14, "|     1. ──────| 1.  2."},
        {"<q>a <q>b <q>c</q></q></q>", 40, "|“a ‘b ‘c’’”"},
        {"<ol style='padding: 0'><li>a b</li></ol>", 9, "|1. a b"},
        {"<div style='background: red'><ol><li>a</li></ol></div>", 9, "| 1. a"},
    });
}

TEST(Pages, TransformWordsAcrossElementsAndHyphens) {
    expectPages(
        {{"<p style='text-transform: capitalize'>ab<b>cd</b> it's e&#173;f (gh)</p>", 40,
          "|Abcd It's Ef (Gh)"},
         {"<p style='text-transform: capitalize'>花a花b なba b花</p>", 40, "|花A花B なBa B花"},
         {"<p style='text-transform: uppercase'>stra&#xE9; &#x1C6;</p>", 40, "|STRAÉ Ǆ"},
         {"<p style='text-transform: lowercase'>ABC</p>", 40, "|abc"}});
}

TEST(Pages, TransformLettersThatAreNotOneForOne) {
    auto const transformed = [](std::string const& how, std::string const& text) {
        return "<p style='text-transform: " + how + "'>" + text + "</p>";
    };
    expectPages({
        {transformed("uppercase", "stra&szlig;e \u0149 \uFB03 \u0587 \u01C6"), 40,
         "|STRASSE \u02BCN FFI \u0535\u0552 \u01C4"},
        {transformed("uppercase", "\u0390\u1F80"), 40, "|\u0399\u0308\u0301\u1F08\u0399"},
        {transformed("uppercase", "\u10D0 \u1C90"), 40, "|\u10D0 \u10D0"},
        {transformed("capitalize", "\u01C6a \u1FB3 \uFB01x \u00DFa \U00010428"), 40,
         "|\u01C5a \u1FBC \uFB01x \u00DFa \U00010428"},
        {transformed("lowercase", "\u0130"), 40, "|i\u0307"},
        // A sigma is final behind a letter and before none, whatever joins or marks there are.
        {transformed("lowercase", "ΑΣ Σ ΣΑ ΑΣΑ ΑΣ1 1Σ ΑΣ-Α"), 40, "|ας σ σα ασα ας1 1σ ας-α"},
        {transformed("lowercase", "Α.Σ ΑΣ.Α Α'Σ'Α ΑΣ:Α"), 40, "|α.ς ασ.α α'σ'α ασ:α"},
        {transformed("lowercase", "ΑΣ\u0301 ΑΣ\u0301Α"), 40, "|ας\u0301 ασ\u0301α"},
        {transformed("lowercase", "Α<b>Σ</b> ΑΣ<b>Α</b>"), 40, "|ασ αςα"},
    });
}

TEST(Pages, PartInlineElementsAroundBlocks) {
    expectPages({{"<b>a<p>b</p>c</b>", 9, "|a||b||c"},
                 {"<b style='border: solid'>a<div>b</div>c</b>", 9, "|│a|b|c│"},
                 {"<b><p>b</p></b>", 9, "|b"}});
}

TEST(Pages, HideWhatIsNotVisibleAndKeepItsRoom) {
    expectPages({{"a<b style='visibility: hidden'>bc</b>d", 9, "|a  d"},
                 {"a<hr style='visibility: hidden'/>b", 3, "|a||b"},
                 {"a<b style='display: none'>b</b>c", 9, "|ac"}});
}

TEST(Pages, ShowNothingOfTheLooksOfHiddenText) {
    class Looks final : public RowSink {
    public:
        bool areAllBlank = true;
        void take(Row const& row) override {
            for (RowSpan const& span : row.spans()) areAllBlank &= span.look == Look();
        }
    };
    for (std::string const text : {"ab", "a b", "<b>a</b>b", "<a href='http://x.y'>a b</a>"}) {
        for (char const* const block : {"p", "ul><li", "table><tr><td"}) {
            std::string const markup = std::string("<").append(block) +
                                       " style='visibility: hidden; text-decoration: underline'>" +
                                       text;
            Looks looks;
            std::vector<Problem> problems;
            std::string const ends = block[0] == 'p'   ? "</p>"
                                     : block[0] == 'u' ? "</li></ul>"
                                                       : "</td></tr></table>";
            EXPECT_TRUE(renderPage(markup + ends, {}, Media(), looks, problems)) << markup;
            EXPECT_TRUE(looks.areAllBlank) << markup;
        }
    }
}

TEST(Pages, LetIndentsReachOverEdges) {
    expectPages({
        {"<div style='background: red'><p style='text-indent: -2ch; padding-left: 2ch'>aaa bb</p>"
         "</div>",
         5, "|aaa|  bb"},
        {"<p style='text-indent: -3ch; padding-left: 2ch; border-left: solid'>aaaa bb <b>c</b></p>",
         6, "|aaaa|│  bb|│  c"},
        {"<table><tr><td style='padding-left: 4ch; text-indent: -4ch; border: solid'>aaa bbb ccc "
         "ddd"
         "</td></tr></table>",
         14, "|┌────────────┐|│aaa bbb ccc │|│    ddd     │|└────────────┘"},
        {"<table><tr><td style='padding-left: 3ch; text-indent: -3ch'>key <b>b</b> c</td><td>d"
         "</td></tr></table>",
         9, "|key b  d|   c"},
        // No further than up to the edge of the page or the cell.
        {"<p style='text-indent: -5ch'>ab cd efg hij klm</p>", 9, "|ab cd efg|hij klm"},
        {"<table><tr><td style='text-indent: -3ch'><b>a</b> b</td></tr></table>", 9, "|a| b"},
        {"<table><tr><td style='padding-left: 3ch'><div style='text-indent: -3ch'>a bb <b>c</b>"
         "</div></td></tr></table>",
         8, "|a bb c"},
    });
}

TEST(Pages, LayTablesOutAsChromiumDoes) {
    expectPages({
        // Half of each border counts with the column beside it.
        {"<table style='border-collapse: collapse'><tr><td style='border: solid; width: 25%'/></tr>"
         "</table>",
         99, "|┌───────────┐|└───────────┘"},
        {"<table style='table-layout: fixed; width: 8ch; border-collapse: collapse; border: solid'>"
         "<tr><td>vw</td><td/></tr></table>",
         99, "|┌──────┐|│ v    │|│ w    │|└──────┘"},
        {"<table style='border-collapse: collapse'><tr><td style='border: "
         "solid'/></tr><tr/></table>",
         9, "|┌──┐|└──┘"},
        {"<table style='table-layout: fixed; width: 8ch'><tr><td>mxy</td></tr>"
         "<tr><td colspan='2'/></tr></table>",
         99, "| mx| y"},
        // A marker beside a block is as wide as one.
        {"<table><tr><td style='border: solid'><ol style='padding-left: 4ch; margin: 0'>"
         "<li><p style='margin: 0'/></li></ol></td></tr></table>",
         99, "|┌─────────┐|│  1.     │|└─────────┘"},
        // First lines stand on one baseline, with text or not.
        {"<div style='display: table'><span style='display: table-cell'>a</span>"
         "<span style='display: table-cell'><br/>b</span></div>",
         9, "|a| b"},
        {"<table style='table-layout: fixed; width: 3ch; border-spacing: 1ch 0'>"
         "<tr><td style='border: solid'/></tr></table>",
         9, "| ┌| └"},
    });
}

TEST(Pages, ShowOfTextsAsBordersWhatHasRoom) {
    expectPages({{"<p style='border-left: \"> \"; border-right: \"ab\"'>x</p>", 6, "|>x   a"},
                 {"<p style='border-left: \"漢\"; border-top: \"ab\"'>x</p>", 6,
                  "|aabab"
                  "| x"}});
}

TEST(Pages, ShowBordersThroughWhatSticksOut) {
    expectPages({{"<div style='border: solid; width: 3ch; white-space: nowrap'>ab de f</div>", 20,
                  "|┌───┐|│ab de f|└───┘"},
                 {"<div style='border: solid; width: 3ch; white-space: nowrap'>abc de</div>", 20,
                  "|┌───┐|│abc│de|└───┘"}});
}

TEST(Pages, MayBeOfferedAnyWidth) {
    for (unsigned const width : {1'000'000U, 2'147'483'648U, 4'294'967'295U}) {
        EXPECT_EQ(textOf("<p>a b</p>", width, "|", ""), "|a b");
        EXPECT_EQ(textOf("<hr/>", width, "|", "").size(), 1 + 3 * 1'000'000U);
    }
}

TEST(Pages, OfAnyBytesAreWellFormed) {
    constexpr std::string_view parts[] = {
        "漢字", "\xE6\xBC", "\x82",  "\xED\xA0\x80", "\xF4\x90", "\xFF", "\x1B[",
        "\x9B", "\u009B",   "&#27;", "e\u0301",      "\xCC",     "a ",
    };
    std::minstd_rand random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string markup = "<p title='";
        for (int i = 0; i < 8; ++i) markup += parts[random() % std::size(parts)];
        markup += "'>";
        for (int i = 0; i < 20; ++i) markup += parts[random() % std::size(parts)];
        markup += "</p>";
        std::string const page = textOf(markup, 1 + static_cast<unsigned>(round) % 9);
        EXPECT_EQ(findIllFormed(page), std::string::npos) << markup;
        for (std::size_t i = 0; i < page.size(); i += decodeAt(page, i).length) {
            char32_t const c = decodeAt(page, i).value;
            EXPECT_TRUE(c == '\n' || (c >= 0x20 && c < 0x7F) || c >= 0xA0) << markup;
        }
    }
}

TEST(Pages, AreRefusedWhereTheyWouldBeTooLarge) {
    std::string frames;
    for (int i = 0; i < 500; ++i) frames += "<div style='border: solid; width: 300ch'>";
    frames += "a";
    for (int i = 0; i < 500; ++i) frames += "</div>";
    std::string const cells = "Page too large: more than 67108864 cells";
    std::string const row = "Page too large: a row of more than 1000000 cells";
    for (auto const& [markup, message] : std::vector<std::pair<std::string, std::string>>{
             {frames, cells},
             {"<div style='padding-top: 900000lh; padding-left: 99ch; background: red'>a</div>",
              cells},
             {"<div style='border: solid; width: 2000000ch'>a</div>", row},
             {"<div style='border: solid'><p style='padding-left: 1000000ch'>a</p></div>", row},
             {"<table style='width: 90ch; border: solid'><tr><td style='padding-top: "
              "900000lh'/></tr></table>",
              cells}}) {
        TextOfRows rows("", "");
        std::vector<Problem> problems;
        EXPECT_FALSE(renderPage(markup, {}, Media(), rows, problems)) << markup;
        ASSERT_EQ(problems.size(), 1U);
        EXPECT_EQ(problems[0].message, message);
    }
}

// A fragment is what it would be in the elements around it, whatever these are displayed as.
TEST(Page, OfAFragmentIsThatOfItsContentInABody) {
    constexpr char const* s_displays[] = {"none",
                                          "block",
                                          "inline",
                                          "list-item",
                                          "table",
                                          "table-row-group",
                                          "table-header-group",
                                          "table-row",
                                          "table-cell",
                                          "table-caption",
                                          "table-column",
                                          "table-column-group"};
    for (std::string const content :
         {"a", "<b>a</b>b", "<p>a</p><p>b</p>", "<td>a</td>", "<ol><li>a</li></ol>b"}) {
        for (std::string const html : s_displays) {
            for (std::string const body : s_displays) {
                std::string const sheet = "<style>html{display:" + html + "}body{display:" + body +
                                          ";padding:0 1ch}</style>";
                std::string const whole =
                    "<html><head>" + sheet + "</head><body>" + content + "</body></html>";
                EXPECT_EQ(textOf(sheet + content, 20), textOf(whole, 20)) << whole;
            }
        }
    }
    expectPictures({
        {"<style>body{display:none}</style>a", 9, "\n"},
        {"<html style='display:none'>a</html>", 9, "\n"},
        {"<html style='display:table-row'>a</html>", 9, "\na\n"},
        {"<style>body{display:table;margin:auto}</style>a<i>b</i>", 9, "\n   ab\n"},
    });
}

}  // namespace
}  // namespace galley::web
