// Documents are as deep as they like, on threads with little stack.

#include "tests/support/boxes.h"
#include "tests/support/smallStack.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

constexpr int s_levels = 100000;

struct Nesting {
    char const* name;
    char const* start;
    char const* end;
};

String nested(Nesting const& nesting, int levels, bool isClosed) {
    auto const n = static_cast<unsigned>(levels);
    String markup = String::repeat(nesting.start, n);
    markup += "word";
    if (isClosed) markup += String::repeat(nesting.end, n);
    return markup;
}

class Depth : public testing::TestWithParam<Nesting> {};

TEST_P(Depth, IsConverted) {
    runOnSmallStack([] {
        String out;
        EXPECT_EQ(outcome(xmlToText(out, nested(GetParam(), s_levels, true), {}, 80)), "ok");
        EXPECT_NE(shown(out).find("word"), std::string::npos);
        XCode const unclosed = xmlToText(out, nested(GetParam(), s_levels, false), {}, 80);
        EXPECT_EQ(outcome(unclosed), "Line 1: Missing end tag at the end");
    });
}

TEST_P(Depth, IsBuiltLaidOutPaintedAndReleased) {
    runOnSmallStack([] {
        Page page(nested(GetParam(), s_levels, true));
        page.layOut(80);
        Canvas canvas;
        page.box->drawTo(canvas, Canvas::Attributes());
        EXPECT_NE(shown(canvas.dump("\n")).find("word"), std::string::npos);
    });
}

TEST_P(Depth, IsDumped) {
    runOnSmallStack([] {
        Page const page(nested(GetParam(), s_levels / 100, true));
        EXPECT_NE(shown(page.root->dump(0)).find("'word'"), std::string::npos);
        EXPECT_NE(shown(page.box->dump(0)).find("'word': (0, 0, 0, 0)"), std::string::npos);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Nesting, Depth,
    testing::Values(Nesting{"Blocks", "<div>", "</div>"}, Nesting{"Inlines", "<b>", "</b>"},
                    Nesting{"InlinesInBlocks", "<p><b>", "</b></p>"},
                    Nesting{"Tables", "<table><tr><td><div>", "</div></td></tr></table>"}),
    [](auto const& nesting) { return nesting.param.name; });

}  // namespace
}  // namespace CLI::XML
