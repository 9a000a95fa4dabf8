#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

/// The box tree laid out 80 columns wide. Laying it out again changes nothing.
std::string placed(String const& markup) {
    Page page(markup);
    page.layOut(80);
    std::string const first = places(*page.box);
    page.layOut(80);
    EXPECT_EQ(places(*page.box), first);
    return first;
}

TEST(BlockLayout, StacksDownwardsAndShrinksAroundTheWidestChild) {
    expectEach(
        {Row("<div/>", "html 0,0 0x0[div 0,0 0x0]"),
         Row(R"(<p margin="1">a</p><p margin="1">b</p><p margin="1">c</p>)",
             "html 0,0 3x9[p 1,1 1x1[line 0,0 1x1['a']] p 1,3 1x1[line 0,0 1x1['b']] "
             "p 1,6 1x1[line 0,0 1x1['c']]]"),
         Row(R"(a<p margin="1">b</p>cde)",
             "html 0,0 3x5[line 0,0 1x1['a'] p 1,2 1x1[line 0,0 1x1['b']] line 0,4 3x1['cde']]"),
         Row(R"(<p margin-bottom="1">a</p><p margin-top="3">b</p>)",
             "html 0,0 1x6[p 0,0 1x1[line 0,0 1x1['a']] p 0,4 1x1[line 0,0 1x1['b']]]"),
         Row(R"(<p margin="1" border-width="2" padding="3">a</p>)",
             "html 0,0 13x13[p 6,6 1x1[line 0,0 1x1['a']]]"),
         Row(R"(<p margin-left="-1">ab</p>)", "html 0,0 1x1[p -1,0 2x1[line 0,0 2x1['ab']]]"),
         Row(R"(<p>a</p><p margin-top="-1">b</p>)",
             "html 0,0 1x1[p 0,0 1x1[line 0,0 1x1['a']] p 0,1 1x1[line 0,0 1x1['b']]]"),
         Row(R"(<p margin-bottom="-1">a</p><p>b</p>)",
             "html 0,0 1x1[p 0,0 1x1[line 0,0 1x1['a']] p 0,1 1x1[line 0,0 1x1['b']]]"),
         Row(R"(<p padding="-1">a</p>)", "html 0,0 0x-1[p -1,-1 1x1[line 0,0 1x1['a']]]")},
        placed);
}

TEST(InlineLayout, PlacesBoxesSideBySideFromTheTop) {
    expectEach({Row(R"(<b margin-right="2">a</b><i>b</i>)",
                    "html 0,0 4x1[line 0,0 4x1[b 0,0 1x1['a'] i 5,0 1x1['b']]]"),
                Row(R"(<em><b margin-right="2">a</b><i>b</i></em>)",
                    "html 0,0 4x1[line 0,0 4x1[em 0,0 4x1[b 0,0 1x1['a'] i 3,0 1x1['b']]]]"),
                Row(R"(<b margin-right="2">a</b><i margin-left="3">b</i>)",
                    "html 0,0 7x1[line 0,0 7x1[b 0,0 1x1['a'] i 6,0 1x1['b']]]"),
                Row(R"(<em><b margin-right="2">a</b><i margin-left="3">b</i></em>)",
                    "html 0,0 7x1[line 0,0 7x1[em 0,0 7x1[b 0,0 1x1['a'] i 4,0 1x1['b']]]]"),
                Row(R"(<b margin-right="-2">abc</b><i margin-left="-1">d</i>)",
                    "html 0,0 1x1[line 0,0 1x1[b 0,0 3x1['abc'] i 0,0 1x1['d']]]"),
                Row(R"(a<b padding="1" border-width="1"/>c)",
                    "html 0,0 6x4[line 0,0 6x4['a' b 3,2 0x0 'c' 5,0 1x1]]"),
                Row("a<b>&copy;</b>", "html 0,0 1x1[line 0,0 1x1['a' b 1,0 0x0['' 0,0 0x0]]]"),
                Row(R"(<b padding-top="2" margin-bottom="1">a</b>c)",
                    "html 0,0 2x4[line 0,0 2x4[b 0,2 1x1['a'] 'c' 1,0 1x1]]")},
               placed);
}

TEST(InlineLayout, OffersABlockTheRunningWidth) {
    expectEach({Row("<b><p>a bbb cc</p></b>",
                    "html 0,0 4x3[line 0,0 4x3[b 0,0 4x3[p 0,0 4x3[line 0,0 2x1['a '] line 0,1 "
                    "4x1['bbb '] "
                    "line 0,2 2x1['cc']]]]]"),
                Row("<b>xx <p>yy zz</p>ww</b>",
                    "html 0,0 8x2[line 0,0 8x2[b 0,0 8x2['xx ' p 3,0 3x2[line 0,0 3x1['yy '] "
                    "line 0,1 2x1['zz']] 'ww' 6,0 2x1]]]")},
               placed);
}

TEST(FlowLayout, SaturatesAtTheLimitsOf32Bits) {
    expectEach({Row(R"(<p margin-left="2147483647" padding-left="2147483647">a</p>)",
                    "html 0,0 2147483647x1[p 2147483647,0 1x1[line 0,0 1x1['a']]]"),
                Row(R"(<p margin-top="2147483647">a</p><p margin-top="2147483647">b</p>)",
                    "html 0,0 1x2147483647[p 0,2147483647 1x1[line 0,0 1x1['a']] "
                    "p 0,2147483647 1x1[line 0,0 1x1['b']]]"),
                Row(R"(<p margin-left="-2147483648" margin-right="-2147483648">a b</p>)",
                    "html 0,0 0x1[p -2147483648,0 3x1[line 0,0 3x1['a ' 'b' 2,0 1x1]]]"),
                Row(R"(<b margin-left="2147483647">a</b><b margin="2147483647">c</b>)",
                    "html 0,0 2147483647x2147483647[line 0,0 2147483647x2147483647[b 2147483647,0 "
                    "1x1['a'] "
                    "b 2147483647,2147483647 1x1['c']]]")},
               placed);
    Page page("<b><i margin-left=\"2147483647\">a</i></b>b<i>c</i>");
    page.layOut(2147483647);
    EXPECT_EQ(places(*page.box),
              "html 0,0 2147483647x1[line 0,0 2147483647x1[b 0,0 2147483647x1["
              "i 2147483647,0 1x1['a']] 'b' 2147483647,0 1x1 i 2147483647,0 1x1['c']]]");
}

}  // namespace
}  // namespace CLI::XML
