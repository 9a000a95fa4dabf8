// Every allocation of a conversion and of a sheet fails once.

#include <new>
#include <string>

#include "tests/memory/allocations.h"
#include "tests/support/boxes.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

using namespace Allocations;

/// Calls `act` again and again, each time with the next allocation failing, until it needs no more.
/// `act` returns whether what was asked of it came of it; memory must be as it was before, whatever
/// came.
template <class Act>
void failEachAllocation(std::string const& what, Act const& act) {
    for (bool const staysOut : {false, true}) {
        for (long n = 0;; ++n) {
            SCOPED_TRACE(what + (staysOut ? ", all from " : ", only ") + std::to_string(n));
            long const blocks = s_blocks;
            s_staysOut = staysOut;
            s_left = n;
            bool wasThrown = false;
            try {
                act();
            } catch (std::bad_alloc const&) {
                wasThrown = true;
            }
            bool const isDone = s_left > 0;
            s_left = -1;
            EXPECT_EQ(s_blocks, blocks);
            if (isDone) {
                EXPECT_FALSE(wasThrown);
                EXPECT_GT(n, 0);
                break;
            }
            if (testing::Test::HasFailure()) return;
        }
    }
}

constexpr char const* s_sheet =
    "p { border-width: 1; padding-left: 2; border-corner-style: longer-than-inline; }"
    "div { background-color: red; color: mangenta; } td { margin-right: 1; font-style: bold; }";

std::vector<std::string> documents() {
    std::string attributes = "<p";
    for (int i = 0; i < 70; ++i) attributes += " a" + std::to_string(i) + "=\"a longer value\"";
    return {
        "",
        "one two three four five six seven eight nine ten eleven twelve",
        "<p>one <b>two <i>three four</i> five six seven</b> eight</p><p>nine</p>",
        "<div padding=\"1\">a<p>b<div>c d e</div>f</p>g</div>",
        ("<table><tr><td>one</td><td>two<p>three four five six seven</p></td></tr>"
         "<tr><td><table><tr><td>a</td><td>b</td></tr></table></td></tr></table>"),
        "<b>aaa aaaa aaaaa <p>yy yy yy yy yy yy</p></b> <i>c</i>",
        "<p margin-left=\"-1\">a<b margin-right=\"-2\">b c d e f g h i j</b></p>",
        "a&nbsp;b &x;&amp;&lt; <![CDATA[c d\te]]><!-- f --><?g h?> i\tj\tk",
        "<p>" + std::string(5000, 'x') + " " + std::string(3000, 'y') + " z</p>",
        attributes + "/>",
        "<p display=\"none\"><td>a</td></p><p font-style=\"mark\" border-style=\"&quot;\">b</p>",
        "<p>not closed",
        "<p>wrong</b>",
        "<unknown-element/>",
        "<table>refused, with a long name</table>",
        "<p margin-left=\"2000000000\">too large</p>",
        "<p attribute",
    };
}

TEST(AllocationFailure, LeavesOutputAndRulesOfAConversionAlone) {
    for (std::string const& document : documents()) {
        Sheet const sheet(s_sheet);
        String const markup(document.c_str());
        String page("before");
        XCode const expected = xmlToText(page, markup, sheet.rules, 12);
        failEachAllocation(document.substr(0, 60), [&] {
            String out("before");
            bool isAnswered = false;
            try {
                XCode const result = xmlToText(out, markup, sheet.rules, 12);
                isAnswered = bool(result);
            } catch (std::bad_alloc const&) {
                EXPECT_EQ(out, "before");
                throw;
            }
            // Some text may be missing, and what it would have asked for, but not all of a page.
            EXPECT_TRUE(isAnswered || out == "before");
            EXPECT_TRUE(!isAnswered || out.length() > 6 || page == "before");
            EXPECT_EQ(out.substring(0, 6), "before");
        });
        for (ZRLWPtr<StyleNode> const& rule : sheet.rules) EXPECT_EQ(rule->refCount, 1);
        String again("before");
        XCode const result = xmlToText(again, markup, sheet.rules, 12);
        EXPECT_EQ(again, page);
        EXPECT_EQ(outcome(result), outcome(expected));
    }
}

TEST(AllocationFailure, LeavesAListOfRulesUsable) {
    for (char const* const css : {"a-long-selector{x:1;y:a-longer-value;z:3;}b{}c{x:1;y:2;}",
                                  "p { a: b; } q { without an end", "}"}) {
        StyleList rules;
        failEachAllocation(css, [&] {
            try {
                parseCss(rules, css);
            } catch (std::bad_alloc const&) {
                EXPECT_EQ(parseCss(rules, "").getValue(), 0);
                throw;
            }
            for (ZRLWPtr<StyleNode> const& rule : rules) EXPECT_EQ(rule->refCount, 1);
            rules.clear();
        });
    }
}

TEST(AllocationFailure, LeavesTreesThatCanBeReleasedWithoutMemory) {
    for (std::string const& document : documents()) {
        Sheet const sheet(s_sheet);
        String const markup(document.c_str());
        failEachAllocation(document.substr(0, 60), [&] {
            long released = 0;
            {
                PullParser parser(markup);
                ZRLWPtr<DomElement> root;
                ZRLWPtr<Box> box;
                String dumps;
                Canvas page;
                try {
                    if (buildDomTree(root, true, parser, sheet.rules)) {
                        box.setObjDontAddRef(new BlockBox(root.object));
                        box->createChildren();
                        Dimensions containing;
                        containing.content.width = 12;
                        box->layout(containing);
                        if (document.find("2000000000") == document.npos) {
                            box->drawTo(page, Canvas::Attributes());
                        }
                        dumps = root->dump(0) += box->dump(2);
                    }
                } catch (std::bad_alloc const&) {
                    // What was made until then is released below.
                }
                released = s_requests;
                box = nullptr;
                root = nullptr;
            }
            EXPECT_EQ(s_requests, released);
        });
        for (ZRLWPtr<StyleNode> const& rule : sheet.rules) EXPECT_EQ(rule->refCount, 1);
    }
}

TEST(AllocationFailure, NeverLeavesADumpInPieces) {
    Page page("<div>Hi <b>you</b></div><table><tr><td>a</td></tr></table>");
    page.layOut(80);
    String const tree = page.root->dump(20);
    String const boxes = page.box->dump(20);
    failEachAllocation("dump", [&] { EXPECT_EQ(page.root->dump(20), tree); });
    failEachAllocation("dump", [&] { EXPECT_EQ(page.box->dump(20), boxes); });
}

TEST(AllocationFailure, LeavesAStringAsItWas) {
    String const addition("and something that does not fit");
    failEachAllocation("appending", [&] {
        String text("short");
        long const before = s_requests;
        text += addition;
        bool const wasRefused = text.length() == 5;
        EXPECT_EQ(text, wasRefused ? "short" : "shortand something that does not fit");
        EXPECT_EQ(s_requests, before + 1);
    });
}

}  // namespace
}  // namespace CLI::XML
