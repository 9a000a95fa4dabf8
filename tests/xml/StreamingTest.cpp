// A conversion lets go of what is finished while it reads. The same document as whole trees, by the
// public operations one after the other, is the same page.

#include <random>
#include <string>
#include <vector>

#include "tests/support/RandomDocument.h"
#include "tests/support/boxes.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

std::string pageOfTrees(std::string const& markup, char const* css, int width) {
    Document const document(markup.c_str(), css);
    if (!document.result) return outcome(document.result);
    ZRLWPtr<Box> const box = ZR::MovePtr<Box>(new BlockBox(document.root.object));
    XCode const built = box->createChildren();
    if (!built) return outcome(built);
    Dimensions containing;
    containing.content.width = width;
    box->layout(containing);
    Canvas canvas;
    box->drawTo(canvas, Canvas::Attributes());
    return shown(canvas.dump("\n"));
}

std::string pageOfStream(std::string const& markup, char const* css, int width) {
    Sheet const sheet(css);
    String out;
    XCode const result = xmlToText(out, markup.c_str(), sheet.rules, static_cast<unsigned>(width));
    return result ? shown(out) : outcome(result);
}

void expectSamePage(std::string const& markup, char const* css, int width) {
    EXPECT_EQ(pageOfStream(markup, css, width), pageOfTrees(markup, css, width))
        << markup << "\n"
        << css << "\nwidth " << width;
}

TEST(Streaming, MakesThePageOfTheWholeTrees) {
    static constexpr char const* s_documents[] = {
        // Whether a first box that does not fit stays alone depends on what follows it.
        "aaa <b>longwo </b>y",
        "aaa <b>longwo y</b>",
        "k <b><i padding-left=\"3\">aa </i>bb </b>z",
        // That edge counts no more where its element is the child of another.
        "<b>bbb <b>aa <i padding-left=\"3\">bbb </i>a </b>aa a </b>a ",
        // Boxes without width still join a full line, and raise it.
        "aaaa bbbb <i/>&x;<b padding-top=\"1\"/>cc",
        "<b>aaa aaaa aaaaa <p>yy yy yy yy yy yy</p></b>",
        "aa bb <b>cc <p>dd ee</p> ff</b> gg <b><p>hh ii</p></b> jj kk ll mm",
        // A block may be less wide on the next line; the edges of what it is in count as before.
        ("<b padding-left=\"1\"><i padding-left=\"1\">ccc ccc <p>eeeee bb</p> gg</i></b> hh"
         "<p>a</p><b padding-left=\"1\"><i padding-left=\"1\">ccc a a <p>a a a</p></i></b> hh"),
        // A width that is cut off at the largest one is not too wide on a line of that.
        "a <b>b<i padding-right=\"2147483647\"> </i></b>",
        "a <b padding-right=\"2147483647\">b <i padding-right=\"2147483647\">c</i></b>",
        // Only the first word behind a margin keeps away from it.
        "<b margin-right=\"2\">a</b>bb cc dd <b><div><i margin-right=\"3\">e</i>ff gg hh</div></b>",
        // Words without a space behind them, with spaces in them, and without anything.
        "aa<!-- -->bb cc<![CDATA[ dd\t]]>ee<b>ff</b>gg",
        "a&nbsp;b c&nbsp;d&x; &x;&x; ee &x;<b>f&nbsp;g&x; h</b>",
        // A table in a block on a line shows how often the line was laid out.
        ("a b c d e f g h <b>i <div>j <table><tr><td>k</td><td>l l l</td></tr>"
         "<tr><td>m m m m</td></tr></table></div></b> n o p q r s t <b><div><table><tr><td>u u</td>"
         "<td>v</td></tr><tr><td>w w w w</td></tr></table></div></b> x y z"),
        // A negative edge makes room again.
        "aaa bbb ccc ddd <b margin-left=\"-40\">e</b>",
        "aaa<p>b</p><p margin-top=\"-2\" background-color=\"red\">c</p>",
        // Backgrounds and borders lie beneath what was painted before their size was known.
        "<div background-color=\"red\" padding=\"1\">a<p border-width=\"1\">b c d e f</p>g</div>",
        "<div padding-left=\"3\"><p padding-top=\"2\"/>a<div padding=\"2\">b</div>c</div>d",
        "<div padding-top=\"2147483637\" border-top-width=\"5\" padding-left=\"2\"/>",
        ("<p>a</p><p>b</p><p>c</p><div padding-left=\"2\" padding-top=\"2147483637\" "
         "border-top-width=\"11\"/>"),
        // Rows in which only the border of a table stands are filled up to what is drawn below.
        ("<table border-left-width=\"1\" padding-left=\"3\"><tr><td padding-top=\"2\"/></tr>"
         "<tr><td>a</td></tr><tr><td padding-top=\"2\"/></tr></table>b"),
        // Fillers of a frame that is clipped are in the way of what comes to lie there.
        ("<table><tr><td><div><table><tr padding=\"-4\"><td/><td><mark margin=\"-2\"/><h2>a a a c g"
         "</h2></td></tr><tr><td><div background-color=\"red\"><table><tr border-width=\"1\"><th/>"
         "<td>a</td></tr><tr><td>a</td></tr></table></div><div><table><tr><td>a </td></tr></table>"
         "</div></td></tr></table></div></td></tr></table>"),
        ("<div margin-left=\"5\"><b padding-left=\"-3\">ab</b></div><div padding-top=\"-1\">"
         "<p margin-left=\"2\" padding-right=\"4\" background-color=\"red\">x</p></div>"),
        "<b>a<tr/></b></p>",
        "<td>a</td><b",
        // Nothing of a page that could not be painted is painted before the failure.
        "<p>a<b margin-left=\"2000000000\">b</b></p><p",
        "<div display=\"none\">a<td/></div>b",
    };
    for (char const* document : s_documents) {
        for (int const width : {0, 1, 3, 5, 6, 9, 10, 12, 80, 2147483647}) {
            expectSamePage(document, "", width);
        }
    }
}

