// Where a conversion breaks lines.

#include <algorithm>
#include <climits>
#include <initializer_list>
#include <string>

#include "tests/support/document.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

struct LineCase {
    int width;
    /// Each with a bar behind it.
    char const* lines;
};

/// Each of the lines at its width and at all up to the next, of which the last is looked at.
void expectLines(char const* markup, std::initializer_list<LineCase> cases) {
    Sheet const sheet("b{font-style:normal;} i{font-style:normal;}");
    auto const linesAt = [&](int width) {
        String page;
        EXPECT_TRUE(xmlToText(page, markup, sheet.rules, static_cast<unsigned>(width)));
        std::string lines = page.c_str();
        std::replace(lines.begin(), lines.end(), '\n', '|');
        return lines;
    };
    for (LineCase const* each = cases.begin(); each != cases.end(); ++each) {
        int const next = each + 1 == cases.end() ? INT_MAX : each[1].width - 1;
        EXPECT_EQ(linesAt(each->width), each->lines) << markup << " at " << each->width;
        EXPECT_EQ(linesAt(next), each->lines) << markup << " at " << next;
    }
}

TEST(LineBreaker, BreaksAtAnyWordBoundaryInElements) {
    expectLines("a bb ccc", {{0, "a |bb |ccc|"}, {5, "a bb |ccc|"}, {8, "a bb ccc|"}});
    expectLines("aa <b><b>bb cc</b> dd</b><i>ee</i>", {{0, "aa |bb |cc|dd|ee|"},
                                                       {4, "aa |bb |ccdd|ee|"},
                                                       {6, "aa bb |ccddee|"},
                                                       {8, "aa bb cc|ddee|"},
                                                       {10, "aa bb ccdd|ee|"},
                                                       {12, "aa bb ccddee|"}});
    // Spaces that are no ends of words, and words of nothing.
    expectLines("a&nbsp;b cc&x; d<![CDATA[ e f ]]>g", {{0, "a b |cc |d|e |f |g|"},
                                                       {3, "a b |cc |de |f g|"},
                                                       {4, "a b |cc d|e f |g|"},
                                                       {5, "a b |cc d|e f g|"},
                                                       {6, "a b |cc de |f g|"},
                                                       {7, "a b cc |de f g|"},
                                                       {8, "a b cc d|e f g|"},
                                                       {10, "a b cc de |f g|"},
                                                       {12, "a b cc de f |g|"},
                                                       {13, "a b cc de f g|"}});
}

// The shorter line is looked at again: what is left of an element is its first part.
TEST(LineBreaker, MovesAnElementOfWhichTheFirstPartDoesNotFit) {
    expectLines("aaa <b>longwo y</b>",
                {{0, "aaa |longwo |y|"}, {11, "aaa longwo |y|"}, {12, "aaa longwo y|"}});
    expectLines("aaa <b>longwo </b>y", {{0, "aaa |longwo |y|"},
                                        {8, "aaa |longwo y|"},
                                        {11, "aaa longwo |y|"},
                                        {12, "aaa longwo y|"}});
    expectLines("k <b><i padding-left=\"3\">aa </i>bb </b>z", {{0, "k |   aa |bb |z|"},
                                                               {4, "k |   aa |bb z|"},
                                                               {8, "k |   aa bb |z|"},
                                                               {10, "k |   aa bb z|"},
                                                               {11, "k    aa bb |z|"},
                                                               {12, "k    aa bb z|"}});
}

TEST(LineBreaker, CountsEdgesWithinAnElementOnly) {
    expectLines("aa <b>bb <i padding-left=\"2\">cc</i></b> dd", {{0, "aa |bb |  cc|dd|"},
                                                                 {6, "aa bb |  ccdd|"},
                                                                 {8, "aa |bb   cc|dd|"},
                                                                 {9, "aa |bb   ccdd|"},
                                                                 {10, "aa bb   cc|dd|"},
                                                                 {12, "aa bb   ccdd|"}});
    expectLines("aa <b>bb <i padding-left=\"2\">cc </i>dd </b>ee", {{0, "aa |bb |  cc |dd |ee|"},
                                                                    {5, "aa |bb |  cc |dd ee|"},
                                                                    {6, "aa bb |  cc dd |ee|"},
                                                                    {9, "aa |bb   cc |dd ee|"},
                                                                    {11, "aa bb   cc |dd ee|"},
                                                                    {12, "aa |bb   cc dd |ee|"},
                                                                    {13, "aa |bb   cc dd ee|"},
                                                                    {14, "aa bb   cc dd |ee|"},
                                                                    {16, "aa bb   cc dd ee|"}});
    expectLines("<b>bbb <b>aa <i padding-left=\"3\">bbb </i>a </b>aa a </b>a ",
                {{0, "bbb |aa |   bbb |a |aa |a |a |"},
                 {4, "bbb |aa |   bbb |a |aa |a a |"},
                 {5, "bbb |aa |   bbb |a aa |a a |"},
                 {6, "bbb |aa |   bbb a |aa a |a |"},
                 {7, "bbb aa |   bbb a |aa a a |"},
                 {11, "bbb |aa    bbb |a aa a a |"},
                 {13, "bbb |aa    bbb a |aa a a |"},
                 {15, "bbb |aa    bbb a aa |a a |"},
                 {16, "bbb aa    bbb a |aa a a |"},
                 {19, "bbb aa    bbb a aa |a a |"},
                 {21, "bbb aa    bbb a aa a |a |"},
                 {23, "bbb aa    bbb a aa a a |"}});
}

TEST(LineBreaker, GoesOnWithAnElementAndItsEdges) {
    expectLines("a <b padding-left=\"1\">bb cc dd ee</b> f", {{0, "a | bb | cc | dd | ee|f|"},
                                                              {3, "a | bb | cc | dd | eef|"},
                                                              {5, "a  bb | cc | dd ee|f|"},
                                                              {6, "a  bb | cc dd | eef|"},
                                                              {8, "a  bb cc | dd eef|"},
                                                              {11, "a  bb cc dd | eef|"},
                                                              {13, "a  bb cc dd ee|f|"},
                                                              {14, "a  bb cc dd eef|"}});
    // Only the first word behind a margin keeps away from it, which the line does not count.
    expectLines("a <b margin-right=\"2\">bb cc</b>dd ee", {{0, "a |bb |cc|dd |ee|"},
                                                           {5, "a bb |cc    dd |ee|"},
                                                           {7, "a bb cc|dd ee|"},
                                                           {10, "a bb cc    dd |ee|"},
                                                           {12, "a bb cc    dee|"}});
}

TEST(LineBreaker, KeepsWhatHasNoWidthOnAFullLine) {
    expectLines("aaaa bbbb <i/>&x;<b padding-left=\"2\"/>cc", {{0, "aaaa |bbbb |cc|"},
                                                               {2, "aaaa |bbbb |  cc|"},
                                                               {5, "aaaa |bbbb |cc|"},
                                                               {7, "aaaa |bbbb   cc|"},
                                                               {10, "aaaa bbbb |cc|"},
                                                               {12, "aaaa bbbb   cc|"}});
    expectLines("aa <b padding-left=\"4\"/>bb <b padding-left=\"4\"> </b>cc",
                {{0, "aa |bb |cc|"},
                 {2, "aa |bb |    cc|"},
                 {3, "aa |bb |cc|"},
                 {5, "aa |bb     cc|"},
                 {6, "aa     bb |cc|"},
                 {8, "aa     bb     cc|"}});
}

}  // namespace
}  // namespace CLI::XML
