// Elements with their styles as a person reads them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "web/renderPage.h"

namespace galley::web {
namespace {

std::string treeOf(std::string const& markup) {
    std::string tree;
    std::vector<Problem> problems;
    EXPECT_TRUE(dumpTree(markup, {}, {}, tree, problems)) << markup;
    EXPECT_TRUE(problems.empty()) << markup << problems.front().message;
    return tree;
}

/// The row of the last element, without its indent.
std::string lastOf(std::string const& markup) {
    std::string const tree = treeOf(markup);
    std::size_t const start = tree.rfind('\n', tree.size() - 2) + 1;
    return tree.substr(tree.find_first_not_of(' ', start));
}

TEST(DumpTree, ShowsElementsTextAndWhatIsDeclared) {
    EXPECT_EQ(treeOf("<style>.a { color: red }</style>\n<h1 id='top' class=' a  b '>One\n  <b>two"
                     "</b></h1><script>x</script>three"),
              "html { display: block; overflow-wrap: break-word; }\n"
              "  body { display: block; }\n"
              "    h1#top.a.b { display: block; margin: 1lh 0; color: red; font-weight: bold; "
              "text-decoration: underline; }\n"
              "      \"One\"\n"
              "      b\n"
              "        \"two\"\n"
              "    \"three\"\n");
}

TEST(DumpTree, HasElementsOfDocumentsWhateverIsAroundThem) {
    struct Case {
        char const* markup;
        char const* names;
    };
    constexpr Case cases[] = {
        {"", ""},
        {"x", "html body \"x\" "},
        {"<i/>", "html body i "},
        {"<html><i/></html>", "html i "},
        {"<html><body>x</body></html>\n", "html body \"x\" "},
        {"<body><i/></body>", "html body i "},
        // As lenient as it is with fragments.
        {"<html></html><i/>", "html html body i "},
        {"<body/><i/>", "html body body i "},
        {"<i/><body>x</body>", "html body i body \"x\" "},
    };
    for (auto const& [markup, names] : cases) {
        std::string const tree = treeOf(markup);
        std::string found;
        for (std::size_t i = 0; i < tree.size(); i = tree.find('\n', i) + 1) {
            std::size_t const start = tree.find_first_not_of(' ', i);
            found += tree.substr(start, tree.find_first_of(" \n", start) - start) + " ";
        }
        EXPECT_EQ(found, names) << markup;
    }
}

TEST(DumpTree, SaysStylesInWordsThatASheetCouldHave) {
    for (std::string const declaration : {
             "display: block; ",
             "visibility: hidden; ",
             "margin: 5%; ",
             "margin: 1lh 2ch; ",
             "margin: 1lh 0 0; ",
             "margin: 1lh 2ch 3lh 4ch; ",
             "margin: 0 auto; ",
             "padding: 0 12.5%; ",
             "border: solid; ",
             "border: thick double #ff8800; ",
             "border-top: dotted red; border-right: none; border-bottom: \"=\"; border-left: "
             "none; ",
             "border: hidden; border-radius: 1ch; ",
             "width: 10ch; min-width: 5ch; max-width: 20%; ",
             "table-layout: fixed; ",
             "border-collapse: collapse; border-spacing: 1ch 2lh; ",
             "caption-side: bottom; vertical-align: middle; ",
             "list-style-type: lower-roman; list-style-position: inside; ",
             "list-style-type: \"* \"; ",
             "text-align: justify; text-indent: 2ch; text-transform: uppercase; ",
             "white-space: pre-wrap; overflow-wrap: anywhere; word-break: keep-all; tab-size: 4; ",
             "color: bright-red; background-color: gray; ",
             "color: #010203; background-color: canvas; ",
             "font-weight: bold; font-style: italic; text-decoration: underline line-through; ",
             "font-weight: 300; ",
         }) {
        EXPECT_EQ(lastOf("<span style='" + declaration + "'/>"), "span { " + declaration + "}\n");
    }
    EXPECT_EQ(lastOf("<p style='color: red'><span style='color: canvastext'/></p>"),
              "span { color: canvastext; }\n");
}

TEST(DumpTree, ShowsWhatIsSeenNowhere) {
    EXPECT_EQ(lastOf("<b class='\x1B['/>"), "b.<U+001B>[ { font-weight: bold; }\n");
    EXPECT_EQ(lastOf("<b/>\x1B[1m \u202E"), "\"<U+001B>[1m <U+202E>\"\n");
    EXPECT_EQ(lastOf("<i style='list-style-type: \"\u2067\"; font-style: normal'/>"),
              "i { list-style-type: \"<U+2067>\"; }\n");
}

}  // namespace
}  // namespace galley::web