TEST(Streaming, MakesThePageOfTheWholeTreesOfALongText) {
    std::string words;
    for (int i = 0; i < 3000; ++i) words += std::to_string(i * i) + (i % 7 == 0 ? "\n" : " ");
    for (int const width : {7, 80, 2147483647}) {
        expectSamePage(words, "", width);
        std::string markup = "a <b>";
        markup.append(words).append("<i>").append(words).append("</i></b> z");
        expectSamePage(markup, "", width);
    }
}

// The place of its content is cut off, so that the border lies above what was done long before.
TEST(Streaming, MakesThePageOfTheWholeTreesBelowAHugeBorder) {
    std::string markup;
    for (int i = 0; i < 100; ++i) markup += "<p>a</p>";
    expectSamePage(
        markup + "<table border-top-width=\"2147483647\"><tr padding-left=\"3\"/></table>", "", 80);
}

TEST(Streaming, MakesThePageOfTheWholeTreesOfElementsInOneAnother) {
    static constexpr char const* s_tags[] = {"<b>",
                                             "<i>",
                                             "<em>",
                                             "<mark>",
                                             "<i padding-left=\"1\">",
                                             "<b color=\"red\">",
                                             "<b color=\"blue\">",
                                             "<b color=\"red\" font-style=\"normal\">",
                                             "<b background-color=\"red\">",
                                             "<b margin-right=\"2\">"};
    static constexpr unsigned s_tagCounts[] = {1, 2, 5, 10};
    for (unsigned document = 0; document < 600; ++document) {
        std::mt19937 random(document);
        std::string markup;
        std::vector<std::string> ends;
        auto const addWord = [&] {
            markup += std::to_string(random() % 100000) + (random() % 4 > 0 ? " " : "");
        };
        auto const close = [&] {
            markup += ends.back();
            ends.pop_back();
        };
        for (int i = 0; i < 60; ++i) {
            unsigned const what = random() % 8;
            if (what < 2 && !ends.empty()) {
                close();
            } else if (what < 5) {
                std::string const tag = s_tags[random() % s_tagCounts[document % 4]];
                markup += tag;
                ends.push_back("</" + tag.substr(1, tag.find_first_of(" >") - 1) + ">");
            } else {
                addWord();
            }
        }
        while (!ends.empty()) {
            close();
            if (random() % 2 == 0) addWord();
        }
        expectSamePage(markup, "mark{color:red;}", static_cast<int>(random() % 20));
        if (testing::Test::HasFailure()) break;
    }
}

TEST(Streaming, MakesThePageOfTheWholeTreesWhateverTheDocument) {
    for (unsigned seed = 0; seed < 2000; ++seed) {
        RandomDocument const random(seed);
        expectSamePage(random.markup, random.sheet.c_str(), random.width);
        if (testing::Test::HasFailure()) break;
    }
}

}  // namespace
}  // namespace CLI::XML
